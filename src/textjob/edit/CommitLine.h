// Takes an edited value of the property grid into the job.
#pragma once

#include <string>

#include "common/files/Files.h"
#include "textjob/edit/PropertyRows.h"

namespace morvane::textjob {

// Puts `value` into the row `current` of `rows`, the grid of the job's selection. One selected line is built
// anew from the grid alone: a field without a row becomes 0 or empty. Of several lines only the field of
// the row is replaced. Sets `Dirty`. Nothing happens without a selection, or for a row that is computed.
void CommitLine(TextJob& job, PropertyGrid& rows, std::size_t current, const std::string& value,
                const RowContext& context, const common::Files& files);

// The value of a row after a step of its number: the sum in the row's format. Nothing for a row whose
// number cannot be stepped.
std::optional<std::string> StepValue(const PropertyRow& row, float step, const RowContext& context);

// Sets the position of the selected lines, row by row; an empty text leaves its row as it is, and so does a
// grid without that row.
struct PositionTexts {
  std::string x;
  std::string y;
  std::string side;
};
void MoveSelection(TextJob& job, const PositionTexts& position, const RowContext& context,
                   const common::Files& files);

}  // namespace morvane::textjob
