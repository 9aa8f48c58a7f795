#include "textjob/edit/LineClipboard.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "common/RunTimeError.h"
#include "common/text/Lines.h"
#include "common/text/Numbers.h"
#include "common/text/Tokenizer.h"
#include "textjob/job/Selection.h"
#include "textjob/job/TextJobLine.h"
#include "textjob/preview/Preview.h"

namespace morvane::textjob {
namespace {

std::vector<std::string> Selected(const TextJob& job) {
  const std::vector<bool> selected = SelectedLines(job.Selection, job.LineCount());
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < selected.size(); ++i) {
    if (selected[i]) lines.push_back(job.Lines[i]);
  }
  return lines;
}

// Behind the last selected line; without one, behind all.
std::size_t InsertPlace(const TextJob& job) {
  const std::vector<bool> selected = SelectedLines(job.Selection, job.LineCount());
  const auto last = std::find(selected.rbegin(), selected.rend(), true);
  return last == selected.rend() ? selected.size() : static_cast<std::size_t>(selected.rend() - last);
}

std::size_t Insert(TextJob& job, std::vector<std::string> lines) {
  if (lines.empty()) return 0;
  const std::size_t place = InsertPlace(job);
  job.Lines.insert(job.Lines.begin() + static_cast<std::ptrdiff_t>(place),
                   std::make_move_iterator(lines.begin()), std::make_move_iterator(lines.end()));
  std::vector<int> inserted;
  for (std::size_t i = 0; i < lines.size(); ++i) inserted.push_back(static_cast<int>(place + i));
  job.Selection = SelectLines(inserted);
  job.Dirty = true;
  return lines.size();
}

void RequireRoom(const TextJob& job, std::size_t count) {
  if (job.LineCount() + count > kMaxLines) throw common::RunTimeError(common::kSubscriptOutOfRange);
}

}  // namespace

bool IsJobLine(std::string_view text) {
  common::TokenScan scan(text);
  bool atEnd = false;
  const std::string_view type = scan.Next(",", atEnd);
  if (type.size() == text.size() || !common::IsNumeric(type)) return false;
  const std::int32_t code = common::ParseInt32(type);
  if (common::ParseNumber(type) != code || code < 0 || code >= kLineTypeCount) return false;
  const auto isPlace = [](std::string_view token) { return token.empty() || common::IsNumeric(token); };
  return isPlace(scan.Next(",", atEnd)) && isPlace(scan.Next(",", atEnd));
}

std::string CopyLines(const TextJob& job) {
  std::string text;
  for (const std::string& line : Selected(job)) text += line + "\r\n";
  return text;
}

std::string CutLines(TextJob& job) {
  std::string text = CopyLines(job);
  if (text.empty()) return text;
  const std::vector<bool> selected = SelectedLines(job.Selection, job.LineCount());
  std::vector<std::string> kept;
  for (std::size_t i = 0; i < selected.size(); ++i) {
    if (!selected[i]) kept.push_back(std::move(job.Lines[i]));
  }
  const auto first = std::find(selected.begin(), selected.end(), true) - selected.begin();
  const auto last = static_cast<std::ptrdiff_t>(kept.size()) - 1;
  job.Selection = kept.empty() ? std::string() : SelectLines({static_cast<int>(std::min(first, last))});
  job.Lines = std::move(kept);
  job.Dirty = true;
  return text;
}

std::size_t PasteLines(TextJob& job, std::string_view text) {
  common::Lines scan(text);
  std::vector<std::string> lines;
  std::string_view line;
  while (scan.Next(line)) {
    if (!IsJobLine(line)) continue;
    lines.emplace_back(line);
    RequireRoom(job, lines.size());
  }
  return Insert(job, std::move(lines));
}

std::size_t DuplicateLines(TextJob& job) {
  std::vector<std::string> lines = Selected(job);
  RequireRoom(job, lines.size());
  return Insert(job, std::move(lines));
}

}  // namespace morvane::textjob
