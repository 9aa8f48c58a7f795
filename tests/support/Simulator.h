// A simulated controller that goes with the test, on a loopback address of its own and a pseudo-terminal.
#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <string>
#include <vector>

#include "support/TempFolder.h"

namespace morvane::test {

// A loopback address that no other process's test uses: the controller's port is fixed.
inline std::string OwnAddress() {
  const auto id = static_cast<unsigned>(getpid());
  return "127." + std::to_string((id >> 16) % 254 + 1) + '.' + std::to_string(id >> 8 & 255) + '.' +
         std::to_string(id & 255);
}

class Simulator {
 public:
  // `address`: a loopback address, since the port is fixed. `faults`: "split=3", "times=1", ...
  explicit Simulator(const std::string& address, const std::vector<std::string>& faults = {}) {
    std::vector<std::string> words = {MORVANE_BIN_DIR "/morvane-sim",
                                      "--root",
                                      machine.Path(),
                                      "--tcp",
                                      address,
                                      "--pty",
                                      folder_ / "line",
                                      "--log",
                                      folder_ / "log"};
    for (const std::string& fault : faults) words.insert(words.end(), {"--fault", fault});
    int ends[2];
    if (pipe(ends) != 0) return;
    process_ = fork();
    if (process_ == 0) {
      std::vector<char*> arguments;
      for (std::string& word : words) arguments.push_back(word.data());
      arguments.push_back(nullptr);
      dup2(ends[1], STDOUT_FILENO);
      close(ends[0]);
      close(ends[1]);
      execv(arguments[0], arguments.data());
      _exit(127);
    }
    close(ends[1]);
    said_ = fdopen(ends[0], "r");
    ready = WaitFor("ready");
  }
  ~Simulator() {
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
    if (said_ != nullptr) fclose(said_);
  }
  Simulator(const Simulator&) = delete;
  Simulator& operator=(const Simulator&) = delete;

  std::string Line() const { return folder_ / "line"; }
  std::string Log() const { return folder_.Read("log"); }
  // Reads what it says until the line comes; false when it ends before.
  bool WaitFor(const std::string& line) {
    char text[512];
    while (said_ != nullptr && fgets(text, sizeof text, said_) != nullptr) {
      if (text == line + "\n") return true;
    }
    return false;
  }

  TempFolder machine;  // its files
  bool ready = false;

 private:
  TempFolder folder_;
  pid_t process_ = -1;
  FILE* said_ = nullptr;
};

}  // namespace morvane::test
