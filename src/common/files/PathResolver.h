// From the names that the program, its user, documents and controllers write to native paths and back.
#pragma once

#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace morvane::common {

// See common/Files for what a program name is.
class PathResolver {
 public:
  PathResolver(platform::FileSystem& fileSystem, std::string baseDirectory, std::string temporaryDirectory);

  const std::string& BaseDirectory() const { return baseDirectory_; }
  std::string Resolve(std::string_view name) const;
  std::string ResolveInside(std::string_view name, std::string_view folder) const;
  std::string ProgramName(const std::string& nativePath) const;

 private:
  // Empty when the path lies outside.
  std::string RelativeToBase(const std::string& nativePath) const;
  // `relative` is native, below `directory`: as written when that exists, else with each part that is
  // missing replaced by the first entry, in sorted order, that equals it without regard to case.
  std::string Below(const std::string& directory, const std::string& relative) const;
  std::string FindIgnoringCase(const std::string& directory, std::string_view part) const;

  platform::FileSystem& fileSystem_;
  std::string baseDirectory_;
  std::string temporaryDirectory_;
};

}  // namespace morvane::common
