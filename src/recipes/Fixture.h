// How a job repeats over the parts clamped on the machine: one record, shared by the editor and the preview.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace morvane::recipes {

// Values of `Fixture::Type`. A file may hold any other number; such a fixture draws nothing.
inline constexpr std::int16_t kFixtureClone = 0;
inline constexpr std::int16_t kFixtureRotary = 1;
inline constexpr std::int16_t kFixtureIndex = 2;
inline constexpr std::int16_t kFixtureCustom = 3;
inline constexpr std::int16_t kFixtureRotaryClone = 4;

// Most points that a Custom path can have.
inline constexpr std::size_t kFixturePathPoints = 8001;

// Lengths are in the job's units. A cleared record has 1 in every number.
struct Fixture {
  std::int16_t Type = 1;
  float Diameter = 1;
  std::int16_t Rows = 1;
  float RowDistance = 1;
  std::int16_t Columns = 1;
  float ColumnDistance = 1;
  std::int16_t Sides = 1;
  float Flat = 1;  // length of one side
  float OffsetX = 1;
  float OffsetY = 1;
  std::string Skip;  // "1,1;2,2;3,3"
  std::string StartCommand;
  std::string EndCommand;
  bool Template = false;
  std::int16_t Reserved = 1;      // carried through the file
  std::vector<std::string> Path;  // "x,y" in run order; the first empty entry ends it
  float Length = 1;               // 0 for types without a length
  bool RotaryX = false;           // cleared: the axis takes the place of Y
  std::string StartPosition;
  std::string EndPosition;
};

}  // namespace morvane::recipes
