#include "textjob/LineEdits.h"

#include <algorithm>

#include "common/ImageFiles.h"
#include "common/Numbers.h"
#include "common/RunTimeError.h"
#include "textjob/Selection.h"
#include "textjob/modTjb.h"

namespace morvane::textjob {
namespace {

using common::PlainNumber;

std::string Moved(const std::string& number, float by) {
  return PlainNumber(common::ParseSingle(number) + by);
}

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

void OffsetBackground(const common::Files& files, const common::Settings& settings,
                      const std::string& jobName, const LineOffset& offset) {
  LockRecord record;
  record.Job = jobName;
  if (FindLockRecord(files, record)) {
    if (record.Image.empty()) return;
    record.X += offset.x;
    record.Y += offset.y;
    return WriteLockRecord(files, record, false);
  }
  const std::string section(common::kSettingsSection);
  const common::SettingsSnapshot snapshot = settings.Read();
  const std::string image = snapshot.Get(section, "BackgroundImage", "");
  if (image.empty()) return;
  common::ImageRectangle place = common::ReadImageRectangle(settings, image);
  place[0] = Moved(place[0], offset.x);
  place[1] = Moved(place[1], offset.y);
  std::vector<common::SettingChange> changes = common::ImageRectangleChanges(image, place);
  for (const auto& [key, by] : {std::pair{"BackgroundImageX", offset.x}, {"BackgroundImageY", offset.y}}) {
    changes.push_back({section, key, Moved(snapshot.Get(section, key, "0"), by)});
  }
  settings.Apply(changes);
}

}  // namespace morvane::textjob
