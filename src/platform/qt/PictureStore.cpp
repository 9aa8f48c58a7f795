#include "platform/qt/PictureStore.h"

#include <QBuffer>
#include <QImageReader>

#include "common/RunTimeError.h"
#include "common/files/Files.h"

namespace morvane::platform {
namespace {

struct Decoded {
  QImage image;
  std::size_t KeptBytes() const { return static_cast<std::size_t>(image.sizeInBytes()); }
};

Decoded Decode(const std::string& bytes) {
  QByteArray view = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&view);
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  return {reader.read()};
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

QImage PictureStore::Get(const std::string& name) const try {
  return files_.ReadAs<Decode>(name)->image;
} catch (const common::RunTimeError&) {
  return {};
}

}  // namespace morvane::platform
