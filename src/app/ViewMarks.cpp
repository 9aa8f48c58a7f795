#include "app/ViewMarks.h"

#include "common/Numbers.h"
#include "common/Settings.h"

namespace morvane::app {
namespace {

using context::ViewOptions;

constexpr ViewMark kMarks[] = {
    {"ViewToolPath", "mnuViewToolPath", &ViewOptions::toolPath},
    {"ViewGridLines", "mnuViewGridLines", &ViewOptions::gridLines},
    {"ViewBackgroundImage", "mnuViewBackgroundImage", &ViewOptions::backgroundImage},
    {"ViewFixture", "mnuViewFixture", &ViewOptions::fixture},
    {"ViewReferenceMarks", "mnuViewReferenceMarks", &ViewOptions::referenceMarks},
};

}  // namespace

std::span<const ViewMark> ViewMarks() {
  return kMarks;
}

void ReadViewMarks(const common::Settings& settings, ViewOptions& options) {
  const common::SettingsSnapshot snapshot = settings.Read();
  for (const ViewMark& mark : kMarks) {
    options.*mark.flag = common::StrictBoolean(snapshot.Get(common::kSettingsSection, mark.key, "False"));
  }
}

}  // namespace morvane::app
