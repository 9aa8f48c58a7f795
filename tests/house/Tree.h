// The project's own files as the house tests see them: what is committed or about to be.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morvane::house {

struct TreeFile {
  std::string path;  // relative to the project's folder, with slashes
  std::vector<std::string> lines;

  bool Under(std::string_view folder) const { return path.starts_with(folder); }
  bool Is(std::string_view extension) const { return path.ends_with(extension); }
  bool IsCode() const { return Is(".cpp") || Is(".h"); }
};

// All text files in the order of their paths. Build folders and the user's station are left out; a file
// with a NUL byte is not text.
std::vector<TreeFile> ReadTree();

// The same, those of C++ below src/ and tools/.
std::vector<TreeFile> ReadProduct();

}  // namespace morvane::house
