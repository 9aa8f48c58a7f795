#include "common/files/FileNames.h"

#include "common/text/Text.h"

namespace morvane::common {
namespace {

constexpr std::size_t kLongestBase = 8;
constexpr std::size_t kLongestExtension = 3;
constexpr std::string_view kInvalidCharacters = " :\\/*?<>|!#$%&'()@^`{}~+,.;=[]";
constexpr std::string_view kSeparators = "\\/";

bool CheckCharacters(std::string_view text, std::string_view where, std::string& message) {
  for (char c : text) {
    if (static_cast<unsigned char>(c) < 32) {
      message = "Unknown problem with filename";
      return false;
    }
    if (kInvalidCharacters.find(c) == std::string_view::npos) continue;
    message = "Invalid character ";
    message += c == ' ' ? "SPACE" : std::string(1, c);
    message.append(" in ").append(where);
    return false;
  }
  return true;
}

}  // namespace

std::string FileBaseName(std::string_view name) {
  return std::string(name.substr(0, name.find('.')));
}

std::string FileExtension(std::string_view name) {
  const std::size_t point = name.find('.');
  return point == std::string_view::npos ? std::string() : std::string(name.substr(point + 1));
}

std::string PathFileName(std::string_view path) {
  const std::size_t separator = path.find_last_of(kSeparators);
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

std::string PathDirectory(std::string_view path) {
  const std::size_t separator = path.find_last_of(kSeparators);
  return separator == std::string_view::npos ? std::string() : std::string(path.substr(0, separator));
}

bool CheckFileName(std::string_view path, std::string& message) {
  const std::string name = PathFileName(path);
  const std::string base = FileBaseName(name);
  const std::string extension = FileExtension(name);
  message.clear();
  if (extension.size() > kLongestExtension) {
    message = "Extension is longer than 3 characters";
  } else if (base.size() > kLongestBase) {
    message = "Name is longer than 8 characters";
  } else {
    return CheckCharacters(base, "name", message) && CheckCharacters(extension, "extension", message);
  }
  return false;
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;  // by custom every file, also one without a point
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t retry = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      retry = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || UpperChar(pattern[p]) == UpperChar(name[n]))) {
      ++p;
      ++n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++retry;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

}  // namespace morvane::common
