#include "common/IniText.h"

#include <algorithm>

#include "common/text/Lines.h"
#include "common/text/Text.h"

namespace morvane::common {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kLineEnd = "\r\n";

std::string_view Trimmed(std::string_view text) {
  const auto blank = [](char c) { return static_cast<unsigned char>(c) < 33; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return text;
}

bool IsComment(std::string_view trimmed) {
  return !trimmed.empty() && trimmed.front() == ';';
}

// The name in a section's head line.
std::optional<std::string_view> SectionName(std::string_view trimmed) {
  if (trimmed.empty() || trimmed.front() != '[') return std::nullopt;
  return Trimmed(trimmed.substr(1, trimmed.find(']') - 1));
}

// The value when the line belongs to the key. Matching from the start of the line, not up to its first
// "=", lets keys that hold "=" (names of picture files may) be read and replaced like others.
std::optional<std::string_view> ValueOf(std::string_view line, std::string_view key) {
  const std::string_view trimmed = Trimmed(line);
  if (trimmed.size() <= key.size() || !EqualIgnoringCase(trimmed.substr(0, key.size()), key)) {
    return std::nullopt;
  }
  const std::size_t equals = trimmed.find_first_not_of(" \t", key.size());
  if (equals == std::string_view::npos || trimmed[equals] != '=') return std::nullopt;
  return Trimmed(trimmed.substr(equals + 1));
}

// Walks the lines of the first section of a name.
class SectionScan {
 public:
  SectionScan(std::string_view bytes, std::string_view section) : lines_(bytes) {
    section = Trimmed(section);
    std::string_view line;
    while (!found_ && lines_.Next(line)) {
      if (line.data() == bytes.data() && StartsWith(line, kByteOrderMark)) {
        line.remove_prefix(kByteOrderMark.size());
      }
      const std::optional<std::string_view> name = SectionName(Trimmed(line));
      found_ = name && EqualIgnoringCase(*name, section);
    }
  }
  bool Found() const { return found_; }
  // Offset of the line after the one that Next returned last (at first: after the head).
  std::size_t Position() const { return lines_.Position(); }
  bool Next(std::string_view& line) { return found_ && lines_.Next(line) && !SectionName(Trimmed(line)); }

 private:
  Lines lines_;
  bool found_ = false;
};

struct Entry {
  std::size_t lineBegin;
  std::size_t lineEnd;  // behind the line's end mark
  std::string_view value;
};

std::optional<Entry> FindEntry(std::string_view bytes, std::string_view section, std::string_view key) {
  key = Trimmed(key);
  SectionScan scan(bytes, section);
  std::size_t begin = scan.Position();
  for (std::string_view line; scan.Next(line); begin = scan.Position()) {
    if (IsComment(Trimmed(line))) continue;
    if (const auto value = ValueOf(line, key)) return Entry{begin, scan.Position(), *value};
  }
  return std::nullopt;
}

std::string WithoutControls(std::string_view text) {
  std::string result(text);
  result.erase(
      std::remove_if(result.begin(), result.end(), [](char c) { return static_cast<unsigned char>(c) < 32; }),
      result.end());
  return result;
}

std::string Inserted(std::string_view bytes, std::size_t position, std::string_view lines) {
  std::string result(bytes.substr(0, position));
  if (!result.empty() && result.back() != '\n' && result.back() != '\r') result += kLineEnd;
  return result.append(lines).append(bytes.substr(position));
}

}  // namespace

std::optional<std::string_view> IniValue(std::string_view bytes, std::string_view section,
                                         std::string_view key) {
  const std::optional<Entry> entry = FindEntry(bytes, section, key);
  if (!entry) return std::nullopt;
  std::string_view value = entry->value;
  const bool quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

std::string IniSectionText(std::string_view bytes, std::string_view section, std::size_t limit) {
  std::string result;
  SectionScan scan(bytes, section);
  for (std::string_view line; result.size() < limit && scan.Next(line);) {
    const std::string_view trimmed = Trimmed(line);
    if (trimmed.empty() || IsComment(trimmed)) continue;
    const std::size_t equals = trimmed.find('=');
    result += Trimmed(trimmed.substr(0, equals)).substr(0, limit);
    if (equals != std::string_view::npos) {
      result.append("=").append(Trimmed(trimmed.substr(equals + 1)).substr(0, limit));
    }
    result += '\0';
  }
  if (result.size() > limit) result.resize(limit);
  return result;
}

bool IniCanHold(std::string_view section, std::string_view key) {
  const std::string keyLine = WithoutControls(key);
  const std::string_view name = Trimmed(keyLine);
  return !Trimmed(section).empty() && section.find(']') == std::string_view::npos && !name.empty() &&
         name.front() != ';' && name.front() != '[' && name.front() != '=';
}

std::string IniWith(std::string_view bytes, std::string_view section, std::string_view key,
                    std::string_view value) {
  const std::string newValue = WithoutControls(value);
  const std::string newSection = WithoutControls(section);
  const std::string newKey = WithoutControls(key);
  if (const std::optional<Entry> entry = FindEntry(bytes, newSection, newKey)) {
    const auto begin = static_cast<std::size_t>(entry->value.data() - bytes.data());
    return std::string(bytes.substr(0, begin))
        .append(newValue)
        .append(bytes.substr(begin + entry->value.size()));
  }
  const std::string line = std::string(Trimmed(newKey)).append("=").append(newValue).append(kLineEnd);
  SectionScan scan(bytes, newSection);
  if (!scan.Found()) {
    const std::string head = "[" + std::string(Trimmed(newSection)) + "]";
    return Inserted(bytes, bytes.size(), head + std::string(kLineEnd) + line);
  }
  std::size_t position = scan.Position();
  for (std::string_view text; scan.Next(text);) {
    if (!Trimmed(text).empty()) position = scan.Position();
  }
  return Inserted(bytes, position, line);
}

std::string IniWithout(std::string_view bytes, std::string_view section, std::string_view key) {
  const std::optional<Entry> entry = FindEntry(bytes, section, WithoutControls(key));
  if (!entry) return std::string(bytes);
  return std::string(bytes.substr(0, entry->lineBegin)).append(bytes.substr(entry->lineEnd));
}

}  // namespace morvane::common
