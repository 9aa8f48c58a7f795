#include "textjob/preview/ViewSettings.h"

#include "common/RunTimeError.h"
#include "common/text/Numbers.h"

namespace morvane::textjob {

ViewOptions ReadViewOptions(const common::SettingsSnapshot& settings) {
  ViewOptions options;
  for (const ViewMark& entry : kViewMarks) {
    try {
      options.*entry.mark = common::StrictBoolean(settings.Get(common::kSettingsSection, entry.key, "False"));
    } catch (const common::RunTimeError&) {
      options.*entry.mark = false;
    }
  }
  return options;
}

std::vector<common::SettingChange> ViewOptionChanges(const ViewOptions& options) {
  std::vector<common::SettingChange> changes;
  for (const ViewMark& entry : kViewMarks) {
    changes.push_back(
        {std::string(common::kSettingsSection), entry.key, options.*entry.mark ? "True" : "False", false});
  }
  return changes;
}

}  // namespace morvane::textjob
