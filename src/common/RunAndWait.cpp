#include "common/RunAndWait.h"

#include <algorithm>

#include "common/text/Text.h"

namespace morvane::common {
namespace {

constexpr int kShortestPoll = 10;   // milliseconds; most side programs are done in a few of these
constexpr int kLongestPoll = 1000;  // milliseconds

}  // namespace

int ProcessRunner::RunAndWait(std::string_view program, const std::vector<std::string>& arguments,
                              bool wait) const {
  std::string path = files.Resolve(program);
  if (!files.FileExists(program)) path = Files(files.System(), programDirectory).Resolve(program);
  std::vector<std::string> nativeArguments;
  for (const std::string& argument : arguments) nativeArguments.push_back(ToUtf8(argument));
  const std::unique_ptr<platform::Process> process =
      processes.Start(path, nativeArguments, files.BaseDirectory());
  if (!process) return kCannotStart;
  if (!wait) return 0;
  for (int interval = kShortestPoll;; interval = std::min(interval * 2, kLongestPoll)) {
    if (const std::optional<int> code = process->ExitCode()) return *code;
    if (abort) {
      process->Terminate();
      return kStillActive;
    }
    clock.Sleep(interval);
  }
}

}  // namespace morvane::common
