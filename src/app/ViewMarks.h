// The five check marks of the View menu: their keys in the settings and their menu entries.
#pragma once

#include <span>

#include "context/ViewOptions.h"

namespace morvane::common {
class Settings;
}

namespace morvane::app {

struct ViewMark {
  const char* key;
  const char* entry;
  bool context::ViewOptions::*flag;
};

std::span<const ViewMark> ViewMarks();

// Throws "Type mismatch" when a key holds no boolean; the marks read before it stand.
void ReadViewMarks(const common::Settings& settings, context::ViewOptions& options);

}  // namespace morvane::app
