// Adds up how far the tool travels in a job.
#pragma once

#include "gcode/GcodeProgram.h"

namespace morvane::gcode {

// In job units. The sums are kept in double: a long job has more moves than a 32-bit float has steps.
struct Distances {
  double move = 0;  // rapid
  double feed = 0;
};

// Measures a program that was read without folding to capitals. Throws "Type mismatch" for a move
// without Y or an arc without one of its letters, and "Overflow".
Distances MeasureDistances(const GcodeProgram& program);

}  // namespace morvane::gcode
