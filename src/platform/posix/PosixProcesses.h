// Starts programs of the machine.
#pragma once

#include <sys/types.h>

#include "platform/Processes.h"

namespace morvane::platform {

// Programs get no input and write their output to this program's standard error, so that the standard
// output of a command keeps to its own results.
class PosixProcesses : public Processes {
 public:
  std::unique_ptr<Process> Start(const std::string& program, const std::vector<std::string>& arguments,
                                 const std::string& workingDirectory) override;

 private:
  // Programs that were left running by their Process; they are reaped at the next start.
  std::shared_ptr<std::vector<pid_t>> abandoned_ = std::make_shared<std::vector<pid_t>>();
};

}  // namespace morvane::platform
