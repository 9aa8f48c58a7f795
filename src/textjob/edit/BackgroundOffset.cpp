#include "textjob/edit/BackgroundOffset.h"

#include "common/files/ImageFiles.h"
#include "common/text/Numbers.h"

namespace morvane::textjob {
namespace {

std::string Moved(const std::string& number, float by) {
  return common::PlainNumber(common::ParseSingle(number) + by);
}

void MoveSetting(const common::SettingsSnapshot& settings, const common::SettingChange& after,
                 BesideChange& change) {
  const std::string before = settings.Get(after.section, after.key, "");
  change.before.settings.push_back({after.section, after.key, before, before.empty()});
  change.after.settings.push_back(after);
}

}  // namespace

BesideChange OffsetBackground(const common::Files& files, const common::Settings& settings,
                              const std::string& jobName, float dx, float dy) {
  BesideChange change;
  LockRecord record;
  record.Job = jobName;
  if (FindLockRecord(files, record)) {
    if (record.Image.empty()) return change;
    change.before.lock = record;
    record.X += dx;
    record.Y += dy;
    change.after.lock = record;
    return change;
  }
  const std::string section(common::kSettingsSection);
  const common::SettingsSnapshot snapshot = settings.Read();
  const std::string image = snapshot.Get(section, "BackgroundImage", "");
  if (image.empty()) return change;
  for (const auto& [key, by] : {std::pair{"BackgroundImageX", dx}, {"BackgroundImageY", dy}}) {
    MoveSetting(snapshot, {section, key, Moved(snapshot.Get(section, key, "0"), by)}, change);
  }
  common::ImageRectangle place = common::ReadImageRectangle(settings, image);
  place[0] = Moved(place[0], dx);
  place[1] = Moved(place[1], dy);
  for (const auto& after : common::ImageRectangleChanges(image, place)) MoveSetting(snapshot, after, change);
  return change;
}

void ApplyBeside(const common::Files& files, const common::Settings& settings, const BesideValues& values) {
  if (!values.settings.empty()) settings.Apply(values.settings);
  if (values.lock) WriteLockRecord(files, *values.lock, false);
}

}  // namespace morvane::textjob
