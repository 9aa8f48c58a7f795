#include "textjob/edit/LineEdits.h"

#include <algorithm>

#include "common/RunTimeError.h"
#include "textjob/job/Selection.h"
#include "textjob/job/modTjb.h"

namespace morvane::textjob {
namespace {

void Select(TextJob& job, std::size_t index) {
  job.Selection = SelectLines({static_cast<int>(index)});
}

}  // namespace

bool InsertLine(TextJob& job, std::string line) {
  const std::vector<std::size_t> selected = SelectedIndices(job);
  if (selected.size() > 1) return false;
  if (job.Lines.size() == kMaxLines) throw common::RunTimeError(common::kSubscriptOutOfRange);
  const std::size_t place = selected.empty() ? job.Lines.size() : selected[0] + 1;
  job.Lines.insert(job.Lines.begin() + static_cast<std::ptrdiff_t>(place), std::move(line));
  Select(job, place);
  job.Dirty = true;
  return true;
}

bool DeleteLine(TextJob& job) {
  const std::vector<std::size_t> selected = SelectedIndices(job);
  if (selected.size() != 1) return false;
  job.Lines.erase(job.Lines.begin() + static_cast<std::ptrdiff_t>(selected[0]));
  if (job.Lines.empty()) {
    job.Selection.clear();
  } else {
    Select(job, std::min(selected[0], job.Lines.size() - 1));
  }
  job.Dirty = true;
  return true;
}

void OffsetLines(TextJob& job, const LineOffset& offset, const std::string& unitsFormat) {
  const std::vector<std::size_t> selected = SelectedIndices(job);
  const auto move = [&](std::string& text) {
    TextJobLine line = ParseTjbLine(text);
    line.XPos += offset.x;
    line.YPos += offset.y;
    line.Depth += offset.depth;
    line.Font = FontToken(line.Font);
    text = FormatTjbLine(line, unitsFormat);
  };
  if (selected.size() > 1) {
    for (const std::size_t index : selected) move(job.Lines[index]);
  } else {
    for (std::string& text : job.Lines) move(text);
  }
  job.Dirty = true;
}

}  // namespace morvane::textjob
