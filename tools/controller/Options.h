// What the simulated controller is started with.
#pragma once

#include <string>
#include <vector>

#include "controller/Faults.h"

namespace morvane::controller {

struct Options {
  std::string root;     // the machine's files
  std::string address;  // empty: no network
  bool terminal = false;
  std::string link;  // empty: the pseudo-terminal's own name only
  std::string log;   // empty: none
  Faults faults;
};

// False when the arguments cannot be understood.
bool ReadOptions(const std::vector<std::string>& arguments, Options& options);
std::string UsageText();

}  // namespace morvane::controller
