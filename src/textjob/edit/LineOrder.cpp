#include "textjob/edit/LineOrder.h"

#include <utility>

#include "common/text/Numbers.h"
#include "textjob/job/modTjb.h"
#include "textjob/preview/PreviewLine.h"

namespace morvane::textjob {

using common::PlainNumber;

std::string LineEntry(std::string_view line) {
  const TextJobLine record = ParseTjbLine(line);
  return LineLabel(record) + "  (" + PlainNumber(record.XPos) + "," + PlainNumber(record.YPos) + ")";
}

std::vector<std::string> LineEntries(const TextJob& job) {
  std::vector<std::string> entries;
  for (const std::string& line : job.Lines) entries.push_back(LineEntry(line));
  return entries;
}

bool MoveLineUp(TextJob& job, std::size_t index) {
  return index > 0 && MoveLineDown(job, index - 1);
}

bool MoveLineDown(TextJob& job, std::size_t index) {
  if (index >= job.Lines.size() || index + 1 == job.Lines.size()) return false;
  std::swap(job.Lines[index], job.Lines[index + 1]);
  job.Dirty = true;
  return true;
}

}  // namespace morvane::textjob
