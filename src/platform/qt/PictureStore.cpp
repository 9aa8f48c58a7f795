#include "platform/qt/PictureStore.h"

#include <QImageReader>
#include <algorithm>

#include "common/RunTimeError.h"
#include "common/files/Files.h"
#include "platform/qt/QtText.h"

namespace morvane::platform {
namespace {

constexpr std::size_t kMaxEntries = 8;

QImage Load(const std::string& path) {
  QImageReader reader(PathToQt(path));
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  return reader.read();
}

}  // namespace

QSizeF SizeInInches(const QImage& picture) {
  constexpr double kInchesPerMeter = 1 / 0.0254;
  constexpr int kInvalidPicture = 481;
  if (picture.isNull() || picture.dotsPerMeterX() <= 0 || picture.dotsPerMeterY() <= 0) {
    throw common::RunTimeError(kInvalidPicture, "Invalid picture");
  }
  return {picture.width() * kInchesPerMeter / picture.dotsPerMeterX(),
          picture.height() * kInchesPerMeter / picture.dotsPerMeterY()};
}

const QImage& PictureStore::Get(const std::string& name) {
  std::string path;
  std::int64_t modified = 0;
  try {
    path = files_.Resolve(name);
    modified = files_.ModifiedTime(name);
  } catch (const common::RunTimeError&) {
    return none_;
  }
  const auto found =
      std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) { return entry.path == path; });
  if (found != entries_.end() && found->modified == modified) return found->image;
  if (found != entries_.end()) entries_.erase(found);
  if (entries_.size() >= kMaxEntries) entries_.erase(entries_.begin());
  return entries_.emplace_back(Entry{path, modified, Load(path)}).image;
}

}  // namespace morvane::platform
