#include "textjob/job/Selection.h"

#include <algorithm>

#include "common/text/Numbers.h"
#include "common/text/Tokenizer.h"
#include "textjob/job/modTjb.h"

namespace morvane::textjob {
namespace {

std::string Join(const std::vector<std::string>& entries) {
  std::string text;
  for (const std::string& entry : entries) {
    if (!text.empty()) text += ',';
    text += entry;
  }
  return text;
}

}  // namespace

std::vector<bool> SelectedLines(const std::string& selection, std::size_t count) {
  std::vector<bool> selected(count, false);
  for (const std::string& token : common::SplitText(selection, ",")) {
    const std::int32_t index = common::IsNumeric(token) ? common::ParseInt32(token) : -1;
    if (index >= 0 && static_cast<std::size_t>(index) < count)
      selected[static_cast<std::size_t>(index)] = true;
  }
  return selected;
}

std::vector<std::size_t> SelectedIndices(const TextJob& job) {
  const std::vector<bool> selected = SelectedLines(job.Selection, job.LineCount());
  std::vector<std::size_t> indices;
  for (std::size_t i = 0; i < selected.size(); ++i) {
    if (selected[i]) indices.push_back(i);
  }
  return indices;
}

std::vector<int> LinesInside(const TextJob& job, const platform::Rectangle& area,
                             const recipes::Fixture* fixture) {
  const bool sides = fixture != nullptr && fixture->Type == recipes::kFixtureIndex;
  std::vector<int> lines;
  for (std::size_t i = 0; i < job.LineCount(); ++i) {
    const TextJobLine line = ParseTjbLine(job, i);
    if (line.Type == kStartPosition || line.Type == kParkPath) continue;
    const float y = line.YPos + (sides ? static_cast<float>(line.Side - 1) * fixture->Flat : 0);
    const bool inside =
        line.XPos >= area.x && line.XPos <= area.x + area.width && y >= area.y && y <= area.y + area.height;
    if (inside) lines.push_back(static_cast<int>(i));
  }
  return lines;
}

std::string SelectLines(const std::vector<int>& lines) {
  std::vector<std::string> entries;
  for (const int line : lines) entries.push_back(std::to_string(line));
  return Join(entries);
}

std::string ToggleLine(const std::string& selection, int line) {
  std::vector<std::string> entries = common::SplitText(selection, ",");
  if (std::erase(entries, std::to_string(line)) == 0) entries.push_back(std::to_string(line));
  return Join(entries);
}

}  // namespace morvane::textjob
