// Small stores outside the ini file: the older per-user settings, and what starts with the session.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace morvane::platform {

// Settings that an older release kept for each user. Sections of keys and values.
class PerUserStore {
 public:
  virtual ~PerUserStore() = default;
  virtual std::vector<std::pair<std::string, std::string>> All(const std::string& section) const = 0;
  virtual std::string Get(const std::string& section, const std::string& key,
                          const std::string& fallback) const = 0;
  virtual void Remove(const std::string& section, const std::string& key) = 0;
};

// Programs that start when the user's session starts: a name and a command line each.
class AutoStartStore {
 public:
  virtual ~AutoStartStore() = default;
  virtual std::vector<std::string> Names() const = 0;
  // False when the store could not be written.
  virtual bool Write(const std::string& name, const std::string& command) = 0;
  virtual bool Remove(const std::string& name) = 0;
};

}  // namespace morvane::platform
