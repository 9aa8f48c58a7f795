// Lines of the job as text for the clipboard, and text from it as lines of the job.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "textjob/job/TextJob.h"

namespace morvane::textjob {

// True for text that makes a job line: a known line type and a comma, and behind it a position whose
// tokens, as far as they are there, are numbers or empty. Prose and most tables fail, and so do a comment
// line and an empty one; lines that stop early, as older jobs have them, pass.
bool IsJobLine(std::string_view text);

// The selected lines in the job's order, each ended by CR LF. Empty without a selection.
std::string CopyLines(const TextJob& job);
// The same; the lines leave the job. The line that takes the place of the first of them is selected, or
// the new last line.
std::string CutLines(TextJob& job);
// Puts the text's job lines behind the last selected line, or behind all, and selects them; other lines of
// the text are skipped. Returns their number. Throws "Subscript out of range" when the job would hold more
// than its 1001 lines; the job stays as it was then.
std::size_t PasteLines(TextJob& job, std::string_view text);
// The same with the selected lines themselves, as they stand.
std::size_t DuplicateLines(TextJob& job);

}  // namespace morvane::textjob
