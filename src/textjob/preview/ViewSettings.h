// The check marks of the View menu in the settings.
#pragma once

#include <vector>

#include "common/Settings.h"
#include "textjob/preview/ViewOptions.h"

namespace morvane::textjob {

// The key, the mark and the command line's word of each entry: the one table of all three.
struct ViewMark {
  const char* key;
  bool ViewOptions::*mark;
  const char* word;
};

inline constexpr ViewMark kViewMarks[] = {
    {"ViewToolPath", &ViewOptions::ToolPath, "toolpath"},
    {"ViewGridLines", &ViewOptions::GridLines, "grid"},
    {"ViewReferenceMarks", &ViewOptions::ReferenceMarks, "marks"},
    {"ViewBackgroundImage", &ViewOptions::BackgroundImage, "background"},
    {"ViewFixture", &ViewOptions::Fixture, "fixture"},
};

// Text that is no boolean leaves a mark off.
ViewOptions ReadViewOptions(const common::SettingsSnapshot& settings);
// "True" and "False", for one write of the settings.
std::vector<common::SettingChange> ViewOptionChanges(const ViewOptions& options);

}  // namespace morvane::textjob
