#include "textjob/edit/PositionText.h"

#include <cmath>

#include "common/text/Numbers.h"

namespace morvane::textjob {

std::string PositionText(double x, double y, std::string_view unitsFormat, const recipes::Fixture* fixture) {
  std::string text = common::FormatPicture(x, unitsFormat) + " , " + common::FormatPicture(y, unitsFormat);
  if (fixture == nullptr || fixture->Type != recipes::kFixtureIndex || fixture->Flat <= 0) return text;
  const double side = std::trunc(y / fixture->Flat) + 1;
  return text + " Side " + common::PlainNumber(common::ToInt32(side));
}

}  // namespace morvane::textjob
