// What went over the wire: every byte with its direction and time.
#pragma once

#include <chrono>
#include <fstream>
#include <string>
#include <string_view>

namespace morvane::controller {

// Lines such as `12.345 tcp > QT7250FILES *.TJB\r\n`: seconds since the start, the transport, ">" to the
// machine and "<" to the host. Bytes that do not print are escapes; a line of the log ends with a line of
// the wire.
class WireLog {
 public:
  // Without a path nothing is kept. False when the file cannot be written.
  bool Open(const std::string& path);
  void Bytes(std::string_view transport, char direction, std::string_view bytes);
  // What the machine did, for the log and for whoever watches the program.
  void Note(std::string_view text);

 private:
  std::string Time() const;

  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  std::ofstream file_;
};

// With escapes for what does not print.
std::string Printable(std::string_view bytes);

}  // namespace morvane::controller
