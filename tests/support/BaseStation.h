// A base directory in memory, and what works on it: files, settings, a user and a clock by script.
#pragma once

#include "common/Settings.h"
#include "common/files/FileDialogs.h"
#include "support/FakeClock.h"
#include "support/FakeFileSystem.h"
#include "support/FakeLocale.h"
#include "support/FakePrompts.h"

namespace morvane::test {

struct BaseStation {
  FakeFileSystem disk;
  common::Files files{disk, "/base"};
  common::Settings settings{files};
  FakeClock clock;
  FakeLocale locale;
  FakePrompts prompts;
  common::DialogFolders folders;
  common::FileDialogs dialogs{prompts, files, folders};
};

}  // namespace morvane::test
