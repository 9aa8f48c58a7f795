#include "widgets/prompts/QtPrompts.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "platform/qt/Operations.h"
#include "support/qt_WindowStation.h"
#include "widgets/prompts/FileFilter.h"
#include "widgets/prompts/QtWaitWindow.h"
#include "widgets/prompts/frmWait.h"

namespace morvane::test {
namespace {

using platform::Answer;
using platform::Buttons;

class QtPromptsTest : public ::testing::Test {
 protected:
  // What the user does as soon as a box is up.
  void WhenAsked(std::function<void(QWidget&)> act) {
    QTimer::singleShot(0, [this, act = std::move(act)] {
      EXPECT_TRUE(operations_.Running()) << "windows must not go under a box";
      ASSERT_NE(QApplication::activeModalWidget(), nullptr);
      act(*QApplication::activeModalWidget());
    });
  }

  bool abort_ = false;
  platform::Operations operations_{abort_};
  widgets::QtPrompts prompts_{operations_};
};

TEST_F(QtPromptsTest, BoxesGiveTheAnswerOfTheirButton) {
  const std::tuple<Buttons, Answer, Answer> cases[] = {{Buttons::Ok, Answer::Ok, Answer::Ok},
                                                       {Buttons::OkCancel, Answer::Ok, Answer::Cancel},
                                                       {Buttons::YesNo, Answer::Yes, Answer::No}};
  for (const auto& [buttons, onReturn, onEscape] : cases) {
    WhenAsked([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(prompts_.MsgBox("?", buttons, "Morvane"), onReturn);
    WhenAsked([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(prompts_.MsgBox("?", buttons, "Morvane"), onEscape);
  }
  WhenAsked([](QWidget& widget) {
    auto& box = dynamic_cast<QMessageBox&>(widget);
    EXPECT_EQ(box.text(), QString::fromUtf8("caf\u00E9 <b>\nline"));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "Title");
    box.hide();  // taken away without an answer
  });
  EXPECT_EQ(prompts_.MsgBox("caf\xE9 <b>\nline", Buttons::YesNo, "Title"), Answer::No);
}

TEST_F(QtPromptsTest, InputAndLists) {
  WhenAsked([](QWidget& box) {
    QTest::keyClick(box.focusWidget(), Qt::Key_End);
    QTest::keyClicks(box.focusWidget(), "2");
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_EQ(prompts_.InputBox("Name", "New", "A"), "A2");
  WhenAsked([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(prompts_.InputBox("Name", "New", "A"), std::nullopt);

  const std::vector<std::string> entries = {"A.JOB", "B.JOB", "C.JOB"};
  QString title;
  const auto chooseSecond = [&](QWidget& box) {
    title = box.windowTitle();
    auto& list = Find<QListWidget>(box, "List1");
    const QPoint second = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, second);
  };
  WhenAsked(chooseSecond);
  EXPECT_EQ(prompts_.PickOne("", entries), "B.JOB");
  EXPECT_EQ(title, "Select File");
  WhenAsked([](QWidget& box) { Find<QPushButton>(box, "cmdCancel").click(); });
  EXPECT_EQ(prompts_.PickOne("", entries), "");
  WhenAsked([](QWidget& box) {
    EXPECT_EQ(box.windowTitle(), "Select File to Upload");
    EXPECT_FALSE(Find<QPushButton>(box, "cmdUpload").isEnabled());
    Find<QListWidget>(box, "List1").selectAll();
    Find<QPushButton>(box, "cmdUpload").click();
  });
  EXPECT_EQ(prompts_.PickMany("", entries), entries);
  WhenAsked(chooseSecond);
  EXPECT_EQ(prompts_.PickMany("Select File to Delete", entries), std::vector<std::string>{entries[1]});
}

TEST_F(QtPromptsTest, FileDialogsStartAndEndAsTold) {
  const TempFolder folder;
  folder.Write("A.JOB", "");
  ASSERT_TRUE(QDir(QString::fromStdString(folder.Path())).mkdir("Temp"));
  prompts_.SetStation(QString::fromStdString(folder.Path()));
  QWidget* panel = nullptr;
  prompts_.SetSidePanel("job", [&](QFileDialog& dialog) { return panel = new QWidget(&dialog); });
  WhenAsked([&](QWidget& widget) {
    auto& dialog = dynamic_cast<QFileDialog&>(widget);
    EXPECT_EQ(dialog.windowTitle(), "Open File");
    EXPECT_EQ(dialog.directory().absolutePath(), QString::fromStdString(folder.Path()));
    EXPECT_TRUE(panel != nullptr && panel->isVisible());
    EXPECT_EQ(dialog.sidebarUrls().value(0), QUrl::fromLocalFile(dialog.directory().absolutePath()));
    const auto& list = Find<QTreeView>(dialog, "treeView");
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.model()->rowCount(list.rootIndex()) > 0; }));
    EXPECT_EQ(list.model()->index(0, 0, list.rootIndex()).data(), "A.JOB") << "and no scratch folder";
    dialog.findChild<QLineEdit*>()->setText("A.JOB");
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
  });
  const platform::FileDialogRequest request{"Open File", "Job Files|*.JOB", "JOB", "", folder.Path()};
  EXPECT_EQ(prompts_.OpenFile(request), folder / "A.JOB");
  WhenAsked([&](QWidget& widget) {
    EXPECT_EQ(dynamic_cast<QFileDialog&>(widget).acceptMode(), QFileDialog::AcceptSave);
    widget.findChild<QLineEdit*>()->setText("NEW");
    QTest::keyClick(widget.findChild<QLineEdit*>(), Qt::Key_Return);
  });
  EXPECT_EQ(prompts_.SaveFile(request), folder / "NEW.JOB") << "with the default extension";
  WhenAsked([](QWidget& widget) { widget.close(); });
  EXPECT_TRUE(prompts_.OpenFiles(request).empty());
}

TEST(FileFilter, FormsOfTheCore) {
  const std::pair<const char*, QStringList> cases[] = {
      {"TJB Files (*.TJB)|*.TJB", {"TJB Files (*.TJB *.tjb)"}},
      {"Image Files|*.bmp;*.Jpg|All Files|*.*",
       {"Image Files (*.bmp *.BMP *.Jpg *.jpg *.JPG)", "All Files (*.*)"}},
      {"broken", {}},
      {"", {}}};
  for (const auto& [filter, wanted] : cases) EXPECT_EQ(widgets::NameFilters(filter), wanted) << filter;
}

TEST(frmWait, ShowsItsTextAndIgnoresItsUser) {
  WindowStation station;
  station.Load();
  {
    widgets::QtWaitWindow wait(station.windows);
    wait.Show("Downloading A.TJB\n\nPlease Wait ...");
    auto* form = station.Frame().findChild<widgets::frmWait*>();
    ASSERT_TRUE(form != nullptr && form->isVisible());
    EXPECT_EQ(Find<QLabel>(*form, "Label1").text(), "Downloading A.TJB\n\nPlease Wait ...");
    form->close();
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
  }
  EXPECT_EQ(station.Frame().findChild<widgets::frmWait*>(), nullptr);
}

}  // namespace
}  // namespace morvane::test
