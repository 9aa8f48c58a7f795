#include "common/files/FileDialogs.h"

#include <algorithm>

#include "common/files/FileNames.h"

namespace morvane::common {
namespace {

std::string NativeFolder(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  return slash == 0 ? "/" : path.substr(0, slash == std::string::npos ? 0 : slash);
}

}  // namespace

std::string FileDialogs::OpenFileDialog(const std::string& filter, const std::string& defaultExtension,
                                        const std::string& fileName, const std::string& startFolder) {
  const auto request = Request("Open File", filter, defaultExtension, fileName, startFolder);
  return Remembered(filter, prompts_.OpenFile(request));
}

std::string FileDialogs::SaveFileDialog(const std::string& filter, const std::string& defaultExtension,
                                        const std::string& fileName, const std::string& startFolder) {
  const auto request = Request("Save File As", filter, defaultExtension, fileName, startFolder);
  return Remembered(filter, prompts_.SaveFile(request));
}

ChosenFiles FileDialogs::MultiOpenDialog(const std::string& filter, const std::string& defaultExtension,
                                         const std::string& startFolder, const std::string& title) {
  const auto request = Request(title, filter, defaultExtension, "", startFolder);
  const std::vector<std::string> paths = prompts_.OpenFiles(request);
  if (paths.empty()) return {};
  std::vector<std::string> names;
  for (const std::string& path : paths) names.push_back(Remembered(filter, path));
  ChosenFiles chosen{PathDirectory(names.front()), {}};
  // A name that the code page lacks comes back as a native path; then all do, to share one folder.
  const bool shared = std::all_of(names.begin(), names.end(), [&chosen](const std::string& name) {
    return PathDirectory(name) == chosen.directory;
  });
  if (!shared) chosen.directory = PathDirectory(paths.front());
  for (const std::string& name : shared ? names : paths) chosen.names.push_back(PathFileName(name));
  return chosen;
}

platform::FileDialogRequest FileDialogs::Request(const std::string& title, const std::string& filter,
                                                 const std::string& defaultExtension,
                                                 const std::string& fileName,
                                                 const std::string& startFolder) const {
  const auto remembered = folders_.find(filter);
  std::string directory = startFolder;
  if (directory.empty())
    directory = remembered == folders_.end() ? files_.BaseDirectory() : remembered->second;
  return {title, filter, defaultExtension, fileName, directory};
}

std::string FileDialogs::Remembered(const std::string& filter, const std::string& nativePath) {
  if (nativePath.empty()) return {};
  folders_[filter] = NativeFolder(nativePath);
  return files_.ProgramName(nativePath);
}

}  // namespace morvane::common
