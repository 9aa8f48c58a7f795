#include "app/frame/MainGeometry.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "common/Settings.h"
#include "common/text/Numbers.h"

namespace morvane::app {
namespace {

float Held(float pixels) {
  constexpr float kLimit = 16000;  // a window system takes no more
  return std::clamp(pixels, -kLimit, kLimit);
}

int Place(float twips) {
  return static_cast<int>(std::lround(Held(twips / kTwipsPerPixel)));
}

// Rounded up: a size is never below its least.
int Size(float twips, float least) {
  return static_cast<int>(std::ceil(Held(std::max(twips, least) / kTwipsPerPixel)));
}

float Twips(int pixels) {
  return static_cast<float>(pixels) * kTwipsPerPixel;
}

}  // namespace

MainGeometry ReadGeometry(const common::Settings& settings) {
  const common::SettingsSnapshot snapshot = settings.Read();
  const auto read = [&](const char* key, float fallback) {
    return common::StrictSingle(snapshot.Get(common::kSettingsSection, key, common::PlainNumber(fallback)));
  };
  MainGeometry geometry;
  geometry.left = read("MainLeft", geometry.left);
  geometry.top = read("MainTop", geometry.top);
  geometry.width = read("MainWidth", geometry.width);
  geometry.height = read("MainHeight", geometry.height);
  return geometry;
}

QRect ToPixels(const MainGeometry& geometry) {
  return {Place(geometry.left), Place(geometry.top), Size(geometry.width, kMinimumWidth),
          Size(geometry.height, kMinimumHeight)};
}

MainGeometry ToTwips(const QRect& pixels) {
  return {Twips(pixels.x()), Twips(pixels.y()), Twips(pixels.width()), Twips(pixels.height())};
}

}  // namespace morvane::app
