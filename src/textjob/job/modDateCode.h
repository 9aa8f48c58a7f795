// Substitution of codes in text: dates, serial numbers of other jobs, hexadecimal escapes.
#pragma once

#include <string>
#include <string_view>

#include "common/files/Files.h"
#include "platform/Clock.h"
#include "platform/Locale.h"
#include "platform/Prompts.h"

namespace morvane::textjob {

// An expansion stops after this many rounds, and before the text would grow beyond this many characters:
// a serial number that holds its own section would grow for ever.
inline constexpr int kMaxExpansionRounds = 1000;
inline constexpr std::size_t kMaxExpandedLength = 1'048'576;

// Where expansions look: the time is read anew for each replacement.
struct ExpansionSources {
  const platform::Clock& clock;
  const platform::Locale& locale;
  const common::Files& files;
};

// All date tokens replaced; what is no token comes out in capitals. The treatment of a DateCode line.
std::string ExpandDateCode(std::string_view pattern, const ExpansionSources& sources);
// Every "$$...$$" and "%%...%%" section replaced. The treatment of Normal and Variable lines.
std::string ExpandText(std::string_view text, const ExpansionSources& sources);
// The text of the Serial line number `index` (from 1) of the job `name`.TJB; `name` itself when it is a
// number or there is no such line.
std::string SerialFromJob(const std::string& name, std::string_view index, const common::Files& files);
// Every "\x" and two hexadecimal digits replaced by the character of that code. A NUL or ^Z stops with
// a message.
std::string ExpandEscapes(std::string_view text, platform::Prompts& prompts);

}  // namespace morvane::textjob
