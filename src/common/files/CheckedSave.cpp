#include "common/files/CheckedSave.h"

#include <memory>
#include <vector>

#include "common/RunTimeError.h"
#include "common/text/Text.h"

namespace morvane::common {
namespace {

using platform::EntryKind;
using platform::Error;
using platform::FileSystem;
using platform::OutputFile;

constexpr std::string_view kLeftoverStart = ".morvane-save-";
// Temporary names tried before giving up; all taken means that someone else fills the folder.
constexpr int kMostTemporaries = 1000;

std::string DirectoryOf(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string Beside(const std::string& directory, std::string_view name) {
  std::string path = directory == "/" ? "" : directory;
  return path.append("/").append(name);
}

void RequireReplaceable(const FileSystem& fileSystem, const std::string& target) {
  const platform::FileStatus status = fileSystem.Status(target);
  if (status.kind == EntryKind::Missing) return;
  if (status.kind != EntryKind::File) throw RunTimeError(kPathFileAccessError);
  if (!status.writable) throw RunTimeError(kPermissionDenied);
}

// Another process may be saving in the same folder, so the name must be new.
std::unique_ptr<OutputFile> CreateTemporary(FileSystem& fileSystem, const std::string& target,
                                            std::string& temporary) {
  Error error = Error::AlreadyExists;
  std::unique_ptr<OutputFile> file;
  for (int number = 0; number < kMostTemporaries && error == Error::AlreadyExists; ++number) {
    temporary = Beside(DirectoryOf(target), std::string(kLeftoverStart).append(std::to_string(number)));
    error = Error::None;
    file = fileSystem.CreateNew(temporary, target, error);
  }
  ThrowIf(error);
  return file;
}

Error WriteWhole(FileSystem& fileSystem, OutputFile& file, const std::string& path, std::string_view bytes) {
  Error error = file.Write(bytes);
  if (error == Error::None) error = file.Sync();
  const Error closing = file.Close();
  if (error == Error::None) error = closing;
  if (error == Error::None && fileSystem.Status(path).size != bytes.size()) error = Error::DeviceError;
  return error;
}

}  // namespace

void CheckedSave(FileSystem& fileSystem, const std::string& target, std::string_view bytes) {
  const std::string realTarget = fileSystem.RealPath(target);
  RequireReplaceable(fileSystem, realTarget);
  std::string temporary;
  const std::unique_ptr<OutputFile> file = CreateTemporary(fileSystem, realTarget, temporary);
  Error error = WriteWhole(fileSystem, *file, temporary, bytes);
  if (error == Error::None) error = fileSystem.Rename(temporary, realTarget);
  if (error != Error::None) fileSystem.Remove(temporary);
  ThrowIf(error);
  ThrowIf(fileSystem.SyncDirectory(DirectoryOf(realTarget)));
}

bool IsSaveLeftover(std::string_view fileName) {
  return StartsWith(fileName, kLeftoverStart);
}

void ClearSaveLeftovers(FileSystem& fileSystem, const std::string& directory) {
  std::vector<std::string> names;
  fileSystem.List(directory, names);
  for (const std::string& name : names) {
    if (IsSaveLeftover(name)) fileSystem.Remove(Beside(directory, name));
  }
}

}  // namespace morvane::common
