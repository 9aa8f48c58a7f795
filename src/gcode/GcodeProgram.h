// A job in memory: its statements in their small form, so that drawings and measurements repeat without
// reading the text again.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "gcode/Statement.h"

namespace morvane::gcode {

// A program holds at most this many statements, 240 MB; what stands behind them is left out.
inline constexpr std::size_t kMaxStatements = 10'000'000;

// Kept in blocks: a large job grows without moving what is there.
class GcodeProgram {
 public:
  // A fresh statement at the end, to be filled in place.
  Statement& Append();
  void DropLast();
  std::size_t Size() const { return size_; }
  std::size_t KeptBytes() const { return size_ * sizeof(Statement); }

  // Calls `visit(const Statement&)` in the order of the text.
  template <typename Visit>
  void ForEach(Visit&& visit) const {
    for (const std::vector<Statement>& block : blocks_) {
      for (const Statement& statement : block) visit(statement);
    }
  }

 private:
  std::vector<std::vector<Statement>> blocks_;
  std::size_t size_ = 0;
};

// Reads the text of a job. Unknown lines are left out, but for one behind a tool change: measuring needs
// to know of it. The editor reads with `foldToCapitals`.
GcodeProgram ReadProgram(std::string_view text, bool foldToCapitals = false);
// What the viewers and the preview of a job draw: without folding.
GcodeProgram ParseProgram(std::string_view text);

}  // namespace morvane::gcode
