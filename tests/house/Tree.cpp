#include "house/Tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

namespace morvane::house {
namespace {

namespace fs = std::filesystem;

// Folders that .gitignore names from the top ("/build/"), and the ones of the tools.
std::set<std::string> FoldersLeftOut(const fs::path& root) {
  std::set<std::string> folders = {".git", ".cache"};
  std::ifstream ignored(root / ".gitignore");
  for (std::string line; std::getline(ignored, line);) {
    if (line.size() > 2 && line.front() == '/' && line.back() == '/') {
      folders.insert(line.substr(1, line.size() - 2));
    }
  }
  return folders;
}

std::vector<std::string> SplitLines(const std::string& bytes) {
  std::istringstream stream(bytes);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

}  // namespace

std::vector<TreeFile> ReadTree() {
  const fs::path root = MORVANE_SOURCE_DIR;
  const std::set<std::string> leftOut = FoldersLeftOut(root);
  std::vector<TreeFile> files;
  for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
    const std::string path = entry->path().lexically_relative(root).generic_string();
    if (leftOut.count(path) > 0) {
      entry.disable_recursion_pending();
    } else if (entry->is_regular_file()) {
      std::ifstream file(entry->path(), std::ios::binary);
      const std::string bytes(std::istreambuf_iterator<char>(file), {});
      if (bytes.find('\0') == std::string::npos) files.push_back({path, SplitLines(bytes)});
    }
  }
  std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
  return files;
}

std::vector<TreeFile> ReadProduct() {
  std::vector<TreeFile> files = ReadTree();
  std::erase_if(files, [](const TreeFile& file) {
    return !file.IsCode() || !(file.Under("src/") || file.Under("tools/"));
  });
  return files;
}

}  // namespace morvane::house
