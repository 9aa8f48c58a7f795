// The text of an ini file: finding, listing and changing entries without touching any other byte.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace morvane::common {

// Sections and keys match without regard to case, blanks round them do not count, and the first match
// wins: of sections with the same name only the first is seen. Lines that begin with ";" are comments.
// Values come back without the blanks round them.

// Nothing when there is no such key. One pair of matching quotes round the value is taken off.
std::optional<std::string_view> IniValue(std::string_view bytes, std::string_view section,
                                         std::string_view key);

// The section's lines as `key=value` without comments and empty lines, each followed by a NUL; cut at
// `limit` characters.
std::string IniSectionText(std::string_view bytes, std::string_view section, std::size_t limit);

// False for names that the file cannot hold: empty ones, keys that begin with ";", "[" or "=", sections
// with "]".
bool IniCanHold(std::string_view section, std::string_view key);

// The file with the key set. A new key goes behind the last line of its section that is not empty, a new
// section to the end; line ends are CR LF. Control characters in section, key and value are dropped.
std::string IniWith(std::string_view bytes, std::string_view section, std::string_view key,
                    std::string_view value);
// The file without the key's line.
std::string IniWithout(std::string_view bytes, std::string_view section, std::string_view key);

}  // namespace morvane::common
