#include "platform/posix/PosixPerUserStore.h"

#include "common/IniText.h"
#include "common/RunTimeError.h"
#include "common/files/CheckedSave.h"

namespace morvane::platform {

std::string PosixPerUserStore::Bytes() const {
  std::string bytes;
  return fileSystem_.Read(path_, bytes) == Error::None ? bytes : std::string();
}

std::vector<std::pair<std::string, std::string>> PosixPerUserStore::All(const std::string& section) const {
  const std::string bytes = Bytes();
  const std::string text = common::IniSectionText(bytes, section, std::string::npos);
  std::vector<std::pair<std::string, std::string>> result;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = text.find('\0', begin);
    const std::string entry = text.substr(begin, end - begin);
    const std::size_t equals = entry.find('=');
    if (equals != std::string::npos && equals > 0) {
      result.emplace_back(entry.substr(0, equals), entry.substr(equals + 1));
    }
    begin = end == std::string::npos ? text.size() : end + 1;
  }
  return result;
}

std::string PosixPerUserStore::Get(const std::string& section, const std::string& key,
                                   const std::string& fallback) const {
  const std::string bytes = Bytes();
  return std::string(common::IniValue(bytes, section, key).value_or(fallback));
}

void PosixPerUserStore::Remove(const std::string& section, const std::string& key) {
  const std::string bytes = Bytes();
  const std::string without = common::IniWithout(bytes, section, key);
  if (without == bytes) return;
  try {
    common::CheckedSave(fileSystem_, path_, without);
  } catch (const common::RunTimeError&) {
    // The store has no way to tell; the key stays and is found again.
  }
}

}  // namespace morvane::platform
