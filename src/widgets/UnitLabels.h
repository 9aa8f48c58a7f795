// The labels of lengths, which carry the unit of the settings.
#pragma once

class QWidget;

namespace morvane::common {
class Settings;
}

namespace morvane::widgets {

// Sets those that the form has, by their names in the table of options.
void ShowUnits(const QWidget& form, const common::Settings& settings);

}  // namespace morvane::widgets
