// The parts of the menus that change while the program runs: recent files and open windows.
#include <QMdiArea>
#include <QMenu>

#include "app/AppWindows.h"
#include "app/RecentFiles.h"
#include "app/frame/MdiChild.h"
#include "app/frame/frmMain.h"
#include "app/menu/MenuActions.h"
#include "common/files/FileNames.h"
#include "context/AppContext.h"
#include "platform/qt/QtText.h"

namespace morvane::app {
namespace {

QString Numbered(int number, QString text) {
  return QString("&%1 %2").arg(number).arg(text.replace("&", "&&"));
}

}  // namespace

void frmMain::BuildRecentFiles() {
  auto* file = findChild<QMenu*>("mnuFile");
  auto* recent = new QMenu(tr("&Recent Files"), this);
  recent->setObjectName("mnuFileRecent");
  recent->menuAction()->setStatusTip(tr("Open a file that was used lately"));
  file->insertMenu(Entry("mnuFileExit"), recent);
  connect(file, &QMenu::aboutToShow, this, &frmMain::ShowRecentFiles);
}

void frmMain::ShowRecentFiles() {
  auto* recent = findChild<QMenu*>("mnuFileRecent");
  recent->clear();
  int number = 0;
  for (const std::string& path : RecentFiles(context_.settings)) {
    QAction* action = recent->addAction(Numbered(++number, platform::PathToQt(common::PathFileName(path))));
    action->setStatusTip(platform::PathToQt(path));
    connect(action, &QAction::triggered, this, [this, path] { windows_.OpenFile(path); });
  }
  recent->setEnabled(number > 0);
}

void frmMain::BuildWindowList() {
  auto* view = findChild<QMenu*>("mnuView");
  auto* list = view->addMenu(tr("&Windows"));
  list->setObjectName("mnuViewWindows");
  list->menuAction()->setStatusTip(tr("Bring a window to the front, or arrange all of them"));
  connect(view, &QMenu::aboutToShow, this, &frmMain::ShowWindowList);
}

void frmMain::ShowWindowList() {
  auto* list = findChild<QMenu*>("mnuViewWindows");
  list->clear();
  list->addAction(tr("&Tile"), area_, &QMdiArea::tileSubWindows)
      ->setStatusTip(tr("Put all windows side by side"));
  list->addAction(tr("&Cascade"), area_, &QMdiArea::cascadeSubWindows)
      ->setStatusTip(tr("Put all windows one over the other"));
  list->addSeparator();
  int number = 0;
  for (QMdiSubWindow* child : area_->subWindowList(QMdiArea::CreationOrder)) {
    if (child->isHidden()) continue;
    QAction* action = list->addAction(Numbered(++number, child->windowTitle().remove("[*]")));
    action->setCheckable(true);
    action->setChecked(child == area_->currentSubWindow());
    connect(action, &QAction::triggered, child, [this, child] { area_->setActiveSubWindow(child); });
  }
}

}  // namespace morvane::app
