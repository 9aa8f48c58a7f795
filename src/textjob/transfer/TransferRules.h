// Which line of a job takes part in its transfers, and how: one table for all 17 types.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "textjob/job/TextJobLine.h"

namespace morvane::textjob {

enum class Send { Nothing, Text, Binary, Caps, Scales, Gcode, Image };
enum class Fetch { Nothing, Always, Image };

// Images stay where they are when the settings say so; they travel as G-code jobs.
struct TransferRule {
  Send send = Send::Nothing;
  bool sentForRun = false;  // the other files must already be on the controller
  Fetch fetch = Fetch::Nothing;
};

inline constexpr std::array<TransferRule, kLineTypeCount> kTransferRules = {{
    {},                                     // Normal
    {},                                     // Serial
    {Send::Gcode, true, Fetch::Always},     // Graphic
    {},                                     // DateCode
    {},                                     // Move
    {Send::Text, true, Fetch::Always},      // Panel
    {Send::Text, true, Fetch::Always},      // DataMatrix
    {Send::Text, true, Fetch::Always},      // Fill
    {},                                     // Variable
    {Send::Image, false, Fetch::Image},     // Image
    {Send::Caps, false, Fetch::Nothing},    // Cap
    {Send::Scales, false, Fetch::Nothing},  // Scale
    {},                                     // StartPosition
    {Send::Gcode, false, Fetch::Always},    // ClosedPath
    {Send::Text, false, Fetch::Always},     // Pressure
    {},                                     // ParkPath
    {Send::Binary, false, Fetch::Nothing},  // Raster
}};

// For a type that is none: nothing is transferred.
inline TransferRule TransferRuleOf(std::int32_t type) {
  return type >= 0 && type < kLineTypeCount ? kTransferRules[static_cast<std::size_t>(type)] : TransferRule{};
}

// What one operation has handled: each name in double quotes behind the rest.
class SentList {
 public:
  // Enters the name; false when it is there already, with its case as it stands.
  bool Enter(const std::string& name) {
    const std::string quoted = '"' + name + '"';
    if (list_.find(quoted) != std::string::npos) return false;
    list_ += quoted;
    return true;
  }

 private:
  std::string list_;
};

}  // namespace morvane::textjob
