// The kinds of files that the menus send to the controller and fetch from it.
#pragma once

namespace morvane::app {

struct FileKind {
  const char* filter;
  const char* extension;
  const char* pattern;     // of the controller's list; null: nothing is fetched by a list
  const char* fixed = "";  // the one name on the controller
  bool binary = false;
};

inline constexpr FileKind kTextJobs{"TJB Files|*.TJB", "tjb", "*.TJB"};
inline constexpr FileKind kRasters{"Raster Files|*.RAS", "RAS", nullptr, "", true};
inline constexpr FileKind kDataMatrix{"Data Matrix Files|*.DM", "DM", "*.DM"};
inline constexpr FileKind kFonts{"Font Files|*.fnt", "fnt", "*.fnt"};
inline constexpr FileKind kFixtures{"Fixture Files|*.fix", "fix", "*.FIX"};
inline constexpr FileKind kFills{"Fill Files|*.FIL", "fil", "*.FIL"};
inline constexpr FileKind kCaps{"Cap Files|*.cap", "cap", nullptr, "Default.cap"};
inline constexpr FileKind kScales{"Scale Files|*.sca", "sca", nullptr, "Default.sca"};
inline constexpr FileKind kPallets{"Pallet Files|*.PAL", "pal", "*.PAL"};
inline constexpr FileKind kPressures{"Pressure Files|*.pre", "pre", "*.pre"};
inline constexpr FileKind kPanels{"Panel Files|*.pan", "pan", "*.PAN"};
inline constexpr FileKind kTargets{"Target Files|*.TGT", "tgt", "*.TGT"};
inline constexpr FileKind kAllFiles{"All Files|*.JOB;*.TJB;*.PAN;*.TOL;*.SET;*.FIX;*.CSV;*.TGT;*.DM", "",
                                    nullptr};

}  // namespace morvane::app
