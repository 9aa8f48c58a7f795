#include "app/options/frmOptions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QToolButton>
#include <map>

#include "app/options/frmAddMachine.h"
#include "support/qt_WindowStation.h"

namespace morvane::test {
namespace {

using common::OptionField;
using common::OptionKind;

class frmOptionsTest : public ::testing::Test {
 protected:
  frmOptionsTest() {
    station.folder.Write("A.FIX", "");
    station.folder.Write("A.PRD", "");
    for (const char* name : {"Z.bmp", "b.BMP", "A.jpg", "=odd.bmp"}) station.folder.Write(name, "");
    station.Load();
  }
  app::frmOptions& Open() {
    dialog = std::make_unique<app::frmOptions>(station.context);
    dialog->show();
    return *dialog;
  }
  void Click(const char* name) { Find<QPushButton>(*dialog, name).click(); }
  QString Text(const char* name) { return Find<QLineEdit>(*dialog, name).text(); }
  void Type(const char* name, const char* text) { Find<QLineEdit>(*dialog, name).setText(text); }
  QStringList Entries(const char* name) {
    QStringList entries;
    auto& list = Find<QComboBox>(*dialog, name);
    for (int i = 0; i < list.count(); ++i) entries << list.itemText(i);
    return entries;
  }
  void Choose(const char* name, const QString& text) {
    auto& list = Find<QComboBox>(*dialog, name);
    list.setCurrentIndex(list.findText(text));
    emit list.activated(list.currentIndex());
  }
  // Gives the field another value, as its user would.
  std::string Change(const OptionField& field) {
    if (auto* text = dialog->findChild<QLineEdit*>(field.control)) return text->setText("3.5"), "3.5";
    if (auto* box = dialog->findChild<QCheckBox*>(field.control))
      return box->click(), box->isChecked() ? "1" : "0";
    if (auto* list = dialog->findChild<QComboBox*>(field.control))
      return list->setCurrentIndex(list->count() - 1), list->currentText().toStdString();
    if (field.kind == OptionKind::Port) return Find<QRadioButton>(*dialog, "optComPort4").click(), "5";
    station.prompts.colors = {0x010203};
    Click(field.control);
    return "66051";
  }

  WindowStation station;
  std::unique_ptr<app::frmOptions> dialog;
};

TEST_F(frmOptionsTest, EveryFieldIsShownWrittenAndShownAgain) {
  Open();
  Click("cmdOK");
  EXPECT_FALSE(dialog->isVisible());
  for (const OptionField& field : common::OptionFields()) {
    EXPECT_EQ(station.Get(field.key), field.fallback) << field.key;
  }
  Open();
  std::map<std::string, std::string> written;
  for (const OptionField& field : common::OptionFields()) written[field.key] = Change(field);
  EXPECT_EQ(station.Get("EditorLeft"), "0") << "nothing is written before it is applied";
  Click("cmdApply");
  EXPECT_TRUE(dialog->isVisible());
  Open();
  Click("cmdApply");
  for (const auto& [key, value] : written) EXPECT_EQ(station.Get(key), value) << key;
  // What a hand has written stays: a file that is not there, text that is no number, no port at all.
  const std::pair<const char*, const char*> odd[] = {
      {"Fixture", "TJB.TJB"}, {"BackgroundImage", "GONE.BMP"}, {"GridSpacing", "wide"}, {"ComPort", "junk"}};
  for (const auto& [key, value] : odd) station.Set(key, value);
  Open();
  Click("cmdOK");
  for (const auto& [key, value] : odd) EXPECT_EQ(station.Get(key), value) << key;
}

TEST_F(frmOptionsTest, LabelsCarryTheUnitAndFollowIt) {
  Open();
  for (const char* unit : {"(in)", "(mm)"}) {
    QStringList labels;
    for (const QLabel* label : dialog->findChildren<QLabel*>())
      labels << label->text().replace(unit, "(<unit>)");
    for (const char* text :
         {"Editor Left (<unit>)", "Editor Top (<unit>)", "Editor Width (<unit>)", "Editor Height (<unit>)",
          "Grid Spacing (<unit>)", "Image X pos (<unit>)", "Image Y pos (<unit>)", "Image Width (<unit>)",
          "Image Height (<unit>)", "Reference Length (<unit>)"}) {
      EXPECT_TRUE(labels.contains(text)) << text << unit;
    }
    Type("txtUnits", "mm");
    Click("cmdApply");
  }
  EXPECT_EQ(dialog->windowTitle(), "Options");
  const std::pair<const char*, const char*> captions[] = {
      {"chkUseImageSize", "Use Image Size for Editor Size"},
      {"chkDontDownloadImages", "Don't upload or download images with a job"},
      {"chkDownloadAsTJB", "Enable Print Mode"},
      {"chkProFonts", "Enable Pro Fonts"},
      {"cmdAdd", "Add Network Machine"},
      {"cmdDelete", "Delete Network Machine"}};
  for (const auto& [name, text] : captions) EXPECT_EQ(Find<QAbstractButton>(*dialog, name).text(), text);
}

TEST_F(frmOptionsTest, AnEditorWithoutAnAreaIsCorrected) {
  Open();
  Type("txtEditorHeight", "-2");
  Type("txtEditorWidth", "0");
  Click("cmdOK");
  EXPECT_EQ(station.prompts.Texts(),
            (std::vector<std::string>{"The editor height must be greater than 0, setting to 1",
                                      "The editor width must be greater than 0, setting to 1"}));
  EXPECT_EQ(station.Get("EditorHeight") + station.Get("EditorWidth"), "11");
}

TEST_F(frmOptionsTest, MachinesAreAddedChosenAndDeleted) {
  Open();
  const auto add = [&](const char* name, const char* address) {
    QTimer::singleShot(0, [&] {
      auto& asked = *qobject_cast<QDialog*>(QApplication::activeModalWidget());
      EXPECT_EQ(asked.windowTitle(), "Add Network Machine");
      Find<QLineEdit>(asked, "txtMachine").setText(name);
      Find<QLineEdit>(asked, "txtIP").setText(address);
      Find<QPushButton>(asked, "cmdAdd").click();
      if (asked.isVisible()) Find<QPushButton>(asked, "cmdCancel").click();
    });
    Click("cmdAdd");
  };
  add("Laser", "10.0.0.1");
  add("Pin", "10.0.0.2");
  EXPECT_EQ(station.Get("Machine") + " " + station.Get("IP"), "Pin 10.0.0.2");
  EXPECT_EQ(Find<QComboBox>(*dialog, "cmbNetwork").currentText(), "Pin (10.0.0.2)");
  add("", "10.0.0.3");
  add("a;b", "10.0.0.3");
  EXPECT_EQ(station.prompts.Texts(),
            (std::vector<std::string>{"Please enter a Machine Name and IP Address",
                                      "cmdAdd_Click-A name or address cannot hold ; or ="}));
  add("Hall (2)", "10.0.0.4");
  // Looked up by what stands before its "(", which is no machine's name.
  Click("cmdApply");
  EXPECT_EQ(station.Get("Machine") + " " + station.Get("IP"), "Hall ");
  Choose("cmbNetwork", "Laser (10.0.0.1)");
  Click("cmdApply");
  EXPECT_EQ(station.Get("Machine") + " " + station.Get("IP"), "Laser 10.0.0.1");
  Click("cmdDelete");
  EXPECT_EQ(Entries("cmbNetwork"), QStringList({"Pin (10.0.0.2)", "Hall (2) (10.0.0.4)"}));
}

TEST_F(frmOptionsTest, EachImageRemembersItsRectangle) {
  Open();
  EXPECT_EQ(Entries("cmbBackground"), QStringList({"", "=odd.bmp", "b.BMP", "Z.bmp", "A.jpg"}));
  Choose("cmbBackground", "Z.bmp");
  EXPECT_EQ(Text("txtImageX") + Text("txtImageY") + Text("txtImageWidth") + Text("txtImageHeight"), "0044");
  Type("txtImageX", "1.5");
  Type("txtImageHeight", "2,5");
  Click("cmdApply");
  EXPECT_EQ(station.Get("Z.bmp"), "1.5,0,4,2");
  for (const auto& [image, x] : {std::pair{"A.jpg", "0"}, {"Z.bmp", "1.5"}}) {
    Choose("cmbBackground", image);
    EXPECT_EQ(Text("txtImageX"), x);
  }
  Choose("cmbBackground", "=odd.bmp");
  Click("cmdOK");
  EXPECT_EQ(station.Get("BackgroundImage"), "=odd.bmp") << "no key can bear its name; all else is kept";
}

TEST_F(frmOptionsTest, AnImportedImageComesWithItsOwnSize) {
  TempFolder elsewhere;
  QImage picture(300, 150, QImage::Format_RGB32);
  picture.setDotsPerMeterX(2000);
  picture.setDotsPerMeterY(2000);
  picture.save(QString::fromStdString(elsewhere / "NEW.bmp"));
  Open();
  Type("txtImageX", "7");
  station.prompts.files = {{}, {elsewhere / "NEW.bmp"}, {station.folder / "Z.bmp"}, {elsewhere / "GONE.bmp"}};
  Click("cmdImport");
  EXPECT_EQ(Text("txtImageX"), "7") << "cancelled";
  EXPECT_EQ(station.prompts.requests[0].filter,
            "Image Files|*.bmp;*.jpg;*.gif;*.ico;*.rle;*.wmf;*.emf|All Files|*.*");
  Click("cmdImport");
  EXPECT_EQ(Find<QComboBox>(*dialog, "cmbBackground").currentText(), "NEW.bmp");
  EXPECT_EQ(Text("txtImageX") + " " + Text("txtImageWidth") + " " + Text("txtImageHeight"),
            "0 5.905512 2.952756");
  EXPECT_EQ(station.folder.Read("NEW.bmp"), elsewhere.Read("NEW.bmp"));
  Click("cmdImport");
  Click("cmdImport");
  EXPECT_EQ(station.prompts.Texts(),
            (std::vector<std::string>{"cmdImport_Click-Invalid picture", "cmdImport_Click-File not found"}));
  EXPECT_EQ(Find<QComboBox>(*dialog, "cmbBackground").currentText(), "Z.bmp");
}

TEST_F(frmOptionsTest, AFullDiskKeepsTheDialogAndTheOldSettings) {
  station.Set("GridSpacing", "2");
  station.settings.SaveSetting("Machines", "Laser", "10.0.0.1");
  Open();
  Type("txtGridSpacing", "3");
  station.fileSystem.full = true;
  Click("cmdOK");
  Click("cmdDelete");
  EXPECT_EQ(station.prompts.Texts(), (std::vector<std::string>{"cmdApply_Click-Disk full"}));
  Choose("cmbNetwork", "Laser (10.0.0.1)");
  Click("cmdDelete");
  EXPECT_EQ(station.prompts.Texts().back(), "cmdDelete_Click-Disk full");
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(station.Get("GridSpacing"), "2");
}

TEST_F(frmOptionsTest, TheMenuOpensItAndWhatWasAppliedStays) {
  QTimer::singleShot(0, [] {
    auto& options = *qobject_cast<QDialog*>(QApplication::activeModalWidget());
    Find<QRadioButton>(options, "optComPort2").click();
    Find<QPushButton>(options, "cmdApply").click();
    Find<QRadioButton>(options, "optComPort1").click();
    Find<QPushButton>(options, "cmdCancel").click();
  });
  station.Entry("mnuViewOptions").trigger();
  EXPECT_EQ(Find<QToolButton>(station.Frame(), "panelConnection").text(), "COM3") << "refreshed";
}

}  // namespace
}  // namespace morvane::test
