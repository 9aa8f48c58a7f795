// The one-time move of the settings that an older release kept for each user.
#pragma once

#include "common/Settings.h"
#include "platform/Stores.h"

namespace morvane::common {

// Runs at each start and does its work once: every key of sections `Settings` (but `Developer`, which
// stays behind) and `Machines` moves to the ini file, and `Imported` there becomes "1". Keys leave the
// older store only when the ini file is safely written; keys that an ini file cannot hold stay. Throws
// the run-time error of a failed write, with nothing moved.
void ImportSettings(platform::PerUserStore& store, const Settings& settings);

}  // namespace morvane::common
