// The one place where numbers become text and text becomes numbers. Never locale-dependent.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace morvane::common {

// Prefix parse: leading blanks, a sign, digits, one point and an exponent as far as they go, or "&H" and
// hexadecimal digits. Text without a number gives 0. Values beyond a double are held at its limit.
double ParseNumber(std::string_view text);
// The same, and where the number ended: `end` counts characters from the start of `text`.
double ParseNumber(std::string_view text, std::size_t& end);
// The prefix parse stored into a field's width: held at the field's limit; integers round to the
// nearest, ties to even.
float ParseSingle(std::string_view text);
std::int32_t ParseInt32(std::string_view text);
std::int16_t ParseInt16(std::string_view text);

float ToSingle(double value);
std::int32_t ToInt32(double value);
std::int16_t ToInt16(double value);

// Strict conversions: the whole text (blanks around it apart) must be a number. Throw "Type mismatch",
// and "Overflow" when the value does not fit.
bool IsNumeric(std::string_view text);
double StrictNumber(std::string_view text);
float StrictSingle(std::string_view text);
// "True" and "False" in any case, or a number that is true when it is not 0. Throws "Type mismatch".
bool StrictBoolean(std::string_view text);

// Shortest general form with at most seven significant digits: "0", "0.125", "-1.5", "1E+10".
std::string PlainNumber(float value);
std::string PlainNumber(std::int32_t value);
// Shortest text that reads back to the same float, with an exponent where that is shorter.
std::string ExactNumber(float value);

// A picture such as "0.000", "0.00##", "#.###", "00.0": `0` always shows a digit, `#` shows one unless
// it would be a leading or trailing zero. Half rounds away from zero; a value that rounds to zero has no
// sign. Characters before the first and behind the last placeholder are copied, but no comma: it would end
// the number's field in a job line. An empty picture gives the plain number.
std::string FormatPicture(double value, std::string_view picture);

}  // namespace morvane::common
