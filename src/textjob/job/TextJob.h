// The one text job of the process: its lines as text, unparsed, and what the editor knows about them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace morvane::textjob {

// `Lines` has indices 0 to 1000.
inline constexpr std::size_t kMaxLines = 1001;
// The entry of the job selector that stands for a job without a file.
inline constexpr const char* kNewJob = "<NEW>";

struct TextJob {
  std::string Comment;             // without its "COMMENT," prefix
  std::vector<std::string> Lines;  // each as it stands in the file
  bool Dirty = false;              // something changed since load or save
  std::string Selection;           // selected line indices in decimal, separated by commas; may be empty

  std::size_t LineCount() const { return Lines.size(); }
};

}  // namespace morvane::textjob
