// Reads sent text files back and compares them: the only way to know what the controller took.
#pragma once

#include <string>

#include "link/Wrappers.h"

namespace morvane::link {

// The first line that differs.
struct Difference {
  std::size_t line = 0;  // from 1; 0: there is none
  std::string local;     // a line behind the end of a file is "<end of file>"
  std::string remote;
};
Difference CompareLines(std::string_view local, std::string_view remote);

// Asks for local files and compares each with the controller's file of its name; stops at the first that
// differs. A job is kept on the controller as it is here.
bool VerifyFiles(const WrapperSources& sources, const std::string& filter, const std::string& extension);
// One file, by program name. Says "verified" or names the first difference.
bool VerifyFile(const WrapperSources& sources, const std::string& localPath, const std::string& remoteName);

}  // namespace morvane::link
