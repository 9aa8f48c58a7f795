// Small operations on text in the core's single-byte code page, Windows-1252.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "common/text/CodePage.h"

namespace morvane::common {

// Case by the code page: letters above 127 have their capitals too.
char UpperChar(char c);
std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);
bool EqualIgnoringCase(std::string_view a, std::string_view b);
bool LessIgnoringCase(std::string_view a, std::string_view b);
bool StartsWith(std::string_view text, std::string_view start);

// Without one leading and one trailing double quote.
std::string StripQuotes(std::string_view text);
// Without leading, or trailing, characters of code below 33.
std::string TrimLeftControl(std::string_view text);
std::string TrimRightControl(std::string_view text);
// The text with `pad` added on that side until its length reaches `width`; a pad of several
// characters can overshoot. An empty pad changes nothing.
std::string PadLeft(std::string_view text, std::size_t width, std::string_view pad);
std::string PadRight(std::string_view text, std::size_t width, std::string_view pad);
// Every occurrence, from left to right, without looking at what was put in.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace morvane::common
