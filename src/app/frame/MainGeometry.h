// Place and size of the main window as the settings hold them: twips, 15 to a pixel at 96 dots an inch.
#pragma once

#include <QRect>

namespace morvane::common {
class Settings;
}

namespace morvane::app {

inline constexpr int kTwipsPerPixel = 15;
inline constexpr float kMinimumWidth = 15000;  // twips
inline constexpr float kMinimumHeight = 8000;

struct MainGeometry {
  float left = 1000;
  float top = 1000;
  float width = kMinimumWidth;
  float height = kMinimumHeight;
};

// Throws "Type mismatch" or "Overflow" for text that is no 32-bit float.
MainGeometry ReadGeometry(const common::Settings& settings);

// In pixels, held at what a window can be.
QRect ToPixels(const MainGeometry& geometry);
MainGeometry ToTwips(const QRect& pixels);

}  // namespace morvane::app
