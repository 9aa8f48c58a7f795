// Reads and writes panel files (.PAN) for the panel editor and the job preview.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common/files/Files.h"
#include "gcode/panel/Panel.h"

namespace morvane::gcode::panel {

// Fields that a short file does not reach keep their defaults; a bad number counts as 0.
Panel ParsePanel(std::string_view bytes);
// The same for a name out of a document. Nothing when the file cannot be read or lies outside the base
// directory.
std::optional<Panel> ReadPanel(const common::Files& files, std::string_view name);

// The bytes of the file, always 112 lines.
std::string FormatPanel(const Panel& panel);
// Checked save: throws the run-time error of the failure and leaves the old file whole.
void WritePanel(const common::Files& files, std::string_view name, const Panel& panel);

}  // namespace morvane::gcode::panel
