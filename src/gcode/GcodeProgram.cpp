#include "gcode/GcodeProgram.h"

#include <algorithm>
#include <cstdint>

namespace morvane::gcode {
namespace {

constexpr std::size_t kBlockSize = 4096;

// Drops the rest of a line with its end: CR LF, CR or LF.
void SkipLine(std::string_view& text, std::size_t from) {
  while (from < text.size() && text[from] != '\r' && text[from] != '\n') ++from;
  const bool pair = text.substr(from, 2) == "\r\n";
  text.remove_prefix(std::min(from + (pair ? 2 : 1), text.size()));
}

}  // namespace

Statement& GcodeProgram::Append() {
  if (blocks_.empty() || blocks_.back().size() == kBlockSize) {
    blocks_.emplace_back();
    // The first block grows as needed, since most jobs are short.
    if (blocks_.size() > 1) blocks_.back().reserve(kBlockSize);
  }
  ++size_;
  return blocks_.back().emplace_back();
}

void GcodeProgram::DropLast() {
  blocks_.back().pop_back();
  --size_;
}

GcodeProgram ReadProgram(std::string_view text, bool foldToCapitals) {
  GcodeProgram program;
  Word previous = Word::Unknown;
  for (std::uint32_t line = 1; !text.empty() && program.Size() < kMaxStatements; ++line) {
    Statement& statement = program.Append();
    SkipLine(text, ReadStatement(text, foldToCapitals, statement));
    if (statement.word == Word::Unknown && previous != Word::Tool) {
      program.DropLast();
    } else {
      statement.line = line;
      previous = statement.word;
    }
  }
  return program;
}

GcodeProgram ParseProgram(std::string_view text) {
  return ReadProgram(text);
}

}  // namespace morvane::gcode
