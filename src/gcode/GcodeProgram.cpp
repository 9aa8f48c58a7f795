#include "gcode/GcodeProgram.h"

#include <cstdint>

#include "common/Lines.h"

namespace morvane::gcode {
namespace {

constexpr std::size_t kBlockSize = 8192;

}  // namespace

void GcodeProgram::Add(const Statement& statement) {
  if (blocks_.empty() || blocks_.back().size() == kBlockSize) {
    blocks_.emplace_back();
    // The first block grows as needed, since most jobs are short.
    if (blocks_.size() > 1) blocks_.back().reserve(kBlockSize);
  }
  blocks_.back().push_back(statement);
  ++size_;
}

GcodeProgram ReadProgram(std::string_view text, bool foldToCapitals) {
  GcodeProgram program;
  common::Lines lines(text);
  std::string_view line;
  Word previous = Word::Unknown;
  for (std::uint32_t number = 1; lines.Next(line); ++number) {
    Statement statement = ParseStatement(line, foldToCapitals);
    if (statement.word == Word::Unknown && previous != Word::Tool) continue;
    statement.line = number;
    previous = statement.word;
    program.Add(statement);
  }
  return program;
}

}  // namespace morvane::gcode
