#include "gcode/panel/modPanel.h"

#include "common/RunTimeError.h"
#include "common/text/Lines.h"
#include "common/text/Numbers.h"

namespace morvane::gcode::panel {
namespace {

// The first lines of the file, one number each.
constexpr float Panel::*kNumbers[] = {&Panel::Width,  &Panel::Height, &Panel::Spacing, &Panel::XLow,
                                      &Panel::XHigh,  &Panel::XAccel, &Panel::YLow,    &Panel::YHigh,
                                      &Panel::YAccel, &Panel::Margin, &Panel::Backlash};

}  // namespace

Panel ParsePanel(std::string_view bytes) {
  Panel panel;
  common::Lines lines(bytes);
  std::string_view line;
  for (float Panel::*number : kNumbers) {
    if (!lines.Next(line)) return panel;
    panel.*number = common::ParseSingle(line);
  }
  if (!lines.Next(line)) return panel;
  panel.Mirror = line == "True";
  for (std::int16_t& level : panel.Power) {
    if (!lines.Next(line)) return panel;
    level = common::ParseInt16(line);
  }
  return panel;
}

std::optional<Panel> ReadPanel(const common::Files& files, std::string_view name) {
  try {
    return *files.ReadInsideAs<ParsePanel>(name);
  } catch (const common::RunTimeError&) {
    return std::nullopt;
  }
}

std::string FormatPanel(const Panel& panel) {
  std::string bytes;
  for (float Panel::*number : kNumbers) bytes += common::PlainNumber(panel.*number) + "\r\n";
  bytes += panel.Mirror ? "True\r\n" : "False\r\n";
  for (std::int16_t level : panel.Power) bytes += common::PlainNumber(level) + "\r\n";
  return bytes;
}

void WritePanel(const common::Files& files, std::string_view name, const Panel& panel) {
  files.Save(name, FormatPanel(panel));
}

}  // namespace morvane::gcode::panel
