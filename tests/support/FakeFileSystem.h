// A file system in memory, case-sensitive, whose every failure can be ordered.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/FileSystem.h"

namespace morvane::test {

class FakeFileSystem : public platform::FileSystem {
 public:
  // What goes wrong, until it is reset.
  struct Faults {
    std::optional<std::size_t> bytesLeft;  // a Write beyond takes what fits and reports a full disk
    platform::Error read{}, create{}, sync{}, close{}, rename{}, syncDirectory{};
  };
  Faults faults;
  mutable int statusCalls = 0;
  mutable std::map<std::string, int> reads;  // how often each file was opened for reading

  // The directory that exists at first, with all above it.
  explicit FakeFileSystem(const std::string& directory = "/base") { MakeDirectories(directory); }

  // Makes or replaces a file, with the folders above it.
  void Put(const std::string& path, std::string bytes);
  // Bytes of a file; fails the test when it is missing.
  std::string Get(const std::string& path) const;
  bool Has(const std::string& path) const { return entries_.count(path) != 0; }
  void SetModified(const std::string& path, std::int64_t time) { entries_.at(path).modified = time; }
  // Status tells it, but nothing is refused here: an administrator's program could write all the same.
  void SetWritable(const std::string& path, bool writable) { entries_.at(path).writable = writable; }

  platform::FileStatus Status(const std::string& path) const override;
  platform::Error Read(const std::string& path, std::string& bytes) const override;
  platform::Error List(const std::string& directory, std::vector<std::string>& names) const override;
  std::string RealPath(const std::string& path) const override;
  std::unique_ptr<platform::OutputFile> Create(const std::string& path, platform::Error& error) override;
  std::unique_ptr<platform::OutputFile> CreateNew(const std::string& path, const std::string& permissionsLike,
                                                  platform::Error& error) override;
  platform::Error MakeDirectory(const std::string& path) override;
  platform::Error Remove(const std::string& path) override;
  platform::Error Rename(const std::string& from, const std::string& to) override;
  platform::Error SyncDirectory(const std::string& path) override;

 private:
  friend class FakeOutputFile;
  struct Entry {
    platform::EntryKind kind = platform::EntryKind::Directory;
    std::string bytes = {};
    std::int64_t modified = 0;
    bool writable = true;
  };
  platform::EntryKind KindOf(const std::string& cleanPath) const;
  // What stands against using the path as an existing file, and as the place of a new one.
  platform::Error CheckFile(const std::string& cleanPath) const;
  platform::Error CheckPlace(const std::string& cleanPath) const;
  void MakeDirectories(const std::string& path);
  // Each change is one second later than the last.
  std::int64_t NextTime() { return time_ += 1'000'000'000; }

  std::map<std::string, Entry> entries_{{"/", {}}};
  std::int64_t time_ = 0;
};

}  // namespace morvane::test
