#include "textjob/job/ParsedLines.h"

#include "textjob/job/modTjb.h"

namespace morvane::textjob {

const TextJobLine& ParsedLines::Get(std::size_t index, const std::string& text) {
  if (index >= entries_.size()) entries_.resize(index + 1, {std::string(), ParseTjbLine(std::string_view())});
  Entry& entry = entries_[index];
  if (entry.text != text) entry = {text, ParseTjbLine(text)};
  return entry.line;
}

}  // namespace morvane::textjob
