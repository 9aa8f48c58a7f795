#include "gcode/MoveLine.h"

#include "common/RunTimeError.h"
#include "common/text/Numbers.h"

namespace morvane::gcode {

void TakeStatement(const Statement& statement, MoveLine& move) {
  move.tool = -1;
  move.cx = move.cy = -1;
  if (statement.word == Word::Tool) {
    move.tool = static_cast<std::int16_t>(statement.x);
    move.x = move.y = 0;
    move.feed = false;
    return;
  }
  const bool arc = statement.word == Word::Arc;
  const bool straight = statement.word == Word::Move && statement.hasX;
  if (!arc && !straight) return;
  const bool complete = arc ? !statement.broken : statement.hasY;
  if (!complete) throw common::RunTimeError(common::kTypeMismatch);
  move.x = statement.x;
  move.y = statement.y;
  move.feed = statement.feed;
  if (!arc) return;
  move.cx = statement.cx;
  move.cy = statement.cy;
  move.clockwise = statement.clockwise;
}

bool ReadMoveLine(common::Lines& file, std::string_view& text, MoveLine& move) {
  if (!file.Next(text)) return false;
  TakeStatement(ParseStatement(text), move);
  return true;
}

void WriteMoveLine(std::string& file, const MoveLine& move, std::string_view unitsFormat) {
  const auto add = [&](std::string_view letter, float value) {
    file.append(letter).append(common::FormatPicture(value, unitsFormat));
  };
  if (!move.HasCenter() && move.tool >= 1) {
    file.append("M06T").append(common::PlainNumber(std::int32_t{move.tool}));
  } else if (move.HasCenter()) {
    add(move.clockwise ? "G02X" : "G03X", move.x);
    add("Y", move.y);
    add("I", move.cx);
    add("J", move.cy);
  } else {
    add(move.feed ? "G01X" : "G00X", move.x);
    add("Y", move.y);
  }
  file.append("\r\n");
}

}  // namespace morvane::gcode
