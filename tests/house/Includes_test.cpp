#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "house/Tree.h"

namespace morvane::house {
namespace {

// A file belongs to the first entry whose folder it lies in, and may include what lies below it.
constexpr struct Layer {
  std::string_view folder, name, below;
} kLayers[] = {
    {"src/platform/qt/", "qt", "platform common posix core"},
    {"src/platform/posix/", "posix", "platform common"},
    {"src/platform/", "platform", ""},
    {"src/common/", "common", "platform"},
    {"src/context/", "context", "platform common core qt"},
    {"src/widgets/", "widgets", "platform common core qt context"},
    {"src/app/", "app", "platform common core qt context widgets window posix"},
    {"src/cli/", "cli", "platform common core qt posix"},
    {"tools/", "tool", "platform common posix"},
    {"src/", "core", "platform common"},
    // The ui folders of the subsystems.
    {"src/", "window", "platform common core qt context widgets"},
};

// The folders of the core, each below those that it may use.
constexpr struct CoreFolder {
  std::string_view folder, uses;
} kCoreFolders[] = {
    {"src/recipes/", ""},
    {"src/fonts/", ""},
    {"src/datamatrix/", ""},
    {"src/gcode/panel/", ""},
    {"src/gcode/", ""},
    {"src/link/wire/", ""},
    {"src/link/", "src/link/wire/"},
    {"src/textjob/job/", "src/recipes/"},
    {"src/textjob/preview/",
     "src/textjob/job/ src/recipes/ src/fonts/ src/datamatrix/ src/gcode/ src/gcode/panel/"},
    {"src/textjob/edit/", "src/textjob/job/ src/textjob/preview/ src/recipes/"},
    {"src/textjob/transfer/", "src/textjob/job/ src/link/"},
};

constexpr std::size_t kMostFiles = 30;  // in a folder

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.rfind('/') + 1);
}

const Layer& LayerOf(const std::string& path) {
  const auto* layer = std::find_if(std::begin(kLayers), std::end(kLayers),
                                   [&](const Layer& each) { return path.starts_with(each.folder); });
  const bool window = path.find("/ui/") != std::string::npos;
  return layer->name == "core" && window ? layer[1] : *layer;
}

// True when a folder of the core stands in the table, and so does its use of the other one.
bool MayUse(const std::string& from, const std::string& to) {
  const auto* folder = std::find_if(std::begin(kCoreFolders), std::end(kCoreFolders),
                                    [&](const CoreFolder& each) { return each.folder == from; });
  if (folder == std::end(kCoreFolders)) return false;
  return from == to || (' ' + std::string(folder->uses) + ' ').find(' ' + to + ' ') != std::string::npos;
}

class Includes : public testing::Test {
 protected:
  Includes() {
    std::set<std::string> paths;
    const std::vector<TreeFile> tree = ReadTree();
    for (const TreeFile& file : tree) paths.insert(file.path);
    for (const TreeFile& file : tree) {
      if (!file.IsProduct()) continue;
      for (const std::string& name : Between('\n' + file.text, "\n#include \"", "\"")) {
        const std::string path = (paths.count("src/" + name) > 0 ? "src/" : "tools/") + name;
        const bool form = name.starts_with("ui_") &&
                          paths.count(FolderOf(file.path) + name.substr(3, name.size() - 5) + ".ui") > 0;
        if (paths.count(path) > 0) {
          edges_[file.path].push_back(path);
        } else if (!form) {
          wrong_.push_back(file.path + " includes the unknown " + name);
        }
      }
      for (const std::string& name : Between('\n' + file.text, "\n#include <", ">")) {
        system_.emplace_back(file.path, name);
      }
    }
  }
  ~Includes() override { EXPECT_THAT(wrong_, testing::IsEmpty()); }

  // Depth first; a file met again on the way to itself closes a circle.
  void Visit(const std::string& path, Strings& way) {
    if (std::find(way.begin(), way.end(), path) != way.end()) {
      for (const std::string& step : way) wrong_.push_back(step + " is on the circle to " + path);
    } else if (visited_.insert(path).second) {
      way.push_back(path);
      for (const std::string& next : edges_[path]) Visit(next, way);
      way.pop_back();
    }
  }

  std::map<std::string, Strings> edges_;
  std::vector<std::pair<std::string, std::string>> system_;  // a path, and what it includes of the system
  std::set<std::string> visited_;
  Strings wrong_;
};

TEST_F(Includes, PointDownOrSidewaysAndFormNoCircle) {
  ASSERT_GT(edges_.size(), 100U);
  for (const auto& [from, targets] : std::map(edges_)) {
    const Layer& layer = LayerOf(from);
    for (const std::string& to : targets) {
      const std::string_view other = LayerOf(to).name;
      const bool near = FolderOf(from) == FolderOf(to);
      const bool sideways = layer.name == other && (other != "tool" || near) &&
                            (other != "core" || MayUse(FolderOf(from), FolderOf(to)));
      // The header of a window includes no window of another subsystem.
      const bool form = layer.name == "window" && from.ends_with(".h") && other == "window" && !near;
      if (form || (!sideways && layer.below.find(other) == std::string::npos)) {
        wrong_.push_back(from + " includes " + to);
      }
    }
    Strings way;
    Visit(from, way);
  }
}

// A reader finds his way in a folder that he sees at one glance.
TEST(Folders, AreSmall) {
  std::map<std::string, std::size_t> files;
  for (const TreeFile& file : ReadTree()) {
    if (file.Under("src/")) ++files[FolderOf(file.path)];
  }
  ASSERT_GT(files.size(), 20U);
  for (const auto& [folder, count] : files) EXPECT_LE(count, kMostFiles) << folder;
}

// The core stands on the standard library alone: no toolkit, and the system's headers in platform/posix only.
TEST_F(Includes, OfTheCoreAreStandard) {
  ASSERT_GT(system_.size(), 100U);
  for (const auto& [path, name] : system_) {
    const std::string_view layer = LayerOf(path).name;
    const bool standard = name.find_first_not_of("abcdefghijklmnopqrstuvwxyz_") == std::string::npos;
    const bool posix = layer == "posix" && name.ends_with(".h") && !name.starts_with("Q");
    const bool core = layer == "core" || layer == "common" || layer == "platform" || layer == "posix";
    if (core && !standard && !posix) wrong_.push_back(path + " includes <" + name + ">");
  }
}

}  // namespace
}  // namespace morvane::house
