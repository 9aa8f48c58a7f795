// The check marks of the View menu in the settings.
#pragma once

#include <vector>

#include "common/Settings.h"
#include "textjob/ViewOptions.h"

namespace morvane::textjob {

// The key and the mark of each entry: the one table of menu, settings and command line.
struct ViewMark {
  const char* key;
  bool ViewOptions::*mark;
};

inline constexpr ViewMark kViewMarks[] = {
    {"ViewToolPath", &ViewOptions::ToolPath},
    {"ViewGridLines", &ViewOptions::GridLines},
    {"ViewReferenceMarks", &ViewOptions::ReferenceMarks},
    {"ViewBackgroundImage", &ViewOptions::BackgroundImage},
    {"ViewFixture", &ViewOptions::Fixture},
};

// Text that is no boolean leaves a mark off.
ViewOptions ReadViewOptions(const common::SettingsSnapshot& settings);
// "True" and "False", for one write of the settings.
std::vector<common::SettingChange> ViewOptionChanges(const ViewOptions& options);

}  // namespace morvane::textjob
