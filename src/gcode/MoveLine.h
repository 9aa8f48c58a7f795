// The one-statement reader and writer of the optimizer and of measuring.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "common/text/Lines.h"
#include "gcode/Statement.h"

namespace morvane::gcode {

struct MoveLine {
  float x = 0;
  float y = 0;
  bool feed = false;
  std::int16_t tool = -1;  // -1 where the line is no tool change
  float cx = -1;           // a centre with a coordinate of -1 stands for none
  float cy = -1;
  bool clockwise = false;

  bool HasCenter() const { return cx != -1 && cy != -1; }
};

// Puts a statement into the move. Tool and centre are set anew; x, y and the feed flag keep what they
// held when the line is no move with X and Y, no arc and no "M06T". Throws "Type mismatch" for a move
// without Y and an arc without Y, I or J.
void TakeStatement(const Statement& statement, MoveLine& move);

// Reads the next line of the job into `text` and `move`; false at the end of the file.
bool ReadMoveLine(common::Lines& file, std::string_view& text, MoveLine& move);
// Adds one statement with its line end to the text of a job: an arc where there is a centre, a tool
// change for a tool from 1 on, else a straight move.
void WriteMoveLine(std::string& file, const MoveLine& move, std::string_view unitsFormat);

}  // namespace morvane::gcode
