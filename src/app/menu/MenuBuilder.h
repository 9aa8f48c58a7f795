// Turns the menu table into the menu bar.
#pragma once

class QMenuBar;

namespace morvane::app {

class MenuActions;

// Every action and menu bears its name from the table as object name. Entries without a function are
// disabled and say so.
void BuildMenus(QMenuBar& bar, MenuActions& actions);

}  // namespace morvane::app
