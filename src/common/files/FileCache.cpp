#include "common/files/FileCache.h"

#include "common/RunTimeError.h"

namespace morvane::common {

SharedBytes FileCache::Bytes(const std::string& path) {
  SharedBytes bytes = Get(path).bytes;
  Trim();
  return bytes;
}

FileCache::Entry& FileCache::Get(const std::string& path) {
  const platform::FileStatus status = fileSystem_.Status(path);
  const auto found = byPath_.find(path);
  const bool regular = status.kind == platform::EntryKind::File;
  if (found != byPath_.end()) {
    const Entry& entry = *found->second;
    if (regular && entry.size == status.size && entry.modified == status.modifiedNanoseconds) {
      entries_.splice(entries_.begin(), entries_, found->second);
      return entries_.front();
    }
    Forget(path);
  }
  std::string bytes;
  ThrowIf(fileSystem_.Read(path, bytes));
  const std::size_t weight = bytes.size() + path.size() + sizeof(Entry);
  entries_.push_front({path,
                       status.size,
                       status.modifiedNanoseconds,
                       std::make_shared<const std::string>(std::move(bytes)),
                       {},
                       0});
  byPath_[path] = entries_.begin();
  Weigh(entries_.front(), weight);
  // A device, or a file that grew while it was read, is no state to come back to: the next time reads anew.
  if (!regular || entries_.front().bytes->size() != status.size) entries_.front().modified = -1;
  return entries_.front();
}

void FileCache::Weigh(Entry& entry, std::size_t more) {
  entry.weight += more;
  weight_ += more;
}

void FileCache::Trim() {
  while (weight_ > limit_ && !entries_.empty()) Forget(std::string(entries_.back().path));
}

void FileCache::Forget(const std::string& path) {
  const auto found = byPath_.find(path);
  if (found == byPath_.end()) return;
  weight_ -= found->second->weight;
  entries_.erase(found->second);
  byPath_.erase(found);
}

}  // namespace morvane::common
