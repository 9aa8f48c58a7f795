#include "house/Tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

namespace morvane::house {

Strings TreeFile::Lines() const {
  std::istringstream stream(text);
  Strings lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::vector<TreeFile> ReadTree() {
  namespace fs = std::filesystem;
  const fs::path root = MORVANE_SOURCE_DIR;
  const auto read = [](const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  };
  // Folders that .gitignore names from the top ("/build/"), and the ones of the tools.
  std::set<std::string> leftOut = {".git", ".cache"};
  for (const std::string& line : TreeFile{"", read(root / ".gitignore")}.Lines()) {
    if (line.size() > 2 && line.front() == '/' && line.back() == '/')
      leftOut.insert(line.substr(1, line.size() - 2));
  }
  std::vector<TreeFile> files;
  for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
    const std::string path = entry->path().lexically_relative(root).generic_string();
    if (leftOut.count(path) > 0) {
      entry.disable_recursion_pending();
    } else if (entry->is_regular_file()) {
      files.push_back({path, read(entry->path())});
      if (files.back().text.find('\0') != std::string::npos) files.pop_back();
    }
  }
  std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
  return files;
}

Strings Between(const std::string& text, const std::string& open, const std::string& close) {
  Strings found;
  for (std::size_t at = text.find(open), end; at != std::string::npos; at = text.find(open, end)) {
    at += open.size();
    end = std::min(text.find(close, at), text.size());
    found.push_back(text.substr(at, end - at));
    end = std::min(end + close.size(), text.size());
  }
  return found;
}

}  // namespace morvane::house
