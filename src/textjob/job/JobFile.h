// Loads and saves the text job, and tells its user when that fails.
#pragma once

#include <string>
#include <vector>

#include "common/Settings.h"
#include "common/files/Files.h"
#include "platform/Clock.h"
#include "platform/Locale.h"
#include "platform/Prompts.h"
#include "textjob/job/TextJob.h"

namespace morvane::textjob {

// Reads the job of that program name; `<NEW>` gives an empty job and keeps the comment. On failure shows
// "Load(NAME) " and the error, keeps what has been read so far and returns false.
bool LoadTjbFile(TextJob& job, const std::string& name, const common::Files& files,
                 platform::Prompts& prompts);

// Writes the job, checked, and clears its dirty flag. On failure shows "Save(NAME) " and the error; the
// file stays as it was.
bool SaveTjbFile(TextJob& job, const std::string& name, const common::Files& files,
                 platform::Prompts& prompts);

// Entries of the job selector: `<NEW>`, then every job of the base directory, then `wanted` when it is
// not among them. `selected` is the index of `wanted`, compared without regard to case.
std::vector<std::string> JobList(const common::Files& files, const std::string& wanted,
                                 std::size_t& selected);

// What the New Line button adds: a Normal line at the origin. A new job (`name` is `<NEW>`) without lines
// and comment gets its comment first.
std::string NewJobLine(TextJob& job, const std::string& name, const common::SettingsSnapshot& settings,
                       const platform::Clock& clock, const platform::Locale& locale);

}  // namespace morvane::textjob
