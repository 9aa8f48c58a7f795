// What one change did to the lines of a job: only the pieces of text that differ, so that thousands of
// changes of a large job can be kept.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace morvane::textjob {

class LineDifference {
 public:
  LineDifference() = default;
  LineDifference(const std::vector<std::string>& before, const std::vector<std::string>& after);

  bool Empty() const { return pieces_.empty() && range_.before.empty() && range_.after.empty(); }
  // Turns lines that equal `before` into `after`, and the other way round.
  void Redo(std::vector<std::string>& lines) const;
  void Undo(std::vector<std::string>& lines) const;
  // Memory it takes, about.
  std::size_t Bytes() const;

 private:
  // Text within one line, which stays where it is.
  struct Piece {
    std::uint32_t line, at;
    std::string before, after;
  };
  // Whole lines, when their number changes.
  struct Range {
    std::size_t from = 0;
    std::vector<std::string> before, after;
  };

  std::vector<Piece> pieces_;
  Range range_;
};

}  // namespace morvane::textjob
