// The project's own files as the house tests see them: what is committed or about to be.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morvane::house {

using Strings = std::vector<std::string>;

struct TreeFile {
  std::string path;  // relative to the project's folder, with slashes
  std::string text;

  bool Under(std::string_view folder) const { return path.starts_with(folder); }
  bool Is(std::string_view extension) const { return path.ends_with(extension); }
  bool IsCode() const { return Is(".cpp") || Is(".h"); }
  bool IsProduct() const { return IsCode() && (Under("src/") || Under("tools/")); }
  Strings Lines() const;
};

// All text files in the order of their paths. Build folders and the user's station are left out; a file
// with a NUL byte is not text.
std::vector<TreeFile> ReadTree();

// What stands between the marks, every time.
Strings Between(const std::string& text, const std::string& open, const std::string& close);

}  // namespace morvane::house
