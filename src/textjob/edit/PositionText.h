// The mouse position over the preview, as the status bar shows it.
#pragma once

#include <string>
#include <string_view>

#include "recipes/Fixture.h"

namespace morvane::textjob {

// "X , Y" in the picture `unitsFormat`; " Side N" follows while an index fixture is shown (else pass
// null). World units.
std::string PositionText(double x, double y, std::string_view unitsFormat, const recipes::Fixture* fixture);

}  // namespace morvane::textjob
