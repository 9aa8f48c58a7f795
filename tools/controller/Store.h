// The machine's files: one folder, 8.3 names in capitals, looked up without regard to case.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/files/Files.h"

namespace morvane::controller {

class Store {
 public:
  explicit Store(const common::Files& files) : files_(files) {}

  // These answer false, or nothing, for a name that is not a plain 8.3 name and when the disk fails.
  bool Put(std::string_view name, std::string_view bytes) const;
  std::optional<std::string> Get(std::string_view name) const;
  bool Has(std::string_view name) const;
  bool Remove(std::string_view name) const;
  // Sorted, in capitals. Of files with other names the machine knows nothing.
  std::vector<std::string> List(std::string_view pattern) const;

 private:
  const common::Files& files_;
};

}  // namespace morvane::controller
