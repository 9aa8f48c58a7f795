#include "controller/WireLog.h"

#include <algorithm>
#include <iostream>

namespace morvane::controller {
namespace {

constexpr std::size_t kLongestLine = 200;

}  // namespace

std::string Printable(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (const char c : bytes) {
    const auto code = static_cast<unsigned char>(c);
    if (c == '\r') {
      text += "\\r";
    } else if (c == '\n') {
      text += "\\n";
    } else if (c == '\\') {
      text += "\\\\";
    } else if (code >= ' ' && code < 127) {
      text += c;
    } else {
      text.append("\\x").append(1, kDigits[code >> 4]).append(1, kDigits[code & 15]);
    }
  }
  return text;
}

bool WireLog::Open(const std::string& path) {
  file_.open(path, std::ios::trunc);
  return file_.is_open();
}

std::string WireLog::Time() const {
  const auto passed =
      std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start_)
          .count();
  const std::string thousandths = std::to_string(passed % 1000 + 1000);
  return std::to_string(passed / 1000) + '.' + thousandths.substr(1);
}

void WireLog::Bytes(std::string_view transport, char direction, std::string_view bytes) {
  if (!file_.is_open()) return;
  const std::string head = Time().append(" ").append(transport).append(" ") + direction + ' ';
  while (!bytes.empty()) {
    const std::size_t end = bytes.substr(0, kLongestLine).find('\n');
    const std::string_view line = bytes.substr(0, end == std::string_view::npos ? kLongestLine : end + 1);
    file_ << head << Printable(line) << '\n';
    bytes.remove_prefix(line.size());
  }
  file_.flush();
}

void WireLog::Note(std::string_view text) {
  std::cout << text << std::endl;
  if (file_.is_open()) file_ << Time() << " - " << text << std::endl;
}

}  // namespace morvane::controller
