#include "platform/posix/PosixPaths.h"

#include <limits.h>
#include <pwd.h>
#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

namespace morvane::platform {
namespace {

// As many as the system itself follows.
constexpr int kMostLinks = 40;

std::string Environment(const char* name) {
  const char* value = getenv(name);
  return value == nullptr ? std::string() : value;
}

std::string LinkTarget(const std::string& path) {
  char target[PATH_MAX];
  const ssize_t length = readlink(path.c_str(), target, sizeof target);
  return length > 0 ? std::string(target, static_cast<std::size_t>(length)) : std::string();
}

std::string ParentOf(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string Joined(const std::string& directory, const std::string& name) {
  return directory == "/" ? directory + name : directory + "/" + name;
}

bool Follow(const std::string& path, int linksLeft, std::string& real) {
  const std::unique_ptr<char, decltype(&free)> resolved(realpath(path.c_str(), nullptr), &free);
  if (resolved) {
    real = resolved.get();
    return true;
  }
  if (errno != ENOENT || path == "/" || path == "." || path.empty() || linksLeft == 0) return false;
  std::string parent;
  if (!Follow(ParentOf(path), linksLeft, parent)) return false;
  const std::string name = path.substr(path.find_last_of('/') + 1);
  const std::string target = LinkTarget(Joined(parent, name));
  if (!target.empty()) {
    return Follow(target.front() == '/' ? target : Joined(parent, target), linksLeft - 1, real);
  }
  real = name == ".." ? ParentOf(parent) : name.empty() || name == "." ? parent : Joined(parent, name);
  return true;
}

}  // namespace

std::string PosixRealPath(const std::string& path) {
  std::string real;
  return path.size() < PATH_MAX && Follow(path, kMostLinks, real) ? real : path;
}

std::string UserConfigDirectory() {
  std::string directory = Environment("XDG_CONFIG_HOME");
  if (!directory.empty() && directory.front() == '/') return directory;
  std::string home = Environment("HOME");
  if (home.empty()) {
    const passwd* user = getpwuid(geteuid());
    home = user == nullptr ? "/" : user->pw_dir;
  }
  return Joined(home, ".config");
}

}  // namespace morvane::platform
