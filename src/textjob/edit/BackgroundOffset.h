// The background image of a job goes along when the whole job moves.
#pragma once

#include <string>

#include "common/Settings.h"
#include "common/files/Files.h"
#include "textjob/job/BesideChange.h"

namespace morvane::textjob {

// What an offset by `dx`, `dy` changes: the job's lock record if it has one, else the image of the settings,
// with the place that is remembered under the image's name. Nothing without an image.
BesideChange OffsetBackground(const common::Files& files, const common::Settings& settings,
                              const std::string& jobName, float dx, float dy);

// Writes the values. Throws the run-time error of the failure.
void ApplyBeside(const common::Files& files, const common::Settings& settings, const BesideValues& values);

}  // namespace morvane::textjob
