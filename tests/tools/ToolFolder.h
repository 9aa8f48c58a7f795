// A side program is judged as the host sees it: by a folder, an exit code and the files that it leaves.
#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>

#include "support/TempFolder.h"

namespace morvane::test {

// Stands for the application folder, where side programs run.
class ToolFolder : public TempFolder {
 public:
  void MakeFolder(const std::string& name) const { std::filesystem::create_directory(*this / name); }

  // Every file and folder below this one, by relative path.
  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(Path())) {
      names.insert(std::filesystem::relative(entry.path(), Path()).string());
    }
    return names;
  }

  // `command` is a program of the build and its arguments, quoted for the shell. What it says on standard
  // error goes to `errors`. -1 when a signal ended it.
  int Run(const std::string& command) {
    const std::string line =
        "cd '" + Path() + "' && '" MORVANE_BIN_DIR "'/" + command + " 2> '" + (log_ / "errors") + "'";
    const int status = std::system(line.c_str());
    errors = log_.Read("errors");
    return WIFEXITED(status) && WEXITSTATUS(status) < 128 ? WEXITSTATUS(status) : -1;
  }

  std::string errors;

 private:
  TempFolder log_;
};

}  // namespace morvane::test
