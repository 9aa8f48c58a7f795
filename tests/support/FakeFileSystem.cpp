#include "support/FakeFileSystem.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace morvane::test {

using platform::EntryKind;
using platform::Error;

namespace {

std::string Parent(const std::string& path) {
  return std::filesystem::path(path).parent_path().string();
}

// Without empty parts, "." and "..".
std::string Clean(const std::string& path) {
  std::string clean = std::filesystem::path(path).lexically_normal().string();
  if (clean.size() > 1 && clean.back() == '/') clean.pop_back();
  return clean;
}

}  // namespace

// Finds its file by name at each step, as an open file whose path was removed has nowhere to write here.
class FakeOutputFile : public platform::OutputFile {
 public:
  FakeOutputFile(FakeFileSystem& owner, std::string path) : owner_(owner), path_(std::move(path)) {}

  Error Write(std::string_view bytes) override {
    auto& left = owner_.faults.bytesLeft;
    const std::size_t fits = std::min(left.value_or(bytes.size()), bytes.size());
    if (left) *left -= fits;
    auto& file = owner_.entries_.at(path_);
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

void FakeFileSystem::MakeDirectories(const std::string& path) {
  for (std::string at = Clean(path); entries_.insert({at, {}}).second;) at = Parent(at);
}

void FakeFileSystem::Put(const std::string& path, std::string bytes) {
  MakeDirectories(Parent(path));
  entries_[path] = {EntryKind::File, std::move(bytes), NextTime()};
}

std::string FakeFileSystem::Get(const std::string& path) const {
  EXPECT_TRUE(Has(path)) << "no file " << path;
  return Has(path) ? entries_.at(path).bytes : std::string();
}

EntryKind FakeFileSystem::KindOf(const std::string& cleanPath) const {
  return Has(cleanPath) ? entries_.at(cleanPath).kind : EntryKind::Missing;
}

Error FakeFileSystem::CheckFile(const std::string& cleanPath) const {
  const EntryKind kind = KindOf(cleanPath);
  if (kind == EntryKind::Missing) return Has(Parent(cleanPath)) ? Error::FileNotFound : Error::PathNotFound;
  return kind == EntryKind::File ? Error::None : Error::AccessError;
}

Error FakeFileSystem::CheckPlace(const std::string& cleanPath) const {
  if (KindOf(Parent(cleanPath)) != EntryKind::Directory) return Error::PathNotFound;
  return KindOf(cleanPath) == EntryKind::Directory ? Error::AccessError : Error::None;
}

platform::FileStatus FakeFileSystem::Status(const std::string& path) const {
  ++statusCalls;
  const auto found = entries_.find(Clean(path));
  if (found == entries_.end()) return {};
  const Entry& entry = found->second;
  return {entry.kind, entry.bytes.size(), entry.modified, entry.writable};
}

Error FakeFileSystem::Read(const std::string& path, std::string& bytes) const {
  ++reads[Clean(path)];
  const Error error = faults.read == Error::None ? CheckFile(Clean(path)) : faults.read;
  if (error == Error::None) bytes = entries_.at(Clean(path)).bytes;
  return error;
}

Error FakeFileSystem::List(const std::string& directory, std::vector<std::string>& names) const {
  const std::string clean = Clean(directory);
  names.clear();
  for (const auto& [path, entry] : entries_) {
    if (path != "/" && Parent(path) == clean) names.push_back(path.substr(path.find_last_of('/') + 1));
  }
  return KindOf(clean) == EntryKind::Directory ? Error::None : Error::PathNotFound;
}

std::string FakeFileSystem::RealPath(const std::string& path) const {
  return Clean(path);
}

std::unique_ptr<platform::OutputFile> FakeFileSystem::Create(const std::string& path, Error& error) {
  error = faults.create == Error::None ? CheckPlace(Clean(path)) : faults.create;
  if (error != Error::None) return nullptr;
  entries_[Clean(path)] = {EntryKind::File, "", NextTime()};
  return std::make_unique<FakeOutputFile>(*this, Clean(path));
}

std::unique_ptr<platform::OutputFile> FakeFileSystem::CreateNew(const std::string& path, const std::string&,
                                                                Error& error) {
  if (!Has(Clean(path))) return Create(path, error);
  error = Error::AlreadyExists;
  return nullptr;
}

Error FakeFileSystem::MakeDirectory(const std::string& path) {
  if (Has(Clean(path))) return Error::AlreadyExists;
  const Error error = CheckPlace(Clean(path));
  if (error == Error::None) entries_[Clean(path)] = {};
  return error;
}

Error FakeFileSystem::Remove(const std::string& path) {
  const Error error = CheckFile(Clean(path));
  if (error == Error::None) entries_.erase(Clean(path));
  return error;
}

Error FakeFileSystem::Rename(const std::string& from, const std::string& to) {
  for (const Error error : {faults.rename, CheckFile(Clean(from)), CheckPlace(Clean(to))}) {
    if (error != Error::None) return error;
  }
  entries_[Clean(to)] = std::move(entries_.at(Clean(from)));
  entries_.erase(Clean(from));
  return Error::None;
}

Error FakeFileSystem::SyncDirectory(const std::string& path) {
  if (faults.syncDirectory != Error::None) return faults.syncDirectory;
  return KindOf(Clean(path)) == EntryKind::Directory ? Error::None : Error::PathNotFound;
}

}  // namespace morvane::test
