// The records of a job's lines as the last drawing pass parsed them. A redraw after an edit parses only
// what the edit changed.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "textjob/job/TextJobLine.h"

namespace morvane::textjob {

class ParsedLines {
 public:
  // The record of `text`, which stands at `index` of the job. Valid until the next call.
  const TextJobLine& Get(std::size_t index, const std::string& text);

 private:
  struct Entry {
    std::string text;
    TextJobLine line;
  };
  std::vector<Entry> entries_;
};

}  // namespace morvane::textjob
