// Controls whose function this version does not have: visible, disabled, and they say so.
#pragma once

class QWidget;

namespace morvane::widgets {

inline constexpr const char* kNotAvailable = "Not available in this version yet";

void MarkNotAvailable(QWidget& control);

}  // namespace morvane::widgets
