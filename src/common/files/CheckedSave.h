// The one way in which documents and settings reach the disk: the target is whole at every moment, the
// old bytes or the new ones, whatever fails.
#pragma once

#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace morvane::common {

// Writes a temporary file beside `target` (native), every step checked, and renames it over the target.
// On a failure the target stays as it was, the temporary file is gone, and the run-time error is thrown.
// (When the folder alone cannot be synced, the new file is in place; that failure is thrown too.) A
// symbolic link is followed, so the file that it names is replaced. Read-only: "Permission denied".
void CheckedSave(platform::FileSystem& fileSystem, const std::string& target, std::string_view bytes);

bool IsSaveLeftover(std::string_view fileName);
// Removes what interrupted saves left in the directory; failures are ignored.
void ClearSaveLeftovers(platform::FileSystem& fileSystem, const std::string& directory);

}  // namespace morvane::common
