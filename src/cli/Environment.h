// What the command line has one of: the same core services as the windows, without a display.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/CliPrompts.h"
#include "common/RunAndWait.h"
#include "common/Settings.h"
#include "common/files/Files.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixProcesses.h"
#include "platform/qt/QtLocale.h"

namespace morvane::cli {

// Thrown for a call that the command line does not understand.
struct UsageError {};

struct GlobalOptions {
  std::string base;  // empty: MORVANE_BASE, else the program's own directory
  std::optional<platform::DateTime> now;
  bool yes = false;
};

class Environment {
 public:
  Environment(const GlobalOptions& options, const std::string& programDirectory);

  // Program name of a file argument: a bare name lies in the base directory when a file of that name does,
  // everything else is looked for from the working directory first, as a shell would.
  std::string FileArgument(std::string_view argument) const;
  // Native path of an output: beside the input for a bare name whose input lies in the base directory.
  std::string OutputArgument(std::string_view argument, std::string_view input) const;

  bool yes;
  std::optional<platform::DateTime> now;  // in place of the present time
  platform::PosixFileSystem fileSystem;
  common::Files files;
  common::Settings settings;
  platform::PosixClock clock;
  platform::QtLocale locale;
  platform::PosixProcesses processes;
  CliPrompts prompts;
  bool abort = false;
  common::ProcessRunner runner;

 private:
  std::string workingDirectory_;
};

}  // namespace morvane::cli
