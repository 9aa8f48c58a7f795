// The background images of the base directory: which there are, where each one stands, and new ones.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "common/Settings.h"
#include "common/files/FileDialogs.h"

namespace morvane::common {

// Names of all image files in the base directory, by kind.
std::vector<std::string> ImageFiles(const Files& files);

// X, Y, width and height of an image as the settings remember them, in text.
using ImageRectangle = std::array<std::string, 4>;
ImageRectangle ReadImageRectangle(const Settings& settings, const std::string& image);
// What remembers them; nothing for a name that cannot be a key, which is left without a memory.
std::vector<SettingChange> ImageRectangleChanges(const std::string& image, const ImageRectangle& place);

// Lets the user choose an image and copies it into the base directory when it lies elsewhere. Its bare
// name; empty when cancelled. Throws the run-time error of the failure.
std::string ImportImage(const Files& files, FileDialogs& dialogs);

}  // namespace morvane::common
