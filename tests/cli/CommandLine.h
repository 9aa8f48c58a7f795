// A base directory, and the command line run on it from there.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tools/ToolFolder.h"

namespace morvane::test {

class CommandLine : public testing::Test {
 protected:
  int Run(const std::string& arguments) {
    const int status = folder.Run("morvane-cli --base . --now '2026-03-09 14:05:07' " + arguments + " > out");
    out = folder.Read("out");
    return status;
  }

  ToolFolder folder;
  std::string out;
};

}  // namespace morvane::test
