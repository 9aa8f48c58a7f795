#include "cli/GlobalArguments.h"

#include <algorithm>

#include "common/text/Numbers.h"
#include "common/text/Text.h"

namespace morvane::cli {
namespace {

bool IsLeapYear(int year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysIn(int year, int month) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return kDays[month - 1] + (month == 2 && IsLeapYear(year) ? 1 : 0);
}

// "YYYY-MM-DD HH:MM:SS", to the letter.
platform::DateTime ReadDateTime(const std::string& text) {
  constexpr std::string_view kForm = "0000-00-00 00:00:00";
  if (text.size() != kForm.size()) throw UsageError();
  for (std::size_t i = 0; i < kForm.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    if (kForm[i] == '0' ? !digit : text[i] != kForm[i]) throw UsageError();
  }
  const auto part = [&](std::size_t at, std::size_t length) {
    return common::ParseInt32(std::string_view(text).substr(at, length));
  };
  const platform::DateTime time{part(0, 4), part(5, 2), part(8, 2), part(11, 2), part(14, 2), part(17, 2)};
  const bool date = time.year >= 1 && time.month >= 1 && time.month <= 12 && time.day >= 1 &&
                    time.day <= DaysIn(time.year, time.month);
  if (!date || time.hour > 23 || time.minute > 59 || time.second > 59) throw UsageError();
  return time;
}

std::string TakeFirst(Arguments& arguments) {
  if (arguments.empty()) throw UsageError();
  std::string first = arguments.front();
  arguments.erase(arguments.begin());
  return first;
}

}  // namespace

GlobalOptions TakeGlobalOptions(Arguments& arguments) {
  GlobalOptions options;
  while (!arguments.empty() && common::StartsWith(arguments.front(), "--")) {
    const std::string name = TakeFirst(arguments);
    if (name == "--base") {
      options.base = TakeFirst(arguments);
    } else if (name == "--now") {
      options.now = ReadDateTime(TakeFirst(arguments));
    } else if (name == "--yes" || name == "--no") {
      options.yes = name == "--yes";
    } else {
      throw UsageError();
    }
  }
  return options;
}

const Command* TakeCommand(Arguments& arguments) {
  for (const Command& command : AllCommands()) {
    const std::size_t count = command.words.find(' ') == std::string_view::npos ? 1 : 2;
    if (arguments.size() < count) continue;
    const std::string words = count == 1 ? arguments[0] : arguments[0] + ' ' + arguments[1];
    if (words != command.words) continue;
    arguments.erase(arguments.begin(), arguments.begin() + static_cast<std::ptrdiff_t>(count));
    return &command;
  }
  return nullptr;
}

bool TakeFlag(Arguments& arguments, std::string_view name) {
  const auto found = std::find(arguments.begin(), arguments.end(), name);
  if (found == arguments.end()) return false;
  arguments.erase(found);
  return true;
}

std::string TakeValue(Arguments& arguments, std::string_view name, std::string_view fallback) {
  const auto found = std::find(arguments.begin(), arguments.end(), name);
  if (found == arguments.end()) return std::string(fallback);
  if (found + 1 == arguments.end()) throw UsageError();
  std::string value = *(found + 1);
  arguments.erase(found, found + 2);
  return value;
}

void Expect(const Arguments& arguments, std::size_t least, std::size_t most) {
  const auto isOption = [](const std::string& text) { return common::StartsWith(text, "--"); };
  if (arguments.size() < least || arguments.size() > most) throw UsageError();
  if (std::any_of(arguments.begin(), arguments.end(), isOption)) throw UsageError();
}

}  // namespace morvane::cli
