// Runs a side program to its end while the user interface stays alive.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/files/Files.h"
#include "platform/Clock.h"
#include "platform/Processes.h"

namespace morvane::common {

inline constexpr int kCannotStart = -999;
inline constexpr int kStillActive = 259;

// What the process has one of, for running side programs.
struct ProcessRunner {
  platform::Processes& processes;
  platform::Clock& clock;
  const Files& files;
  std::string programDirectory;  // native; where the main program lies
  const bool& abort;             // set when the program closes: ends every wait

  // Looks for `program` in the base directory, then beside the main program, and starts it with the
  // base directory as its folder. Arguments are text in the core's code page (name files relative to
  // that folder) and reach the program in UTF-8. With `wait`, polls until it ends and returns its exit code;
  // without, returns 0. kCannotStart when it could not be started; kStillActive when `abort` ended the wait
  // (the side program is ended then, since nobody could do so later).
  int RunAndWait(std::string_view program, const std::vector<std::string>& arguments, bool wait = true) const;
};

}  // namespace morvane::common
