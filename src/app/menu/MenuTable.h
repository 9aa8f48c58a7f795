// The menu bar as data: the frame builds its menus, keys and help lines from this one table.
#pragma once

#include <span>

namespace morvane::app {

class MenuActions;

struct Menu {
  const char* name;
  const char* caption;
};

enum class Needs { Nothing, Job };  // Job: the text job editor must be the active window
enum class Kind { Plain, Check, Developer };

struct MenuEntry {
  const char* menu;  // name of the menu; the entry's own name when it stands in the bar itself
  const char* name;
  const char* caption;
  const char* keys;
  const char* help;                        // one line for the status bar
  void (MenuActions::*click)() = nullptr;  // null: not available in this version
  Needs needs = Needs::Nothing;
  Kind kind = Kind::Plain;
  bool separator = false;  // a line stands above the entry
};

// In the order of the bar.
std::span<const Menu> Menus();
// In the order of the menus.
std::span<const MenuEntry> MenuEntries();

}  // namespace morvane::app
