#include "link/ControllerNames.h"

#include <algorithm>

#include "common/RunTimeError.h"
#include "link/wire/LineEnds.h"

namespace morvane::link {
namespace {

constexpr std::size_t kShown = 80;  // characters of a name that nobody could read to its end

}  // namespace

bool AcceptName(const common::Files& files, platform::Prompts& prompts, const std::string& name) {
  try {
    files.ResolveInside(name);
    return true;
  } catch (const common::RunTimeError&) {
    prompts.MsgBox("This name leads out of the folder and is refused: " +
                   PrintableName(name.substr(0, kShown)));
    return false;
  }
}

std::string PrintableName(std::string name) {
  const auto control = [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; };
  std::replace_if(name.begin(), name.end(), control, '?');
  return name;
}

std::vector<std::string> ListedNames(const common::Files& files) {
  std::vector<std::string> names = ReadLines(files, kListing);
  const auto isBlank = [](const std::string& name) { return name.find_first_not_of(' ') == name.npos; };
  names.erase(std::remove_if(names.begin(), names.end(), isBlank), names.end());
  return names;
}

std::string WaitText(const std::string& what) {
  return what + "\r\n\r\n" + "Please Wait ...";
}

}  // namespace morvane::link
