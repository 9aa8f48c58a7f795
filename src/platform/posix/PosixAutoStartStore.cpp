#include "platform/posix/PosixAutoStartStore.h"

#include <algorithm>

#include "common/RunTimeError.h"
#include "common/files/CheckedSave.h"

namespace morvane::platform {
namespace {

constexpr std::string_view kSuffix = ".desktop";

bool IsPlainName(const std::string& name) {
  return !name.empty() && name.front() != '.' && std::none_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) < 32 || c == '/';
  });
}

// A program path as the Exec line quotes it: the quoting of the key inside the escaping of strings, so a
// backslash takes four, and a percent sign two of itself.
std::string ExecText(const std::string& program) {
  std::string text = "\"";
  for (char c : program) {
    switch (c) {
      case '\\':
        text += "\\\\\\\\";
        break;
      case '"':
      case '`':
      case '$':
        text.append("\\\\") += c;
        break;
      case '%':
        text += "%%";
        break;
      default:
        text += c;
    }
  }
  return text + "\"";
}

}  // namespace

std::vector<std::string> PosixAutoStartStore::Names() const {
  std::vector<std::string> names;
  fileSystem_.List(directory_, names);
  std::vector<std::string> result;
  for (const std::string& name : names) {
    if (name.size() <= kSuffix.size() || name.substr(name.size() - kSuffix.size()) != kSuffix) continue;
    result.push_back(name.substr(0, name.size() - kSuffix.size()));
  }
  std::sort(result.begin(), result.end());
  return result;
}

bool PosixAutoStartStore::Write(const std::string& name, const std::string& command) {
  const bool oneLine = command.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos;
  if (!IsPlainName(name) || command.empty() || !oneLine) return false;
  fileSystem_.MakeDirectory(configDirectory_);
  fileSystem_.MakeDirectory(directory_);
  const std::string entry = "[Desktop Entry]\nType=Application\nName=" + name +
                            "\nExec=" + ExecText(command) + "\nTerminal=false\n";
  try {
    common::CheckedSave(fileSystem_, directory_ + "/" + name + std::string(kSuffix), entry);
    return true;
  } catch (const common::RunTimeError&) {
    return false;
  }
}

bool PosixAutoStartStore::Remove(const std::string& name) {
  if (!IsPlainName(name)) return false;
  const Error error = fileSystem_.Remove(directory_ + "/" + name + std::string(kSuffix));
  return error == Error::None || error == Error::FileNotFound || error == Error::PathNotFound;
}

}  // namespace morvane::platform
