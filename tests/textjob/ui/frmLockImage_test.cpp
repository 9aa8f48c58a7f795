#include "textjob/ui/frmLockImage.h"

#include <QComboBox>

#include "support/qt_WindowStation.h"
#include "textjob/ui/frmEdit.h"

namespace morvane::test {
namespace {

class frmLockImageTest : public ::testing::Test {
 protected:
  frmLockImageTest() {
    station.folder.Write("A.TJB", "COMMENT,old\r\n");
    for (const char* name : {"P.bmp", "Q.gif"}) station.folder.Write(name, "");
    station.Load();
    station.windows.OpenFile(station.folder / "A.TJB");
  }
  QPushButton& Button() { return Find<QPushButton>(station.Active<textjob::frmEdit>(), "CmdLockImage"); }
  // Presses the button and goes through the dialog.
  void Lock(std::function<void(QDialog&)> act) {
    QTimer::singleShot(0, [act = std::move(act)] {
      auto& dialog = *qobject_cast<QDialog*>(QApplication::activeModalWidget());
      act(dialog);
      if (dialog.isVisible()) dialog.reject();
    });
    Button().click();
  }
  static QString Shown(QDialog& dialog) {
    QString text = Find<QComboBox>(dialog, "cmbImage").currentText();
    for (const char* name : {"txtImageX", "txtImageY", "txtImageWidth", "txtImageHeight"}) {
      text += ' ' + Find<QLineEdit>(dialog, name).text();
    }
    return text;
  }
  static void Choose(QDialog& dialog, const char* image) {
    auto& list = Find<QComboBox>(dialog, "cmbImage");
    list.setCurrentText(image);
    emit list.activated(list.currentIndex());
  }
  std::string List() { return station.folder.Read("LockImages.txt"); }

  WindowStation station;
};

TEST_F(frmLockImageTest, LocksUnlocksAndSaysSoOnTheButton) {
  station.Set("BackgroundImage", "Q.gif");
  station.Set("BackgroundImageX", "1");
  station.Set("P.bmp", "5,6,7,8.5");
  EXPECT_EQ(Button().text(), "&Lock Image");
  station.job.Comment = "new";
  station.job.Dirty = true;
  Lock([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Lock Image to Job");
    EXPECT_EQ(Shown(dialog), "Q.gif 1 0 2 2") << "the options' image";
    Choose(dialog, "P.bmp");
    EXPECT_EQ(Shown(dialog), "P.bmp 5 6 7 8.5");
    Find<QPushButton>(dialog, "cmdOk").click();
  });
  EXPECT_EQ(station.folder.Read("A.TJB"), "COMMENT,new\r\n") << "saved first";
  EXPECT_EQ(List(), "A.TJB,P.bmp,5,6,7,8.5\r\n");
  EXPECT_EQ(Button().text(), "P.bmp");
  Lock([](QDialog& dialog) {
    Choose(dialog, "");
    Find<QPushButton>(dialog, "cmdOk").click();
  });
  EXPECT_EQ(Button().text(), "&Empty Image");
  Lock([](QDialog& dialog) { Find<QPushButton>(dialog, "cmdUnlock").click(); });
  EXPECT_EQ(List(), "");
}

TEST_F(frmLockImageTest, ImportsAnImageAndTellsWhatFails) {
  TempFolder elsewhere;
  elsewhere.Write("N,1.bmp", "picture");
  station.prompts.files = {{elsewhere / "N,1.bmp"}, {elsewhere / "GONE.bmp"}};
  Lock([&](QDialog& dialog) {
    auto& import = Find<QPushButton>(dialog, "cmdImport");
    import.click();
    EXPECT_EQ(Shown(dialog), "N,1.bmp 0 0 4 4");
    EXPECT_EQ(station.folder.Read("N,1.bmp"), "picture");
    import.click();
    Find<QPushButton>(dialog, "cmdOk").click();
    Choose(dialog, "P.bmp");
    station.fileSystem.full = true;
    Find<QPushButton>(dialog, "cmdOk").click();
    Find<QPushButton>(dialog, "cmdUnlock").click();
    EXPECT_TRUE(dialog.isVisible());
  });
  EXPECT_EQ(station.prompts.Texts(),
            (std::vector<std::string>{"cmdImport_Click-File not found", "cmdOk_Click-Path/File access error",
                                      "cmdOk_Click-Disk full", "cmdUnlock_Click-Disk full"}));
  // A job that cannot be saved is not locked.
  Button().click();
  EXPECT_EQ(station.prompts.Texts().back(), "Save(A.TJB) Disk full");
}

}  // namespace
}  // namespace morvane::test
