#include "link/wire/LineEnds.h"

#include "common/text/Lines.h"
#include "common/text/Text.h"

namespace morvane::link {

std::string StripLineEnds(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (c != '\r' && c != '\n') out += c;
  }
  return out;
}

std::string NormalizedLineEnds(std::string_view text) {
  std::string out = common::ReplaceAll(text, "\r\r\n", "\n");
  out = common::ReplaceAll(out, "\r\n", "\n");
  return common::ReplaceAll(out, "\n", "\r\n");
}

void NormalizeLineEnds(const common::Files& files, std::string_view name) {
  files.WriteStraight(name, NormalizedLineEnds(files.Read(name)));
}

std::vector<std::string> ReadLines(const common::Files& files, std::string_view name) {
  const std::string bytes = files.Read(name);
  std::vector<std::string> result;
  common::Lines lines(bytes);
  for (std::string_view line; lines.Next(line);) result.emplace_back(line);
  return result;
}

}  // namespace morvane::link
