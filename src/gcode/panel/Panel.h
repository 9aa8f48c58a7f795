// The stored process profile of a large sheet: its size, its speeds, and a curve of power levels across it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace morvane::gcode::panel {

inline constexpr std::size_t kPowerLevels = 100;

// Lengths are in the job's units, speeds in units per second.
struct Panel {
  float Width = 48;
  float Height = 96;
  float Spacing = 0.1F;
  float XLow = 0.5F;
  float XHigh = 5;
  float XAccel = 10;
  float YLow = 0.5F;
  float YHigh = 5;
  float YAccel = 10;
  float Margin = 0;
  float Backlash = 0;
  std::array<std::int16_t, kPowerLevels> Power{};  // percent
  bool Mirror = true;
};

}  // namespace morvane::gcode::panel
