// What changes a job's list of lines as a whole: New Line, Delete Line, Offset.
#pragma once

#include <string>

#include "textjob/job/TextJob.h"

namespace morvane::textjob {

// Puts a line behind the selected one, at the end without a selection, and selects it. Does nothing with
// several selected lines (false). Throws "Subscript out of range" for a full job, which stays as it was.
bool InsertLine(TextJob& job, std::string line);

// Takes the selected line out; the line that follows it is selected, or the new last one. Does nothing
// unless one line is selected (false).
bool DeleteLine(TextJob& job);

struct LineOffset {
  float x = 0;
  float y = 0;
  float depth = 0;  // of the first depth alone
};

// Moves every line, or each selected one when there are several, and writes them whole.
void OffsetLines(TextJob& job, const LineOffset& offset, const std::string& unitsFormat);

}  // namespace morvane::textjob
