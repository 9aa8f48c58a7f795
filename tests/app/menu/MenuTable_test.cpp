// The menu table against what the program promises, and against the menus that are built from it.
#include "app/menu/MenuTable.h"

#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <map>
#include <set>

#include "support/qt_WindowStation.h"
#include "widgets/NotAvailable.h"

namespace morvane::test {
namespace {

QString Plain(const QString& caption) {
  return QString(caption).remove('&');
}

// Menus and captions in their order; "*" marks the entries that only engineers see.
const std::pair<const char*, const char*> kPromised[] = {
    {"File", "Open|Edit|Offset|Close|Save|Save As...|Download|Verify|Upload|Print|Exit"},
    {"Production", "Select|Manage"},
    {"Graphic",
     "Download|Upload|Import|Optimize|Generate|View|Edit Code|New Code|Jog and Teach Viewer|Check "
     "Measurements|Run G-Code|Open TEXTJOB.JOB*|Upload TEXTJOB.JOB"},
    {"Raster", "Download|Import"},
    {"Queue", "Add Job(s)|View"},
    {"Data Matrix", "New|Edit|Decode|Download|Upload"},
    {"Font", "Download|Upload|View|Edit|Create"},
    {"View",
     "History|Detailed History|Options...|Tool Path|Grid Lines|Reference Marks|Background "
     "Image|Fixture|Refresh"},
    {"Fixture", "Modify|Download|Upload"},
    {"Fill", "Modify|Edit Pumps|Download|Upload"},
    {"Cap", "Modify|Download|Upload"},
    {"Scale", "Modify|Download|Upload"},
    {"Pallet", "Modify|Download|Upload"},
    {"Pressure", "Modify|Download|Upload"},
    {"Panel", "Modify|Download|Upload"},
    {"Target", "Modify|Download|Upload"},
    {"Data Server", "Configure|Start|Stop|Refresh"},
    {"Remote", ""},
    {"Remote Diag", ""},
    {"Setup",
     "Download|Upload|Modify|Tools|Security|Periodic Events|Shifts|Download Software|Download "
     "Date/Time|Reboot Machine*|Auto Test*"},
    {"Backup",
     "Backup Controller|Restore Controller|Upload Files|Download Files|Delete Controller File|Open FTP for "
     "Upload"},
    {"Help", "Send Diagnostics Info To Morvane...|About Morvane..."}};

TEST(MenuTable, TheBarHoldsEveryPromisedEntryInItsOrder) {
  WindowStation station;
  const QList<QAction*> bar = station.Load().menuBar()->actions();
  ASSERT_EQ(bar.size(), static_cast<qsizetype>(std::size(kPromised)));
  for (std::size_t i = 0; i < std::size(kPromised); ++i) {
    const auto& [caption, entries] = kPromised[i];
    const QAction* action = bar[static_cast<qsizetype>(i)];
    EXPECT_EQ(Plain(action->text()), caption);
    QStringList found;
    if (action->menu() != nullptr) {
      for (const QAction* entry : action->menu()->actions()) {
        if (entry->isSeparator() || entry->menu() != nullptr) continue;
        found << Plain(entry->text()) + (entry->isVisible() ? "" : "*");
      }
    }
    EXPECT_EQ(found.join('|'), entries) << caption;
  }
}

TEST(MenuTable, NamesKeysAndMnemonicsAreUniqueAndHelpIsThere) {
  std::set<std::string> names;
  std::map<std::string, const char*> keys;
  std::map<std::string, std::set<QChar>> letters;
  const auto letter = [](const char* caption) {
    const QString text(caption);
    const qsizetype at = text.indexOf('&');
    return at < 0 ? QChar() : text[at + 1].toUpper();
  };
  for (const app::Menu& menu : app::Menus()) {
    const QChar mnemonic = letter(menu.caption);
    EXPECT_TRUE(mnemonic.isNull() || letters[""].insert(mnemonic).second) << menu.caption;
  }
  for (const app::MenuEntry& entry : app::MenuEntries()) {
    EXPECT_TRUE(names.insert(entry.name).second) << entry.name;
    EXPECT_GT(QString(entry.help).trimmed().size(), 8) << entry.name;
    const bool inBar = std::string_view(entry.menu) == entry.name;
    const QChar mnemonic = letter(entry.caption);
    EXPECT_TRUE(inBar || (!mnemonic.isNull() && letters[entry.menu].insert(mnemonic).second)) << entry.name;
    // Everything can be reached by a letter or a key.
    EXPECT_TRUE(!mnemonic.isNull() || *entry.keys != '\0') << entry.name;
    if (*entry.keys == '\0') continue;
    EXPECT_FALSE(QKeySequence(entry.keys).isEmpty()) << entry.name;
    const auto [other, fresh] = keys.emplace(QKeySequence(entry.keys).toString().toStdString(), entry.name);
    EXPECT_TRUE(fresh) << entry.name << " and " << other->second;
  }
}

// What an entry brings up: a child window, a modal dialog, a file dialog, a changed mark, the end.
TEST(MenuTable, BehindEachEntryIsAWindowADocumentOrAWordThatItIsMissing) {
  const std::map<std::string, std::string> windows = {
      {"mnuFileOpen", "frmEdit"},     {"mnuFileEdit", "frmEdit"},
      {"mnuFileSave", "frmEdit"},     {"mnuFileSaveAs", "frmEdit"},
      {"mnuViewRefresh", "frmEdit"},  {"mnuGraphicView", "frmGraphic"},
      {"mnuFontView", "frmFontView"}, {"mnuGraphicOpenLastJob", "frmGraphic"}};
  const std::map<std::string, std::string> dialogs = {
      {"mnuHelpAbout", "frmAbout"}, {"mnuViewOptions", "frmOptions"}, {"mnuFileOffset", "frmOffset"}};
  for (const app::MenuEntry& entry : app::MenuEntries()) {
    SCOPED_TRACE(entry.name);
    WindowStation station;
    station.developer = true;
    station.folder.Write("A.TJB", "COMMENT,\r\n");
    station.folder.Write("A.JOB", "G01X1Y1\r\n");
    app::frmMain& frame = station.Load();
    QAction& action = station.Entry(entry.name);
    if (entry.click == nullptr) {
      EXPECT_FALSE(action.isEnabled());
      EXPECT_TRUE(action.isVisible());
      EXPECT_EQ(action.toolTip(), widgets::kNotAvailable);
      continue;
    }
    ASSERT_TRUE(action.isEnabled());
    const bool graphic = std::string_view(entry.name).starts_with("mnuGraphic");
    station.prompts.files.push_back({station.folder / (graphic ? "A.JOB" : "A.TJB")});
    QString dialog;
    QTimer::singleShot(0, [&] {
      if (QWidget* modal = QApplication::activeModalWidget()) {
        dialog = modal->objectName();
        modal->close();
      }
    });
    const bool checked = action.isChecked();
    action.trigger();
    WindowStation::Pump();
    const QWidget* active = frame.ActiveForm();
    const std::string form = active == nullptr ? "" : active->objectName().toStdString();
    if (const auto found = windows.find(entry.name); found != windows.end()) {
      EXPECT_EQ(form, found->second);
    } else if (entry.kind == app::Kind::Check) {
      EXPECT_NE(action.isChecked(), checked);
    } else if (std::string_view(entry.name) == "mnuFileClose") {
      EXPECT_EQ(form, "");
    } else if (std::string_view(entry.name) == "mnuFileExit") {
      EXPECT_FALSE(frame.isVisible());
    } else if (const std::string_view name(entry.name);
               name.find("load") != name.npos || name == "mnuFileVerify") {
      EXPECT_FALSE(station.prompts.boxes.empty()) << "no controller answers";
    } else {
      EXPECT_EQ(dialog.toStdString(), dialogs.at(entry.name));
    }
  }
}

}  // namespace
}  // namespace morvane::test
