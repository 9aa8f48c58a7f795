// Line input over a file's bytes. A line ends at CR LF, LF or CR; a last line without an end counts.
#pragma once

#include <string_view>

namespace morvane::common {

class Lines {
 public:
  explicit Lines(std::string_view bytes) : bytes_(bytes) {}
  bool AtEnd() const { return position_ >= bytes_.size(); }
  // Offset of the next line in the bytes.
  std::size_t Position() const { return position_; }
  // False at the end of the file.
  bool Next(std::string_view& line);
  // Throws "Input past end of file".
  std::string_view Take();

 private:
  std::string_view bytes_;
  std::size_t position_ = 0;
  // The first LF from `position_` on, or the size; found anew only when passed, so that a file with CR
  // alone is not searched to its end for each line.
  std::size_t lineFeed_ = 0;
};

}  // namespace morvane::common
