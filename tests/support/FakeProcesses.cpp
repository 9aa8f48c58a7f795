#include "support/FakeProcesses.h"

namespace morvane::test {
namespace {

class FakeProcess : public platform::Process {
 public:
  FakeProcess(FakeProcesses::Script script, FakeProcesses::Run& run)
      : script_(std::move(script)), run_(run) {}

  std::optional<int> ExitCode() override {
    if (run_.terminated) return 128 + 15;
    if (script_.pollsUntilEnd == 0) return script_.exitCode;
    if (script_.pollsUntilEnd > 0) --script_.pollsUntilEnd;
    return std::nullopt;
  }
  void Terminate() override {
    if (script_.pollsUntilEnd != 0) run_.terminated = true;
  }

 private:
  FakeProcesses::Script script_;
  FakeProcesses::Run& run_;
};

}  // namespace

std::unique_ptr<platform::Process> FakeProcesses::Start(const std::string& program,
                                                        const std::vector<std::string>& arguments,
                                                        const std::string& workingDirectory) {
  Script script;
  if (!scripts.empty()) {
    script = std::move(scripts.front());
    scripts.pop_front();
  }
  runs.push_back({program, arguments, workingDirectory});
  if (!script.starts) return nullptr;
  if (script.effect) script.effect();
  return std::make_unique<FakeProcess>(std::move(script), runs.back());
}

}  // namespace morvane::test
