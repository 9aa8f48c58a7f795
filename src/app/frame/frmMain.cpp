#include "app/frame/frmMain.h"

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>

#include "app/AppWindows.h"
#include "app/Version.h"
#include "app/frame/MainStatusBar.h"
#include "app/frame/MdiChild.h"
#include "app/menu/FittedMenuBar.h"
#include "app/menu/MenuActions.h"
#include "app/menu/MenuBuilder.h"
#include "app/menu/MenuTable.h"
#include "common/Settings.h"
#include "common/files/Files.h"
#include "common/text/Numbers.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtText.h"
#include "textjob/preview/ViewSettings.h"

namespace morvane::app {

frmMain::frmMain(const context::AppContext& context, AppWindows& windows)
    : context_(context),
      windows_(windows),
      actions_(std::make_unique<MenuActions>(context, windows, *this)),
      area_(new QMdiArea(this)) {
  setObjectName("frmMain");
  area_->setObjectName("mdiArea");
  area_->setBackground(palette().brush(QPalette::Dark));
  area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  setCentralWidget(area_);
  setMenuBar(new FittedMenuBar(this));
  BuildMenus(*menuBar(), *actions_);
  BuildRecentFiles();
  BuildWindowList();
  auto* bar = new MainStatusBar(context.statusPanels, context.clock, this);
  setStatusBar(bar);
  connect(bar, &MainStatusBar::JobClicked, this, [this] { actions_->JobPanel_Click(); });
  connect(bar, &MainStatusBar::ConnectionClicked, this, [this] { actions_->mnuViewOptions_Click(); });
  connect(area_, &QMdiArea::subWindowActivated, this, [this] {
    EnableEntries();
    windows_.RedrawStaleJob();
  });
  setAcceptDrops(true);
}

// The child windows go after this, and would still tell which of them is active.
frmMain::~frmMain() {
  area_->disconnect(this);
}

void frmMain::MDIForm_Load() {
  context_.files.ClearTemp();
  for (const MenuEntry& entry : MenuEntries()) {
    if (entry.kind == Kind::Developer) Entry(entry.name)->setVisible(context_.developerMode);
  }
  Refresh();
  SetMainCaption();
  ReadGeometryAndMarks();
  windows_.ShowEditor();
  EnableEntries();
}

void frmMain::SetMainCaption() {
  setWindowTitle(MainCaption());
  const bool production =
      context_.settings.GetSetting(common::kSettingsSection, "EnableProduction", "0") == "1";
  findChild<QMenu*>("mnuProduction")->menuAction()->setVisible(production);
}

void frmMain::Refresh() {
  const common::SettingsSnapshot settings = context_.settings.Read();
  const auto get = [&](const char* key, const char* fallback) {
    return settings.Get(common::kSettingsSection, key, fallback);
  };
  findChild<QMenu*>("mnuProduction")->menuAction()->setVisible(get("EnableProduction", "0") == "1");
  windows_.RedrawActiveJob();
  constexpr int kNetwork = 5;
  const int port = common::ParseInt32(get("ComPort", "1"));
  context_.statusPanels.SetText(context::Panel::Connection, port == kNetwork ? platform::ToQt(get("IP", ""))
                                                                             : "COM" + QString::number(port));
}

void frmMain::ShowViewMarks() {
  for (const textjob::ViewMark& mark : textjob::kViewMarks) {
    const std::string entry = std::string("mnu") + mark.key;
    Entry(entry.c_str())->setChecked(context_.viewOptions.*mark.mark);
  }
}

MdiChild* frmMain::AddChild(QWidget* form) {
  auto* child = new MdiChild(form, context_.operations);
  area_->addSubWindow(child);
  child->show();
  return child;
}

QWidget* frmMain::ActiveForm() const {
  const QMdiSubWindow* child = area_->currentSubWindow();
  return child != nullptr && !child->isHidden() ? child->widget() : nullptr;
}

QAction* frmMain::Entry(const char* name) const {
  return menuBar()->findChild<QAction*>(name);
}

void frmMain::EnableEntries() {
  const bool job = windows_.EditorIsActive();
  for (const MenuEntry& entry : MenuEntries()) {
    if (entry.needs == Needs::Job && entry.click != nullptr) Entry(entry.name)->setEnabled(job);
  }
}

}  // namespace morvane::app
