#include "app/menu/MenuBuilder.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <string_view>

#include "app/menu/MenuActions.h"
#include "app/menu/MenuTable.h"
#include "widgets/NotAvailable.h"

namespace morvane::app {
namespace {

QAction* MakeAction(const MenuEntry& entry, QMenuBar& bar, MenuActions& actions) {
  auto* action = new QAction(entry.caption, &bar);
  action->setObjectName(entry.name);
  action->setShortcut(QKeySequence(entry.keys));
  action->setCheckable(entry.kind == Kind::Check);
  if (entry.click == nullptr) {
    action->setEnabled(false);
    action->setToolTip(widgets::kNotAvailable);
    action->setStatusTip(QString("%1 (%2)").arg(entry.help, QString(widgets::kNotAvailable).toLower()));
    return action;
  }
  action->setToolTip(entry.help);
  action->setStatusTip(entry.help);
  QObject::connect(action, &QAction::triggered, &bar, [&actions, &entry] { (actions.*entry.click)(); });
  return action;
}

}  // namespace

void BuildMenus(QMenuBar& bar, MenuActions& actions) {
  for (const Menu& menu : Menus()) {
    QMenu* drop = nullptr;
    for (const MenuEntry& entry : MenuEntries()) {
      if (std::string_view(entry.menu) != menu.name) continue;
      QAction* action = MakeAction(entry, bar, actions);
      if (std::string_view(entry.name) == menu.name) {
        bar.addAction(action);
        continue;
      }
      if (drop == nullptr) {
        drop = bar.addMenu(menu.caption);
        drop->setObjectName(menu.name);
        drop->setToolTipsVisible(true);
      }
      if (entry.separator) drop->addSeparator();
      drop->addAction(action);
    }
  }
}

}  // namespace morvane::app
