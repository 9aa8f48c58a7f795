// Starting other programs. Arguments go to the operating system as a list, never through a shell.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace morvane::platform {

class Process {
 public:
  // Leaves a running process alone; a finished one is reaped.
  virtual ~Process() = default;
  // Nothing while the process runs. One that a signal ended reports 128 plus the signal.
  virtual std::optional<int> ExitCode() = 0;
  virtual void Terminate() = 0;
};

class Processes {
 public:
  virtual ~Processes() = default;
  // `program` is a native path; null when it could not be started.
  virtual std::unique_ptr<Process> Start(const std::string& program,
                                         const std::vector<std::string>& arguments,
                                         const std::string& workingDirectory) = 0;
};

}  // namespace morvane::platform
