#include "textjob/job/modDateCode.h"

#include <algorithm>

#include "common/RunTimeError.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "textjob/job/modTjb.h"

namespace morvane::textjob {
namespace {

using common::ReplaceAll;
using platform::DateTime;

constexpr int kDaysBeforeMonth[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};

bool IsLeapYear(int year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

// 1 January is day 1.
int DayOfYear(const DateTime& date) {
  const int leapDay = date.month > 2 && IsLeapYear(date.year) ? 1 : 0;
  return kDaysBeforeMonth[date.month - 1] + date.day + leapDay;
}

// Sunday is 0. Gauss's formula.
int WeekdayOfNewYear(int year) {
  const int last = year - 1;
  return (1 + 5 * (last % 4) + 4 * (last % 100) + 6 * (last % 400)) % 7;
}

// Weeks begin on Sunday; week 1 holds 1 January.
int WeekOfYear(const DateTime& date) {
  return (DayOfYear(date) - 1 + WeekdayOfNewYear(date.year)) / 7 + 1;
}

std::string Number(int value) {
  return common::PlainNumber(std::int32_t{value});
}

std::string Padded(long long value, std::size_t digits) {
  const std::string text = std::to_string(value < 0 ? -value : value);
  return (value < 0 ? "-" : "") + common::PadLeft(text, digits, "0");
}

using Replacement = std::string (*)(const DateTime&, const platform::Locale&);

struct Token {
  std::string_view token;
  Replacement replacement;
};

// In the order in which they are tried.
constexpr Token kTokens[] = {
    {"YYYY", [](const DateTime& t, const platform::Locale&) { return Padded(t.year, 4); }},
    {"YY", [](const DateTime& t, const platform::Locale&) { return Padded(t.year % 100, 2); }},
    {"YR", [](const DateTime& t, const platform::Locale&) { return Number(t.year % 100); }},
    {"MMM", [](const DateTime& t, const platform::Locale& locale) { return locale.MonthShortName(t.month); }},
    {"MM", [](const DateTime& t, const platform::Locale&) { return Padded(t.month, 2); }},
    {"DD", [](const DateTime& t, const platform::Locale&) { return Padded(t.day, 2); }},
    {"DY", [](const DateTime& t, const platform::Locale&) { return Number(DayOfYear(t)); }},
    {"DJ", [](const DateTime& t, const platform::Locale&) { return Padded(DayOfYear(t), 3); }},
    {"WY", [](const DateTime& t, const platform::Locale&) { return Number(WeekOfYear(t)); }},
    {"HH",
     [](const DateTime& t, const platform::Locale&) { return Number(t.hour >= 13 ? t.hour - 12 : t.hour); }},
    {"HR", [](const DateTime& t, const platform::Locale&) { return Number(t.hour); }},
    {"MN", [](const DateTime& t, const platform::Locale&) { return Padded(t.minute, 2); }},
    {"SS", [](const DateTime& t, const platform::Locale&) { return Padded(t.second, 2); }},
};

constexpr std::string_view kDayToken = "DJ";

bool IsSign(std::string_view text, std::size_t at) {
  return at < text.size() && (text[at] == '+' || text[at] == '-');
}

std::size_t EndOfDigits(std::string_view text, std::size_t from) {
  while (from < text.size() && text[from] >= '0' && text[from] <= '9') ++from;
  return from;
}

// One spelling of the day token - bare, or with a sign and digits - replaced everywhere; other spellings
// are left to later rounds.
std::string ReplaceDay(std::string_view text, std::size_t first, const DateTime& now) {
  const auto spellingAt = [&](std::size_t at) {
    const std::size_t behind = at + kDayToken.size();
    return text.substr(at, (IsSign(text, behind) ? EndOfDigits(text, behind + 1) : behind) - at);
  };
  const std::string_view spelling = spellingAt(first);
  constexpr double kMaxOffset = 1e15;
  const double offset = std::min(
      common::ParseNumber(spelling.substr(std::min(kDayToken.size() + 1, spelling.size()))), kMaxOffset);
  const bool minus = spelling.size() > kDayToken.size() && spelling[kDayToken.size()] == '-';
  const auto days = static_cast<long long>(offset);
  const std::string value = Padded(DayOfYear(now) + (minus ? -days : days), 3);

  std::string out;
  std::size_t from = 0;
  for (std::size_t at = first; at != std::string_view::npos; at = text.find(kDayToken, at)) {
    const std::string_view found = spellingAt(at);
    out += text.substr(from, at - from);
    out += found == spelling ? std::string_view(value) : found;
    at += found.size();
    from = at;
  }
  return out += text.substr(from);
}

// The first token present, replaced; the text itself when there is none.
std::string ReplaceOneToken(const std::string& text, const ExpansionSources& sources) {
  for (const Token& entry : kTokens) {
    const std::size_t first = text.find(entry.token);
    if (first == std::string::npos) continue;
    const DateTime now = sources.clock.Now();
    if (entry.token == kDayToken) return ReplaceDay(text, first, now);
    return ReplaceAll(text, entry.token, entry.replacement(now, sources.locale));
  }
  return text;
}

// Every occurrence replaced, unless the text would grow beyond the limit: then it stays as it is.
std::string ReplaceSection(const std::string& text, const std::string& section, const std::string& value) {
  if (value.size() > kMaxExpandedLength) return text;
  std::size_t count = 0;
  for (std::size_t at = text.find(section); at != std::string::npos;
       at = text.find(section, at + section.size())) {
    ++count;
  }
  if (text.size() + count * value.size() > kMaxExpandedLength) return text;
  return ReplaceAll(text, section, value);
}

// The first two marks and what stands between them: false when there are not two.
bool FindSection(std::string_view text, std::string_view mark, std::string& section, std::string& inner) {
  const std::size_t first = text.find(mark);
  if (first == std::string_view::npos) return false;
  const std::size_t second = text.find(mark, first + mark.size());
  if (second == std::string_view::npos) return false;
  inner = text.substr(first + mark.size(), second - first - mark.size());
  section = text.substr(first, second + mark.size() - first);
  return true;
}

std::string SectionValue(const std::string& inner, const common::Files& files) {
  const std::size_t point = inner.find('.');
  if (point == std::string::npos) return inner;
  return SerialFromJob(inner.substr(0, point), std::string_view(inner).substr(point + 1), files);
}

}  // namespace

std::string ExpandDateCode(std::string_view pattern, const ExpansionSources& sources) {
  std::string text(pattern);
  // Capitals ask for the month's name in capitals; folding the text first would lose that.
  for (int round = 0; round < kMaxExpansionRounds && text.find("MMM") != std::string::npos; ++round) {
    text = ReplaceAll(text, "MMM", common::ToUpper(sources.locale.MonthShortName(sources.clock.Now().month)));
  }
  text = common::ToUpper(text);
  for (int round = 0; round < kMaxExpansionRounds && text.size() <= kMaxExpandedLength; ++round) {
    std::string next = ReplaceOneToken(text, sources);
    if (next == text) break;
    text = std::move(next);
  }
  return text;
}

std::string ExpandText(std::string_view input, const ExpansionSources& sources) {
  std::string text(input);
  std::string section;
  std::string inner;
  for (int round = 0; round < kMaxExpansionRounds && text.size() <= kMaxExpandedLength; ++round) {
    std::string next = text;
    if (FindSection(next, "$$", section, inner)) {
      next = ReplaceSection(next, section, ExpandDateCode(inner, sources));
    }
    if (FindSection(next, "%%", section, inner)) {
      next = ReplaceSection(next, section, SectionValue(inner, sources.files));
    }
    if (next == text) break;
    text = std::move(next);
  }
  return text;
}

std::string SerialFromJob(const std::string& name, std::string_view index, const common::Files& files) {
  if (common::IsNumeric(name)) return name;
  TextJob job;
  try {
    ReadTjb(*files.ReadKeptInside(name + ".TJB"), job);
  } catch (const common::RunTimeError&) {
    // A job that is missing has no lines; one that is too long has those that fit.
  }
  double left = common::ParseNumber(index);
  for (const std::string& text : job.Lines) {
    const TextJobLine line = ParseTjbLine(text);
    if (line.Type == kSerial && --left == 0) return line.Text;
  }
  return name;
}

std::string ExpandEscapes(std::string_view input, platform::Prompts& prompts) {
  constexpr std::string_view kMark = "\\x";
  constexpr std::size_t kLength = 4;
  constexpr int kNull = 0;
  constexpr int kEndOfFile = 26;
  std::string text(input);
  for (int round = 0; round < kMaxExpansionRounds; ++round) {
    const std::size_t at = text.find(kMark);
    if (at == std::string::npos || at + kLength > text.size()) break;
    const std::string escape = text.substr(at, kLength);
    const int code = common::ParseInt16("&H" + escape.substr(kMark.size()));
    if (code == kNull || code == kEndOfFile) {
      prompts.MsgBox("Escape sequence code NULL(\\x00) and ^Z(\\x1A) are not supported.");
      break;
    }
    text = ReplaceAll(text, escape, std::string(1, static_cast<char>(code)));
  }
  return text;
}

}  // namespace morvane::textjob
