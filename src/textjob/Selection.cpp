#include "textjob/Selection.h"

#include <algorithm>

#include "common/Tokenizer.h"

namespace morvane::textjob {
namespace {

std::string Join(const std::vector<std::string>& entries) {
  std::string text;
  for (const std::string& entry : entries) {
    if (!text.empty()) text += ',';
    text += entry;
  }
  return text;
}

}  // namespace

std::string SelectLines(const std::vector<int>& lines) {
  std::vector<std::string> entries;
  for (const int line : lines) entries.push_back(std::to_string(line));
  return Join(entries);
}

std::string ToggleLine(const std::string& selection, int line) {
  std::vector<std::string> entries = common::SplitText(selection, ",");
  if (std::erase(entries, std::to_string(line)) == 0) entries.push_back(std::to_string(line));
  return Join(entries);
}

}  // namespace morvane::textjob
