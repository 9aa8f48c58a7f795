// Line input over a file's bytes. A line ends at CR LF, LF or CR; a last line without an end counts.
#pragma once

#include <string_view>

namespace morvane::common {

class Lines {
 public:
  explicit Lines(std::string_view bytes) : rest_(bytes) {}
  bool AtEnd() const { return rest_.empty(); }
  // False at the end of the file.
  bool Next(std::string_view& line);
  // Throws "Input past end of file".
  std::string_view Take();

 private:
  std::string_view rest_;
};

}  // namespace morvane::common
