#include "gcode/ViewerOptions.h"

#include "common/RunTimeError.h"

namespace morvane::gcode {
namespace {

constexpr WordSet kPathWords = Bit(Word::Move) | Bit(Word::Arc) | Bit(Word::Turn);
constexpr WordSet kEveryWord = ~WordSet{0};

constexpr ViewerOptions kGraphic = {
    .words = kPathWords | Bit(Word::Tool) | Bit(Word::Wait),
    .toolColors = true,
};
constexpr ViewerOptions kPreview = {
    .words = kPathWords,
    .readsZ = true,
    .wideFeeds = false,
};
constexpr ViewerOptions kEditor = {
    .words = kEveryWord & ~Bit(Word::Tool) & ~Bit(Word::Unknown),
    .foldToCapitals = true,
    .readsZ = true,
    .marksCurrent = true,
};
constexpr ViewerOptions kSmall = {
    .words = Bit(Word::Move),
    .needsXAndY = true,
    .fixedSurface = true,
    .settingsPens = false,
    .wideFeeds = false,
};

constexpr platform::Color kToolColors[kToolCount] = {
    0x0000FF, 0x00FFFF, 0x00FF00, 0xFFFF00, 0xFF0000, 0xFF00FF, 0xFFFFFF, 0xC0C0C0,
    0x0000C0, 0x00C0C0, 0x007F00, 0xC0C000, 0xC00000, 0xC000C0, 0xE0E0E0, 0x000000,
};

}  // namespace

const ViewerOptions& OptionsOf(Viewer viewer) {
  switch (viewer) {
    case Viewer::Preview:
      return kPreview;
    case Viewer::Editor:
      return kEditor;
    case Viewer::Small:
      return kSmall;
    case Viewer::Graphic:
      break;
  }
  return kGraphic;
}

platform::Color ToolColor(int tool) {
  if (tool < 1 || tool > kToolCount) throw common::RunTimeError(common::kSubscriptOutOfRange);
  return kToolColors[tool - 1];
}

}  // namespace morvane::gcode
