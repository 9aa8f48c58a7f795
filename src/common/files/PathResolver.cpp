#include "common/files/PathResolver.h"

#include <algorithm>
#include <vector>

#include "common/RunTimeError.h"
#include "common/text/Text.h"

namespace morvane::common {
namespace {

std::string WithoutLastSlashes(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

void Append(std::string& path, std::string_view part) {
  if (path.empty() || path.back() != '/') path += '/';
  path += part;
}

std::string Joined(std::string path, std::string_view name) {
  Append(path, name);
  return path;
}

// Parts between the slashes, without empty ones and ".".
std::vector<std::string_view> PathParts(std::string_view path) {
  std::vector<std::string_view> parts;
  while (!path.empty()) {
    const std::size_t length = std::min(path.find('/'), path.size());
    const std::string_view part = path.substr(0, length);
    if (!part.empty() && part != ".") parts.push_back(part);
    path.remove_prefix(std::min(length + 1, path.size()));
  }
  return parts;
}

std::string JoinedParts(const std::vector<std::string_view>& parts) {
  std::string result;
  for (std::string_view part : parts) {
    if (!result.empty()) result += '/';
    result += part;
  }
  return result;
}

bool HasDriveLetter(std::string_view name) {
  const char first = name.empty() ? '\0' : UpperChar(name[0]);
  return name.size() >= 2 && name[1] == ':' && first >= 'A' && first <= 'Z';
}

std::string WithSlashes(std::string_view name) {
  std::string result(name);
  std::replace(result.begin(), result.end(), '\\', '/');
  return result;
}

bool IsBelow(std::string_view path, const std::string& directory) {
  return StartsWith(path, Joined(directory, ""));
}

// The parts of a name that may not leave its folder, with each ".." and the part before it taken out.
std::vector<std::string_view> ConfinedParts(std::string_view name, std::string_view slashed) {
  const bool harmful = std::any_of(name.begin(), name.end(), [](char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < 32 || code == 127 || c == ':';
  });
  if (harmful || StartsWith(name, "/")) throw RunTimeError(kPathFileAccessError);
  std::vector<std::string_view> confined;
  for (std::string_view part : PathParts(slashed)) {
    if (part != "..") {
      confined.push_back(part);
    } else if (confined.empty()) {
      throw RunTimeError(kPathFileAccessError);
    } else {
      confined.pop_back();
    }
  }
  if (confined.empty()) throw RunTimeError(kPathFileAccessError);
  return confined;
}

}  // namespace

PathResolver::PathResolver(platform::FileSystem& fileSystem, std::string baseDirectory,
                           std::string temporaryDirectory)
    : fileSystem_(fileSystem),
      baseDirectory_(WithoutLastSlashes(std::move(baseDirectory))),
      temporaryDirectory_(WithoutLastSlashes(std::move(temporaryDirectory))) {}

std::string PathResolver::Resolve(std::string_view name) const {
  const std::string slashed = WithSlashes(name);
  if (StartsWith(name, "/")) return Below("/", IsUtf8(slashed) ? slashed : ToUtf8(slashed));
  if (HasDriveLetter(name)) return Below(temporaryDirectory_, ToUtf8(slashed.substr(2)));
  return Below(baseDirectory_, ToUtf8(slashed));
}

std::string PathResolver::ResolveInside(std::string_view name, std::string_view folder) const {
  const std::string slashed = WithSlashes(name);
  const std::string directory = Resolve(folder);
  const std::string path = Below(directory, ToUtf8(JoinedParts(ConfinedParts(name, slashed))));
  // A symbolic link on the way may lead out.
  if (!IsBelow(fileSystem_.RealPath(path), fileSystem_.RealPath(directory))) {
    throw RunTimeError(kPathFileAccessError);
  }
  return path;
}

std::string PathResolver::ProgramName(const std::string& nativePath) const {
  const std::string relative = RelativeToBase(nativePath);
  if (!relative.empty() && IsExpressible(relative)) {
    std::string name = FromUtf8(relative);
    std::replace(name.begin(), name.end(), '/', '\\');
    if (!HasDriveLetter(name)) return name;
  }
  // Resolve takes an absolute name that is well-formed UTF-8 for native; text that merely looks so would
  // mislead it.
  std::string name = FromUtf8(nativePath);
  return IsExpressible(nativePath) && !IsUtf8(name) ? name : nativePath;
}

std::string PathResolver::RelativeToBase(const std::string& nativePath) const {
  if (IsBelow(nativePath, baseDirectory_)) return nativePath.substr(Joined(baseDirectory_, "").size());
  const std::string realBase = fileSystem_.RealPath(baseDirectory_);
  const std::string realPath = fileSystem_.RealPath(nativePath);
  return IsBelow(realPath, realBase) ? realPath.substr(Joined(realBase, "").size()) : std::string();
}

std::string PathResolver::Below(const std::string& directory, const std::string& relative) const {
  const std::vector<std::string_view> parts = PathParts(relative);
  if (parts.empty()) return directory;
  const std::string asWritten = Joined(directory, JoinedParts(parts));
  if (fileSystem_.Status(asWritten).kind != platform::EntryKind::Missing) return asWritten;
  std::string path = directory;
  bool missing = false;
  for (std::string_view part : parts) {
    const std::size_t length = path.size();
    Append(path, part);
    // Below a part that is missing there is nothing to look for; names of any length pass in one go.
    if (missing || fileSystem_.Status(path).kind != platform::EntryKind::Missing) continue;
    path.resize(length);
    const std::string found = FindIgnoringCase(path, part);
    missing = found.empty();
    Append(path, missing ? part : found);
  }
  return path;
}

std::string PathResolver::FindIgnoringCase(const std::string& directory, std::string_view part) const {
  std::vector<std::string> names;
  if (fileSystem_.List(directory, names) != platform::Error::None) return {};
  const std::string wanted = FromUtf8(part);
  std::string best;
  for (const std::string& name : names) {
    if (!IsExpressible(name) || !EqualIgnoringCase(FromUtf8(name), wanted)) continue;
    if (best.empty() || name < best) best = name;
  }
  return best;
}

}  // namespace morvane::common
