// FormatPicture of Numbers.h.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "common/text/Numbers.h"
#include "common/text/Text.h"

namespace morvane::common {
namespace {

// Pictures come from the settings: more places than this are cut.
constexpr int kMaxPlaces = 60;

struct Picture {
  std::string_view before;  // copied
  std::string_view behind;  // copied
  std::string whole;        // placeholders left of the point
  std::string fraction;     // placeholders right of the point
  bool point = false;
};

Picture Read(std::string_view text) {
  Picture picture;
  const std::size_t first = text.find_first_of("0#.");
  if (first == std::string_view::npos) {
    picture.before = text;
    return picture;
  }
  std::size_t end = first;
  for (; end < text.size(); ++end) {
    if (text[end] == '.' && !picture.point) {
      picture.point = true;
    } else if (text[end] == '0' || text[end] == '#') {
      std::string& side = picture.point ? picture.fraction : picture.whole;
      if (side.size() < kMaxPlaces) side += text[end];
    } else {
      break;
    }
  }
  picture.before = text.substr(0, first);
  picture.behind = text.substr(end);
  return picture;
}

// Far behind any place that a picture can ask for: a double so near to a half, and not one, is too small
// to show a digit at all. So "half" means half and not nearly so.
constexpr int kDigitsLookedAt = 2 * kMaxPlaces;

// The decimal digits of the value, rounded half away from zero at `places`.
void RoundDigits(double magnitude, std::size_t places, std::string& whole, std::string& fraction) {
  char buffer[512];  // 309 digits, a point and those looked at
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, magnitude, std::chars_format::fixed, kDigitsLookedAt);
  const std::string_view digits(buffer, static_cast<std::size_t>(result.ptr - buffer));
  const std::size_t point = digits.find('.');
  whole = digits.substr(0, point);
  fraction = digits.substr(point + 1, places);
  if (digits[point + 1 + places] < '5') return;
  std::string all = whole + fraction;
  std::size_t i = all.size();
  while (i > 0 && all[i - 1] == '9') all[--i] = '0';
  if (i > 0) {
    ++all[i - 1];
  } else {
    all.insert(all.begin(), '1');
  }
  whole = all.substr(0, all.size() - places);
  fraction = all.substr(all.size() - places);
}

}  // namespace

std::string FormatPicture(double value, std::string_view written) {
  const std::string text = ReplaceAll(written, ",", "");
  if (text.empty()) return PlainNumber(ToSingle(value));
  const Picture picture = Read(text);
  if (picture.whole.empty() && picture.fraction.empty()) return text;
  if (!std::isfinite(value)) value = 0;

  std::string whole;
  std::string fraction;
  RoundDigits(std::fabs(value), picture.fraction.size(), whole, fraction);
  const bool zero = (whole + fraction).find_first_not_of('0') == std::string::npos;

  whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
  const std::size_t firstZero = picture.whole.find('0');
  const std::size_t least = firstZero == std::string::npos ? 0 : picture.whole.size() - firstZero;
  if (whole.size() < least) whole.insert(0, least - whole.size(), '0');

  const std::size_t lastZero = picture.fraction.rfind('0');
  const std::size_t kept = lastZero == std::string::npos ? 0 : lastZero + 1;
  while (fraction.size() > kept && fraction.back() == '0') fraction.pop_back();

  std::string out(picture.before);
  if (value < 0 && !zero) out.insert(0, 1, '-');
  out += whole;
  if (picture.point) out += '.';
  out += fraction;
  out += picture.behind;
  return out;
}

}  // namespace morvane::common
