// One statement of a G-code job, as every reader of the program sees it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace morvane::gcode {

enum class Word : std::uint8_t {
  Unknown,          // any other text; such lines work as comments
  Move,             // G00X, G01X, G00Y, G01Y
  Arc,              // G02X, G03X
  Turn,             // G05T
  Tool,             // M06T
  Wait,             // W
  Mark,             // G04 and lines that begin with I: dwell, or wait for an input
  OutputOn,         // S
  OutputOff,        // C
  VelocityPercent,  // VP
  FeedSpeed,        // VF
  MoveSpeed,        // VM
  End,              // END
};

// Small on purpose: a job of a million lines is kept in this form.
struct Statement {
  float x = 0;  // Turn: revolutions. Words with one number: that number
  float y = 0;
  float cx = 0;  // Move: z, when it has one
  float cy = 0;
  std::uint32_t line = 0;  // of the text, from 1
  Word word = Word::Unknown;
  bool feed : 1 = false;
  bool clockwise : 1 = false;
  bool hasX : 1 = false;
  bool hasY : 1 = false;
  bool hasZ : 1 = false;
  // An arc or turn lacks one of its letters. A reader that knows the word fails on it.
  bool broken : 1 = false;
};

// Reads a line. With `foldToCapitals` small letters count as capitals. Never fails: what is no statement
// is Unknown, numbers that are missing read as 0.
Statement ParseStatement(std::string_view line, bool foldToCapitals = false);
// The same into a fresh `statement`, from the start of a text that goes on behind the line. Returns how
// many characters were looked at; they hold no line end.
std::size_t ReadStatement(std::string_view text, bool foldToCapitals, Statement& statement);

}  // namespace morvane::gcode
