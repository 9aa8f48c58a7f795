// Maps the program's own names (`\Temp\tmp.lst`, `NAME.EXT`, `C:\run.ret`) to the file system.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/files/FileCache.h"
#include "common/files/PathResolver.h"
#include "platform/FileSystem.h"

namespace morvane::common {

// Program names are text in the core's code page, with backslashes or slashes; names without a path lie
// in the base directory and so do names that begin with `\`. A native absolute path (`/home/...`) stands
// for itself; it may also be in UTF-8, so that folders outside the code page can be named. Each part of a
// path is looked up without regard to case when it is not there as written.
class Files {
 public:
  // Native absolute directories. `temporaryDirectory` is the system's, where names with a drive letter lead.
  Files(platform::FileSystem& fileSystem, std::string baseDirectory, std::string temporaryDirectory = "/tmp");

  platform::FileSystem& System() const { return fileSystem_; }
  const std::string& BaseDirectory() const { return paths_.BaseDirectory(); }

  // Native path of a name that the program or its user gave.
  std::string Resolve(std::string_view name) const;
  // Native path of a name that came out of a document or from the controller: it must lie inside the
  // base directory (`folder`: inside that program folder). Throws "Path/File access error" for a name
  // that leads elsewhere, is empty, holds a drive letter, a NUL or another control character.
  std::string ResolveInside(std::string_view name, std::string_view folder = "") const;
  // The program name of a native path: relative to the base directory when it lies inside. Resolve
  // leads from it back to the same file.
  std::string ProgramName(const std::string& nativePath) const;

  // True when the path exists and is not a directory.
  bool FileExists(std::string_view name) const;
  // Whole file by program name. Throws the run-time error of the failure.
  std::string Read(std::string_view name) const;
  // The same for a name out of a document.
  std::string ReadInside(std::string_view name) const;
  // The same, and what `kParse` makes of the bytes, read once for each state of the file: see FileCache. For
  // what is asked for again and again.
  SharedBytes ReadKept(std::string_view name) const { return cache_->Bytes(Resolve(name)); }
  SharedBytes ReadKeptInside(std::string_view name) const { return cache_->Bytes(ResolveInside(name)); }
  template <auto kParse>
  auto ReadAs(std::string_view name) const {
    return cache_->Product<kParse>(Resolve(name));
  }
  template <auto kParse>
  auto ReadInsideAs(std::string_view name) const {
    return cache_->Product<kParse>(ResolveInside(name));
  }
  // Time stamp in nanoseconds since 1970; throws "File not found".
  std::int64_t ModifiedTime(std::string_view name) const;
  // Files of a folder (default: the base directory) that match, sorted by name without regard to case,
  // in the core's code page. Names that it cannot express are left out.
  std::vector<std::string> List(std::string_view pattern, std::string_view folder = "") const;
  // Failures are ignored: these serve scratch files.
  void RemoveQuietly(std::string_view name) const;
  // Plain copy, written straight. Throws.
  void Copy(std::string_view from, std::string_view to) const;
  // Writes straight to the name (scratch and received files). Throws.
  void WriteStraight(std::string_view name, std::string_view bytes) const;
  // The checked save: a temporary file beside the target, flushed and synced, then renamed over it. On
  // any failure the target stays as it was and the run-time error is thrown; a read-only target fails
  // with "Permission denied".
  void Save(std::string_view name, std::string_view bytes) const;
  // Removes what interrupted saves left in the base directory.
  void ClearLeftovers() const;

  // Creates `\Temp\` and deletes every file in it; failures are ignored. For the main program only.
  // Nothing is deleted when a link makes `\Temp\` lead out of the base directory.
  void ClearTemp() const;
  // Creates `\Temp\` when it is missing; failures are ignored.
  void EnsureTemp() const;

 private:
  std::string ReadNative(const std::string& path) const;

  platform::FileSystem& fileSystem_;
  PathResolver paths_;
  // Reading changes nothing that a caller could see, so it is no part of being const.
  std::unique_ptr<FileCache> cache_;
};

}  // namespace morvane::common
