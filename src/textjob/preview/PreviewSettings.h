// What a drawing pass reads from the settings, each once.
#pragma once

#include <array>
#include <string>

#include "common/Settings.h"
#include "platform/Canvas.h"

namespace morvane::textjob {

// Indices of the colours: `Color0` to `Color5`.
enum PreviewColor {
  kDrawColor,
  kSelectedColor,
  kToolPathColor,
  kGridColor,
  kBackgroundColor,
  kReferenceColor
};

struct BackgroundPicture {
  std::string name;  // empty: none
  platform::Rectangle place;
};

// Lengths in the operator's unit.
struct PreviewSettings {
  std::array<platform::Color, 6> colors{};
  int lineWidth = 2;  // pixels, at least 1
  float referenceLength = 0;
  float gridSpacing = 0;
  bool proFonts = false;
  bool useImageSize = false;
  BackgroundPicture background;
  platform::CanvasView editor;
  std::string fixture;
};

PreviewSettings ReadPreviewSettings(const common::SettingsSnapshot& settings);

}  // namespace morvane::textjob
