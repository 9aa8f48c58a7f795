// Settings that several drawings share, each with its one default.
#pragma once

#include "common/Settings.h"

namespace morvane::common {

// Draw cyan, selected red, tool path green, grid white, background black, reference yellow.
inline constexpr const char* kColorDefaults[] = {"16776960", "255", "65280", "16777215", "0", "65535"};
inline constexpr int kColorCount = 6;

// `Color<index>` as blue x 65536 + green x 256 + red, held to 24 bits; `index` is 0 to 5.
std::uint32_t ReadColor(const SettingsSnapshot& settings, int index);
// Width of marked lines in pixels, 1 to 100.
int ReadLineWidth(const SettingsSnapshot& settings);
// Half length of a cross mark's arms, in the operator's unit.
float ReadReferenceLength(const SettingsSnapshot& settings);

}  // namespace morvane::common
