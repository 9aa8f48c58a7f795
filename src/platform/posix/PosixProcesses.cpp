#include "platform/posix/PosixProcesses.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

extern char** environ;

namespace morvane::platform {
namespace {

using Abandoned = std::shared_ptr<std::vector<pid_t>>;

// Nothing while the process runs; it is reaped when it does not.
std::optional<int> TakeExitCode(pid_t process) {
  int status = 0;
  pid_t found = -1;
  do {
    found = waitpid(process, &status, WNOHANG);
  } while (found < 0 && errno == EINTR);
  if (found == 0) return std::nullopt;
  if (found < 0) return -1;  // someone else has reaped it
  return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

class PosixProcess : public Process {
 public:
  PosixProcess(pid_t process, Abandoned abandoned) : process_(process), abandoned_(std::move(abandoned)) {}
  ~PosixProcess() override {
    if (!ExitCode()) abandoned_->push_back(process_);
  }
  PosixProcess(const PosixProcess&) = delete;
  PosixProcess& operator=(const PosixProcess&) = delete;

  std::optional<int> ExitCode() override {
    if (!code_) code_ = TakeExitCode(process_);
    return code_;
  }
  void Terminate() override {
    if (!ExitCode()) kill(process_, SIGTERM);
  }

 private:
  pid_t process_;
  Abandoned abandoned_;
  std::optional<int> code_;
};

// What the child gets: its folder, its standard streams, and signals as a fresh program has them.
class Setup {
 public:
  explicit Setup(const std::string& workingDirectory) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addchdir_np(&actions_, workingDirectory.c_str());
    posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions_, STDERR_FILENO, STDOUT_FILENO);
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_init(&attributes_);
    posix_spawnattr_setsigmask(&attributes_, &none);
    posix_spawnattr_setsigdefault(&attributes_, &all);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }
  ~Setup() {
    posix_spawn_file_actions_destroy(&actions_);
    posix_spawnattr_destroy(&attributes_);
  }
  Setup(const Setup&) = delete;
  Setup& operator=(const Setup&) = delete;
  const posix_spawn_file_actions_t* actions() const { return &actions_; }
  const posix_spawnattr_t* attributes() const { return &attributes_; }

 private:
  posix_spawn_file_actions_t actions_{};
  posix_spawnattr_t attributes_{};
};

bool HasNul(const std::string& text) {
  return text.find('\0') != std::string::npos;
}

}  // namespace

std::unique_ptr<Process> PosixProcesses::Start(const std::string& program,
                                               const std::vector<std::string>& arguments,
                                               const std::string& workingDirectory) {
  abandoned_->erase(std::remove_if(abandoned_->begin(), abandoned_->end(),
                                   [](pid_t process) { return TakeExitCode(process).has_value(); }),
                    abandoned_->end());
  // The system would cut such a text short.
  if (HasNul(program) || std::any_of(arguments.begin(), arguments.end(), HasNul)) return nullptr;
  std::vector<std::string> texts{program};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  const Setup setup(workingDirectory);
  pid_t process = 0;
  if (posix_spawn(&process, program.c_str(), setup.actions(), setup.attributes(), pointers.data(), environ) !=
      0) {
    return nullptr;
  }
  return std::make_unique<PosixProcess>(process, abandoned_);
}

}  // namespace morvane::platform
