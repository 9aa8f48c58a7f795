// What differs between the windows that draw a job. There is one interpreter; this is its data.
#pragma once

#include <cstdint>

#include "gcode/Statement.h"
#include "platform/Canvas.h"

namespace morvane::gcode {

enum class Viewer { Graphic, Preview, Editor, Small };

// The set of words that a viewer knows; it skips all others.
using WordSet = std::uint32_t;
constexpr WordSet Bit(Word word) {
  return WordSet{1} << static_cast<unsigned>(word);
}

struct ViewerOptions {
  WordSet words = 0;
  bool foldToCapitals = false;
  bool needsXAndY = false;  // moves that name one axis only are skipped
  bool readsZ = false;
  bool toolColors = false;    // feeds in their tool's colour, tools shown alone or together
  bool marksCurrent = false;  // the current line has a colour of its own and crosses at its ends
  bool fixedSurface = false;  // no extents: the scale is set by hand
  bool settingsPens = true;   // colours of the settings, else red rapids and black feeds
  bool wideFeeds = true;      // feeds at `LineWidth`, else one pixel like rapids
};

const ViewerOptions& OptionsOf(Viewer viewer);

inline constexpr int kToolCount = 16;
// Colour of tool 1 to 16, for drawings and for the swatches. Throws "Subscript out of range".
platform::Color ToolColor(int tool);

}  // namespace morvane::gcode
