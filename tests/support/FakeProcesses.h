// Side programs by script: what each start does, how long it runs, and how it ends.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/Processes.h"

namespace morvane::test {

class FakeProcesses : public platform::Processes {
 public:
  struct Script {
    bool starts = true;
    int pollsUntilEnd = 0;  // questions for the exit code that find it running; -1: runs for ever
    int exitCode = 0;
    std::function<void()> effect;  // what the program does, at its start
  };
  struct Run {
    std::string program;
    std::vector<std::string> arguments;
    std::string workingDirectory;
    bool terminated = false;
  };
  // One for each start, from the front; when it is empty, programs start and end with 0.
  std::deque<Script> scripts;
  std::deque<Run> runs;

  std::unique_ptr<platform::Process> Start(const std::string& program,
                                           const std::vector<std::string>& arguments,
                                           const std::string& workingDirectory) override {
    const Script script = scripts.empty() ? Script() : scripts.front();
    if (!scripts.empty()) scripts.pop_front();
    runs.push_back({program, arguments, workingDirectory});
    if (!script.starts) return nullptr;
    if (script.effect) script.effect();
    return std::make_unique<Process>(script, runs.back());
  }

 private:
  class Process : public platform::Process {
   public:
    Process(Script script, Run& run) : script_(std::move(script)), run_(run) {}
    std::optional<int> ExitCode() override {
      if (run_.terminated) return 128 + 15;
      if (script_.pollsUntilEnd == 0) return script_.exitCode;
      if (script_.pollsUntilEnd > 0) --script_.pollsUntilEnd;
      return std::nullopt;
    }
    void Terminate() override { run_.terminated = script_.pollsUntilEnd != 0; }

   private:
    Script script_;
    Run& run_;
  };
};

}  // namespace morvane::test
