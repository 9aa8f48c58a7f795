// The menu entries and buttons of the link, against a controller by script on the network.
#include <QRadioButton>

#include "app/menu/MenuTable.h"
#include "support/qt_WindowStation.h"
#include "textjob/ui/frmEdit.h"

namespace morvane::test {
namespace {

class TransferMenu : public ::testing::Test {
 protected:
  TransferMenu() {
    station.Set("ComPort", "5");
    station.Set("IP", "10.0.0.7");
    for (const char* name : {"A.TJB", "A.JOB", "A.FIL", "A.XYZ"}) station.folder.Write(name, "COMMENT,1\r\n");
    station.controller.replies["QT7250FILE "] = {"COMMENT,2\r\nENDFILE\r\n"};
    station.Load();
  }
  std::string Last() { return station.prompts.boxes.empty() ? "" : station.prompts.boxes.back().text; }
  // Once, in a wait of whatever runs.
  void Meanwhile(std::function<void()> act) {
    station.clock.onWait = [this, act = std::move(act), wait = station.clock.onWait,
                            done = false](int ms) mutable {
      if (!std::exchange(done, true)) act();
      wait(ms);
    };
  }
  void Press(const char* button) { Find<QPushButton>(station.Active<textjob::frmEdit>(), button).click(); }

  WindowStation station;
};

TEST_F(TransferMenu, EachKindOfFileHasItsFilterAndItsName) {
  struct Case {
    const char *menu, *filter, *extension, *command, *pattern;
  };
  const Case cases[] = {{"File", "TJB Files|*.TJB", "tjb", "QT7250DFILE A.XYZ", "*.TJB"},
                        {"Raster", "Raster Files|*.RAS", "RAS", "QT7250DLBIN A.XYZ,11,", nullptr},
                        {"DataMatrix", "Data Matrix Files|*.DM", "DM", "QT7250DFILE A.XYZ", "*.DM"},
                        {"Font", "Font Files|*.fnt", "fnt", "QT7250DFILE A.XYZ", "*.fnt"},
                        {"Fixture", "Fixture Files|*.fix", "fix", "QT7250DFILE A.XYZ", "*.FIX"},
                        {"Fill", "Fill Files|*.FIL", "fil", "QT7250DFILE A.XYZ", "*.FIL"},
                        {"Cap", "Cap Files|*.cap", "cap", "QT7250DFILE Default.cap", ""},
                        {"Scale", "Scale Files|*.sca", "sca", "QT7250DFILE Default.sca", ""},
                        {"Pallet", "Pallet Files|*.PAL", "pal", "QT7250DFILE A.XYZ", "*.PAL"},
                        {"Pressure", "Pressure Files|*.pre", "pre", "QT7250DFILE A.XYZ", "*.pre"},
                        {"Panel", "Panel Files|*.pan", "pan", "QT7250DFILE A.XYZ", "*.PAN"},
                        {"Target", "Target Files|*.TGT", "tgt", "QT7250DFILE A.XYZ", "*.TGT"},
                        {"Backup", "All Files|*.JOB;*.TJB;*.PAN;*.TOL;*.SET;*.FIX;*.CSV;*.TGT;*.DM", "",
                         "QT7250DFILE A.XYZ", nullptr},
                        {"Graphic", "Job Files|*.JOB|All Files|*.*", "job", "JOB A", nullptr}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.menu);
    const std::string menu = std::string("mnu") + c.menu;
    const std::string local = station.folder / (menu == "mnuGraphic" ? "A.JOB" : "A.XYZ");
    station.prompts.files.push_back({local});
    station.controller.wire.clear();
    station.Entry((menu + "Download").c_str()).trigger();
    EXPECT_EQ(station.prompts.requests.back().filter, c.filter);
    EXPECT_EQ(station.prompts.requests.back().defaultExtension, c.extension);
    EXPECT_TRUE(station.controller.wire.starts_with(c.command)) << station.controller.wire;
    EXPECT_EQ(Last(), "Download Complete");
    if (c.pattern == nullptr) continue;
    const bool listed = *c.pattern != '\0';
    station.controller.replies["QT7250FILES"] = {"A.XYZ\r\nNEW.XYZ\r\nENDFILE\r\n"};
    station.controller.wire.clear();
    if (listed) station.prompts.picks.push_back({"NEW.XYZ"});
    if (!listed) station.prompts.files.push_back({station.folder / "NEW.XYZ"});
    station.Entry((menu + "Upload").c_str()).trigger();
    const std::string list = listed ? std::string("QT7250FILES ") + c.pattern + "\r\n" : "";
    const std::string name = listed ? "NEW.XYZ" : std::string(c.command).substr(12);
    EXPECT_EQ(station.controller.wire, list + "QT7250FILE " + name + "\r\n");
    EXPECT_EQ(station.folder.Read("NEW.XYZ"), "COMMENT,2\r\n");
    EXPECT_EQ(Last(), "Upload Complete");
  }
}

TEST_F(TransferMenu, FetchedGraphicsAreShownWhenAskedFor) {
  station.controller.replies["QT7250JOBS"] = {"A\r\nB\r\nENDFILE\r\n"};
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    look.stop();
    EXPECT_FALSE(Find<QRadioButton>(*dialog, "optEditor").isEnabled());
    EXPECT_EQ(Find<QRadioButton>(*dialog, "optEditor").text(), "Use Graphic Editor");
    EXPECT_EQ(Find<QRadioButton>(*dialog, "optNone").text(), "Don't Display");
    Find<QRadioButton>(*dialog, "optToolViewer").click();
    EXPECT_EQ(Find<QRadioButton>(*dialog, "optToolViewer").text(), "Use Tool Viewer");
    Find<QListWidget>(*dialog, "List1").item(1)->setSelected(true);
    Find<QPushButton>(*dialog, "cmdUpload").click();
  });
  look.start(0);
  station.Entry("mnuGraphicUpload").trigger();
  EXPECT_EQ(station.Frame().ActiveForm()->windowTitle(), "Job Viewer - B.JOB");
  station.Entry("mnuGraphicUploadLastJob").trigger();
  EXPECT_EQ(station.Frame().ActiveForm()->windowTitle(), "Job Viewer - TEXTJOB.JOB");
}

TEST_F(TransferMenu, AnotherJobMayBeOpenedAndNoSecondCommandRunsMeanwhile) {
  station.windows.OpenFile(station.folder / "A.TJB");
  station.folder.Write("B.TJB", "COMMENT,other\r\n");
  std::size_t refused = 0;
  Meanwhile([&] {
    Press("cmdUpload");
    for (const app::MenuEntry& entry : app::MenuEntries()) {
      const std::string_view name(entry.name);
      if (!station.Entry(entry.name).isEnabled() || name.find("load") == name.npos) continue;
      station.Entry(entry.name).trigger();
      ++refused;
    }
    station.windows.OpenFile(station.folder / "B.TJB");
  });
  Press("cmdDownload");
  EXPECT_TRUE(station.controller.wire.starts_with("QT7250DFILE A.TJB\r\n")) << station.controller.wire;
  EXPECT_EQ(Last(), "Download Complete");
  EXPECT_EQ(station.prompts.boxes.size(), refused + 1);
  EXPECT_EQ(station.prompts.boxes[1].text,
            "The link to the machine is in use. Please wait until it is free.");
  EXPECT_EQ(station.job.Comment, "other");
}

}  // namespace
}  // namespace morvane::test
