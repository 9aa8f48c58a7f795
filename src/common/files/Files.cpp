#include "common/files/Files.h"

#include <algorithm>
#include <memory>

#include "common/RunTimeError.h"
#include "common/files/CheckedSave.h"
#include "common/files/FileNames.h"
#include "common/text/Text.h"

namespace morvane::common {
namespace {

using platform::EntryKind;
using platform::Error;
using platform::FileStatus;

constexpr std::string_view kTempFolder = "\\Temp\\";

bool SortsBefore(const std::string& a, const std::string& b) {
  if (LessIgnoringCase(a, b)) return true;
  return !LessIgnoringCase(b, a) && a < b;
}

}  // namespace

Files::Files(platform::FileSystem& fileSystem, std::string baseDirectory, std::string temporaryDirectory)
    : fileSystem_(fileSystem),
      paths_(fileSystem, std::move(baseDirectory), std::move(temporaryDirectory)),
      cache_(std::make_unique<FileCache>(fileSystem)) {}

std::string Files::Resolve(std::string_view name) const {
  return paths_.Resolve(name);
}

std::string Files::ResolveInside(std::string_view name, std::string_view folder) const {
  return paths_.ResolveInside(name, folder);
}

std::string Files::ProgramName(const std::string& nativePath) const {
  return paths_.ProgramName(nativePath);
}

bool Files::FileExists(std::string_view name) const {
  const EntryKind kind = fileSystem_.Status(Resolve(name)).kind;
  return kind != EntryKind::Missing && kind != EntryKind::Directory;
}

std::string Files::ReadNative(const std::string& path) const {
  std::string bytes;
  ThrowIf(fileSystem_.Read(path, bytes));
  return bytes;
}

std::string Files::Read(std::string_view name) const {
  return ReadNative(Resolve(name));
}

std::string Files::ReadInside(std::string_view name) const {
  return ReadNative(ResolveInside(name));
}

std::int64_t Files::ModifiedTime(std::string_view name) const {
  const FileStatus status = fileSystem_.Status(Resolve(name));
  if (status.kind == EntryKind::Missing) throw RunTimeError(kFileNotFound);
  return status.modifiedNanoseconds;
}

std::vector<std::string> Files::List(std::string_view pattern, std::string_view folder) const {
  const std::string directory = Resolve(folder);
  std::vector<std::string> nativeNames;
  std::vector<std::string> result;
  fileSystem_.List(directory, nativeNames);
  for (const std::string& native : nativeNames) {
    if (!IsExpressible(native) || IsSaveLeftover(native)) continue;
    std::string name = FromUtf8(native);
    if (!MatchesPattern(name, pattern)) continue;
    if (fileSystem_.Status(directory + "/" + native).kind == EntryKind::File) {
      result.push_back(std::move(name));
    }
  }
  std::sort(result.begin(), result.end(), SortsBefore);
  return result;
}

void Files::RemoveQuietly(std::string_view name) const {
  const std::string path = Resolve(name);
  cache_->Forget(path);
  fileSystem_.Remove(path);
}

void Files::Copy(std::string_view from, std::string_view to) const {
  // A copy onto itself would truncate the file first.
  if (fileSystem_.RealPath(Resolve(from)) == fileSystem_.RealPath(Resolve(to))) return;
  WriteStraight(to, Read(from));
}

void Files::WriteStraight(std::string_view name, std::string_view bytes) const {
  const std::string path = Resolve(name);
  cache_->Forget(path);
  const FileStatus status = fileSystem_.Status(path);
  if (status.kind == EntryKind::File && !status.writable) throw RunTimeError(kPermissionDenied);
  Error error = Error::None;
  const std::unique_ptr<platform::OutputFile> file = fileSystem_.Create(path, error);
  ThrowIf(error);
  error = file->Write(bytes);
  const Error closing = file->Close();
  ThrowIf(error);
  ThrowIf(closing);
}

void Files::Save(std::string_view name, std::string_view bytes) const {
  const std::string path = Resolve(name);
  cache_->Forget(path);
  CheckedSave(fileSystem_, path, bytes);
}

void Files::ClearLeftovers() const {
  ClearSaveLeftovers(fileSystem_, BaseDirectory());
}

void Files::ClearTemp() const {
  EnsureTemp();
  const std::string directory = Resolve(kTempFolder);
  // A link that leads out of the base directory would have someone else's files deleted.
  if (!StartsWith(fileSystem_.RealPath(directory), fileSystem_.RealPath(BaseDirectory()) + "/")) return;
  std::vector<std::string> names;
  fileSystem_.List(directory, names);
  for (const std::string& name : names) {
    const std::string path = directory + "/" + name;
    if (fileSystem_.Status(path).kind != EntryKind::Directory) fileSystem_.Remove(path);
  }
}

void Files::EnsureTemp() const {
  const std::string directory = Resolve(kTempFolder);
  if (fileSystem_.Status(directory).kind == EntryKind::Missing) fileSystem_.MakeDirectory(directory);
}

}  // namespace morvane::common
