#include "support/FakeFileSystem.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace morvane::test {

using platform::EntryKind;
using platform::Error;

namespace {

std::string Parent(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  return slash == 0 || slash == std::string::npos ? "/" : path.substr(0, slash);
}

// Without empty parts, "." and "..".
std::string Clean(const std::string& path) {
  std::string result;
  for (std::size_t begin = 0; begin < path.size();) {
    const std::size_t end = std::min(path.find('/', begin), path.size());
    const std::string part = path.substr(begin, end - begin);
    begin = end + 1;
    if (part == "..") {
      result.erase(result.empty() ? 0 : result.find_last_of('/'));
    } else if (!part.empty() && part != ".") {
      result += "/" + part;
    }
  }
  return result.empty() ? "/" : result;
}

}  // namespace

// Finds its file by name at each step, as an open file whose path was removed has nowhere to write here.
class FakeOutputFile : public platform::OutputFile {
 public:
  FakeOutputFile(FakeFileSystem& owner, std::string path) : owner_(owner), path_(std::move(path)) {}

  Error Write(std::string_view bytes) override {
    auto& left = owner_.faults.bytesLeft;
    const std::size_t fits = left ? std::min(*left, bytes.size()) : bytes.size();
    if (left) *left -= fits;
    auto& file = owner_.files_.at(path_);
    file.bytes += bytes.substr(0, fits);
    file.modified = owner_.NextTime();
    return fits == bytes.size() ? Error::None : Error::DiskFull;
  }
  Error Sync() override { return owner_.faults.sync; }
  Error Close() override { return owner_.faults.close; }

 private:
  FakeFileSystem& owner_;
  std::string path_;
};

FakeFileSystem::FakeFileSystem(const std::string& directory) {
  MakeDirectories(directory);
}

void FakeFileSystem::MakeDirectories(const std::string& path) {
  for (std::string at = Clean(path); directories_.insert(at).second;) at = Parent(at);
}

void FakeFileSystem::Put(const std::string& path, std::string bytes) {
  MakeDirectories(Parent(path));
  files_[path] = {std::move(bytes), NextTime(), true};
}

std::string FakeFileSystem::Get(const std::string& path) const {
  const auto found = files_.find(path);
  EXPECT_NE(found, files_.end()) << "no file " << path;
  return found == files_.end() ? std::string() : found->second.bytes;
}

platform::FileStatus FakeFileSystem::Status(const std::string& path) const {
  ++statusCalls;
  const std::string clean = Clean(path);
  if (directories_.count(clean)) return {EntryKind::Directory, 0, 0, true};
  const auto found = files_.find(clean);
  if (found == files_.end()) return {};
  const File& file = found->second;
  return {EntryKind::File, file.bytes.size(), file.modified, file.writable};
}

Error FakeFileSystem::Missing(const std::string& path) const {
  return directories_.count(Parent(path)) ? Error::FileNotFound : Error::PathNotFound;
}

Error FakeFileSystem::Read(const std::string& path, std::string& bytes) const {
  const std::string clean = Clean(path);
  if (faults.read != Error::None) return faults.read;
  if (directories_.count(clean)) return Error::AccessError;
  const auto found = files_.find(clean);
  if (found == files_.end()) return Missing(clean);
  bytes = found->second.bytes;
  return Error::None;
}

Error FakeFileSystem::List(const std::string& directory, std::vector<std::string>& names) const {
  const std::string clean = Clean(directory);
  names.clear();
  if (!directories_.count(clean)) return Error::PathNotFound;
  const auto add = [&](const std::string& path) {
    if (path != "/" && Parent(path) == clean) names.push_back(path.substr(path.find_last_of('/') + 1));
  };
  for (const auto& file : files_) add(file.first);
  for (const auto& folder : directories_) add(folder);
  return Error::None;
}

std::string FakeFileSystem::RealPath(const std::string& path) const {
  return Clean(path);
}

std::unique_ptr<platform::OutputFile> FakeFileSystem::Create(const std::string& path, Error& error) {
  const std::string clean = Clean(path);
  error = faults.create;
  if (directories_.count(clean)) error = Error::AccessError;
  if (!directories_.count(Parent(clean))) error = Error::PathNotFound;
  if (error != Error::None) return nullptr;
  files_[clean] = {"", NextTime(), true};
  return std::make_unique<FakeOutputFile>(*this, clean);
}

std::unique_ptr<platform::OutputFile> FakeFileSystem::CreateNew(const std::string& path, const std::string&,
                                                                Error& error) {
  if (Status(path).kind == EntryKind::Missing) return Create(path, error);
  error = Error::AlreadyExists;
  return nullptr;
}

Error FakeFileSystem::MakeDirectory(const std::string& path) {
  const std::string clean = Clean(path);
  if (Status(clean).kind != EntryKind::Missing) return Error::AlreadyExists;
  if (!directories_.count(Parent(clean))) return Error::PathNotFound;
  directories_.insert(clean);
  return Error::None;
}

Error FakeFileSystem::Remove(const std::string& path) {
  const std::string clean = Clean(path);
  if (directories_.count(clean)) return Error::AccessError;
  return files_.erase(clean) ? Error::None : Missing(clean);
}

Error FakeFileSystem::Rename(const std::string& from, const std::string& to) {
  const auto found = files_.find(Clean(from));
  if (faults.rename != Error::None) return faults.rename;
  if (found == files_.end()) return Missing(Clean(from));
  if (directories_.count(Clean(to))) return Error::AccessError;
  if (!directories_.count(Parent(Clean(to)))) return Error::PathNotFound;
  File file = std::move(found->second);
  files_.erase(found);
  files_[Clean(to)] = std::move(file);
  return Error::None;
}

Error FakeFileSystem::SyncDirectory(const std::string& path) {
  if (faults.syncDirectory != Error::None) return faults.syncDirectory;
  return directories_.count(Clean(path)) ? Error::None : Error::PathNotFound;
}

}  // namespace morvane::test
