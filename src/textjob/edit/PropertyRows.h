// The property grid of the selected lines: built from their records, and a record built from it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "textjob/edit/PropertyRules.h"
#include "textjob/job/TextJob.h"
#include "textjob/preview/BitmapSize.h"

namespace morvane::textjob {

// The label decides everything; there is no other key for a row.
struct PropertyRow {
  std::string label;
  std::string value;
};
using PropertyGrid = std::vector<PropertyRow>;

// What rows depend on besides the job.
struct RowContext {
  std::string unitsFormat = "0.000";
  bool proFonts = false;
  bool sides = false;  // a fixture with sides is shown
  // Pixels of a raster's image by the name in the line; nothing when it cannot be had.
  std::function<std::optional<PixelSize>(const std::string&)> imageSize = [](const std::string&) {
    return std::optional<PixelSize>();
  };
};

// The rows of one line. Throws "Subscript out of range" for a word beyond its table.
PropertyGrid RowsOfLine(const TextJobLine& line, const RowContext& context);
// The rows that all selected lines have, with the values of the first one; none without a selection.
PropertyGrid RowsOfSelection(const TextJob& job, const RowContext& context);

// A zeroed record, filled from the rows in their order.
TextJobLine RecordFromRows(const PropertyGrid& rows);
// Puts a row's value into the field that the label names; a label that is none changes nothing.
void SetField(TextJobLine& line, std::string_view label, std::string_view value);
// A number as the row of that label shows it.
std::string RowNumber(float value, const PropertyRule& rule, const RowContext& context);
// Index of the row of that label, or the number of rows.
std::size_t FindRow(const PropertyGrid& rows, std::string_view label);

}  // namespace morvane::textjob
