#include "common/text/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "common/RunTimeError.h"
#include "common/text/Text.h"

namespace morvane::common {
namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}
bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// from_chars reports a value that is too large and one that is too small alike: the decimal exponent of
// the first digit that is not zero tells them apart.
bool IsTooLarge(const char* first, const char* last) {
  long long exponent = 0;
  bool seen = false;
  bool behindPoint = false;
  const char* p = first;
  for (; p != last && *p != 'e' && *p != 'E'; ++p) {
    if (*p == '.') {
      behindPoint = true;
    } else if (seen || *p != '0') {
      seen = true;
      if (!behindPoint) ++exponent;
    } else if (behindPoint) {
      --exponent;
    }
  }
  if (p == last) return exponent > 0;
  ++p;
  const bool negative = p != last && *p == '-';
  if (p != last && (*p == '-' || *p == '+')) ++p;
  constexpr long long kFarBeyond = 1'000'000'000'000;
  long long written = 0;
  for (; p != last && written < kFarBeyond; ++p) written = written * 10 + (*p - '0');
  return exponent + (negative ? -written : written) > 0;
}

// Coordinates have either sign, which no branch predictor foresees.
constexpr double kSigns[] = {1, -1};
constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6, 1e7,
                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14};

const char* AddDigits(const char* p, const char* last, std::int64_t& digits) {
  for (; p != last && IsDigit(*p); ++p) digits = digits * 10 + (*p - '0');
  return p;
}

// Nearly all numbers of files are short and plain. Up to 15 digits and their power of ten are exact in a
// double, so that one division rounds as from_chars does, in half its time. Null when the number is of
// another kind; `p` is at a digit, or at a point with a digit behind it.
const char* ParsePlainDecimal(const char* p, const char* last, double& value) {
  constexpr std::ptrdiff_t kMostCharacters = 15;
  const char* const stop = last - p > kMostCharacters ? p + kMostCharacters : last;
  std::int64_t digits = 0;
  std::ptrdiff_t decimals = 0;
  p = AddDigits(p, stop, digits);
  if (p != stop && *p == '.') {
    const char* const behindPoint = p + 1;
    p = AddDigits(behindPoint, stop, digits);
    decimals = p - behindPoint;
  }
  if (p == stop ? stop != last : (*p == 'e' || *p == 'E')) return nullptr;
  value = static_cast<double>(digits) / kPowersOfTen[decimals];
  return p;
}

double ParseHexadecimal(const char* first, const char* last, const char*& end) {
  double value = 0;
  for (end = first; end != last; ++end) {
    const char c = UpperChar(*end);
    if (!IsDigit(c) && (c < 'A' || c > 'F')) break;
    const double next = value * 16 + (IsDigit(c) ? c - '0' : c - 'A' + 10);
    if (std::isfinite(next)) value = next;
  }
  return value;
}

template <typename Integer>
Integer Hold(double value) {
  constexpr double kLow = std::numeric_limits<Integer>::min();
  constexpr double kHigh = std::numeric_limits<Integer>::max();
  if (std::isnan(value)) return 0;
  if (value <= kLow) return std::numeric_limits<Integer>::min();
  if (value >= kHigh) return std::numeric_limits<Integer>::max();
  return static_cast<Integer>(std::nearbyint(value));
}

}  // namespace

double ParseNumber(std::string_view text, std::size_t& end) {
  const char* const start = text.data();
  const char* const last = start + text.size();
  const char* p = start;
  // Most fields of a file are one digit.
  if (text.size() == 1 && IsDigit(*p)) {
    end = 1;
    return *p - '0';
  }
  end = 0;
  while (p != last && IsBlank(*p)) ++p;
  if (last - p >= 2 && *p == '&' && (p[1] == 'H' || p[1] == 'h')) {
    const char* stop = p;
    const double value = ParseHexadecimal(p + 2, last, stop);
    if (stop != p + 2) end = static_cast<std::size_t>(stop - start);
    return value;
  }
  const bool negative = p != last && *p == '-';
  if (p != last && (*p == '-' || *p == '+')) ++p;
  // Words such as "nan" and "inf" are no numbers here, and from_chars would take them.
  if (p == last || !(IsDigit(*p) || (*p == '.' && p + 1 != last && IsDigit(p[1])))) return 0;
  double value = 0;
  if (const char* const plain = ParsePlainDecimal(p, last, value)) {
    end = static_cast<std::size_t>(plain - start);
    return kSigns[negative] * value;
  }
  const auto [stop, error] = std::from_chars(p, last, value);
  end = static_cast<std::size_t>(stop - start);
  if (error != std::errc()) value = IsTooLarge(p, stop) ? std::numeric_limits<double>::max() : 0;
  return negative ? -value : value;
}

double ParseNumber(std::string_view text) {
  std::size_t end = 0;
  return ParseNumber(text, end);
}

float ParseSingle(std::string_view text) {
  return ToSingle(ParseNumber(text));
}
std::int32_t ParseInt32(std::string_view text) {
  return ToInt32(ParseNumber(text));
}
std::int16_t ParseInt16(std::string_view text) {
  return ToInt16(ParseNumber(text));
}

float ToSingle(double value) {
  constexpr double kLimit = std::numeric_limits<float>::max();
  if (value > kLimit) return std::numeric_limits<float>::max();
  if (value < -kLimit) return std::numeric_limits<float>::lowest();
  return static_cast<float>(value);
}

std::int32_t ToInt32(double value) {
  return Hold<std::int32_t>(value);
}
std::int16_t ToInt16(double value) {
  return Hold<std::int16_t>(value);
}

bool IsNumeric(std::string_view text) {
  const std::string trimmed = TrimRightControl(text);
  std::size_t end = 0;
  ParseNumber(trimmed, end);
  return end != 0 && end == trimmed.size();
}

double StrictNumber(std::string_view text) {
  if (!IsNumeric(text)) throw RunTimeError(kTypeMismatch);
  return ParseNumber(text);
}

float StrictSingle(std::string_view text) {
  const double value = StrictNumber(text);
  if (std::fabs(value) > std::numeric_limits<float>::max()) throw RunTimeError(kOverflow);
  return static_cast<float>(value);
}

bool StrictBoolean(std::string_view text) {
  const std::string trimmed = TrimLeftControl(TrimRightControl(text));
  if (EqualIgnoringCase(trimmed, "True")) return true;
  if (EqualIgnoringCase(trimmed, "False")) return false;
  return StrictNumber(trimmed) != 0;
}

std::string PlainNumber(float value) {
  if (value == 0 || !std::isfinite(value)) return "0";
  constexpr int kSignificantDigits = 7;
  char buffer[32];
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, kSignificantDigits);
  return ToUpper(std::string_view(buffer, static_cast<std::size_t>(result.ptr - buffer)));
}

std::string PlainNumber(std::int32_t value) {
  char buffer[16];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

std::string ExactNumber(float value) {
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

}  // namespace morvane::common
