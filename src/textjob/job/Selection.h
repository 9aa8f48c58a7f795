// The selected lines of a job, as the text that TextJob keeps.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/Canvas.h"
#include "recipes/Fixture.h"
#include "textjob/job/TextJob.h"

namespace morvane::textjob {

// For each of `count` lines whether the list names it.
std::vector<bool> SelectedLines(const std::string& selection, std::size_t count);
// The selected lines of a job in the order of the job, each once.
std::vector<std::size_t> SelectedIndices(const TextJob& job);

// The lines whose position lies in the rectangle as the preview shows it, on the sides of a fixture too
// (none: null). Lines without a place of their own, Start Position and Park Path, are left out.
std::vector<int> LinesInside(const TextJob& job, const platform::Rectangle& area,
                             const recipes::Fixture* fixture);

std::string SelectLines(const std::vector<int>& lines);
// A line in the list is taken out, another one is put at its end.
std::string ToggleLine(const std::string& selection, int line);

}  // namespace morvane::textjob
