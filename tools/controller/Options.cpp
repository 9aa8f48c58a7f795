#include "controller/Options.h"

namespace morvane::controller {

bool ReadOptions(const std::vector<std::string>& arguments, Options& options) {
  for (std::size_t i = 0; i + 1 < arguments.size(); i += 2) {
    const std::string& name = arguments[i];
    const std::string& value = arguments[i + 1];
    if (name == "--root") {
      options.root = value;
    } else if (name == "--tcp") {
      options.address = value;
    } else if (name == "--pty") {
      options.terminal = true;
      options.link = value == "-" ? "" : value;
    } else if (name == "--log") {
      options.log = value;
    } else if (name != "--fault" || !options.faults.Add(value)) {
      return false;
    }
  }
  return arguments.size() % 2 == 0 && !options.root.empty() && (options.terminal || !options.address.empty());
}

std::string UsageText() {
  return "usage: morvane-sim --root DIR [--tcp ADDRESS] [--pty LINK] [--log FILE] [--fault NAME[=VALUE] "
         "...]\n\n"
         "A machine on the desk. Its files lie in DIR; it listens on port 2000 of the loopback ADDRESS, on "
         "a\n"
         "pseudo-terminal that LINK names (\"-\": no link), or on both, until it is ended.\n\n"
         "Faults: " +
         Faults::Names() + "\n";
}

}  // namespace morvane::controller
