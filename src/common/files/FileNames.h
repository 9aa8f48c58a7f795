// Names of files as the program and the controller write them: 8.3, backslashes.
#pragma once

#include <string>
#include <string_view>

namespace morvane::common {

// Text before the first "."; the text itself when it has no point. For bare 8.3 names.
std::string FileBaseName(std::string_view name);
// Text after the first "."; empty when it has no point.
std::string FileExtension(std::string_view name);
// Text after the last "\" (or "/", as native paths have it).
std::string PathFileName(std::string_view path);
// Text before the last "\" (or "/"); empty when there is none.
std::string PathDirectory(std::string_view path);
// True when the name suits the controller's 8.3 file system, else False with the message.
bool CheckFileName(std::string_view path, std::string& message);
// True when `name` matches a pattern of "*" and "?" without regard to case.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace morvane::common
