// morvane-sim: a simulated controller over TCP and a pseudo-terminal.
#include <signal.h>
#include <sys/signalfd.h>

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "controller/Service.h"
#include "platform/posix/PosixFileSystem.h"

namespace {

using namespace morvane;

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

// Readable when the program is to end.
int StopSignal() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGTERM);
  sigaddset(&signals, SIGINT);
  sigprocmask(SIG_BLOCK, &signals, nullptr);
  signal(SIGPIPE, SIG_IGN);
  return signalfd(-1, &signals, SFD_CLOEXEC);
}

int Run(const controller::Options& options) {
  const int stop = StopSignal();
  std::filesystem::create_directories(options.root);
  platform::PosixFileSystem fileSystem;
  const common::Files files(fileSystem, std::filesystem::absolute(options.root).lexically_normal().string());
  const controller::Store store(files);
  controller::WireLog log;
  if (!options.log.empty() && !log.Open(options.log)) {
    std::cerr << "morvane-sim: " << options.log << " cannot be written\n";
    return kFailed;
  }
  controller::Service service(options, store, log);
  std::string error;
  if (!service.Open(error)) {
    std::cerr << "morvane-sim: " << error << '\n';
    return kFailed;
  }
  service.Run(stop);
  return 0;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  controller::Options options;
  if (!controller::ReadOptions({arguments + 1, arguments + argumentCount}, options)) {
    std::cerr << controller::UsageText();
    return kWrongUsage;
  }
  try {
    return Run(options);
  } catch (const std::exception& failure) {
    std::cerr << "morvane-sim: " << failure.what() << '\n';
    return kFailed;
  }
}
