// A base directory in memory whose side programs follow a script.
#pragma once

#include <string>

#include "common/RunAndWait.h"
#include "support/BaseStation.h"
#include "support/FakeProcesses.h"

namespace morvane::test {

struct SideProgramStation : BaseStation {
  explicit SideProgramStation(const std::string& tool) { disk.Put("/base/" + tool, "program"); }

  // The next start of a side program writes a file below the base directory and ends.
  void Expect(const std::string& file, const std::string& bytes, int exitCode = 0) {
    processes.scripts.push_back({true, 1, exitCode, [=, this] { disk.Put("/base/" + file, bytes); }});
  }
  void ExpectEnd(int exitCode) { processes.scripts.push_back({true, 0, exitCode, {}}); }
  void ExpectNoStart() { processes.scripts.push_back({false, 0, 0, {}}); }

  FakeProcesses processes;
  bool abort = false;
  common::ProcessRunner runner{processes, clock, files, "/program", abort};
};

}  // namespace morvane::test
