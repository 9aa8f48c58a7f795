#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "house/Tree.h"

namespace morvane::house {
namespace {

// A file belongs to the first entry whose folder it lies in; `windows` names files by their prefix.
struct Place {
  std::string_view folder;
  bool windows;
  std::string_view layer;
};
constexpr Place kPlaces[] = {
    {"src/platform/qt/", false, "qt"},
    {"src/platform/posix/", false, "posix"},
    {"src/platform/", false, "platform"},
    {"src/common/", false, "common"},
    {"src/context/", false, "context"},
    {"src/widgets/", false, "widgets"},
    {"src/app/", false, "app"},
    {"src/cli/", false, "cli"},
    {"src/", true, "window"},
    {"src/", false, "core"},
    {"tools/", false, "tool"},
};

// What each layer may include besides itself: what lies below it in the picture.
const std::map<std::string_view, std::set<std::string_view>> kBelow = {
    {"platform", {}},
    {"posix", {"platform", "common"}},
    {"common", {"platform"}},
    {"core", {"platform", "common"}},
    {"tool", {"platform", "common", "posix"}},
    {"qt", {"platform", "common", "posix", "core"}},
    {"context", {"platform", "common", "core", "qt"}},
    {"widgets", {"platform", "common", "core", "qt", "context"}},
    {"window", {"platform", "common", "core", "qt", "context", "widgets"}},
    {"app", {"platform", "common", "core", "qt", "context", "widgets", "window", "posix"}},
    {"cli", {"platform", "common", "core", "qt", "posix"}},
};

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.rfind('/') + 1);
}

bool IsWindow(const std::string& path) {
  const std::string name = path.substr(path.rfind('/') + 1);
  for (const std::string_view prefix : {"frm", "uc"}) {
    if (name.starts_with(prefix) && std::isupper(static_cast<unsigned char>(name[prefix.size()])))
      return true;
  }
  return false;
}

std::string_view LayerOf(const std::string& path) {
  for (const Place& place : kPlaces) {
    if (path.starts_with(place.folder) && (!place.windows || IsWindow(path))) return place.layer;
  }
  return {};
}

// The names between `open` and `close` on the include lines of a file.
std::vector<std::string> Included(const TreeFile& file, char open, char close) {
  std::vector<std::string> names;
  for (const std::string& line : file.lines) {
    const std::size_t start = line.find(open);
    if (!line.starts_with("#include") || start == std::string::npos) continue;
    names.push_back(line.substr(start + 1, line.find(close, start + 1) - start - 1));
  }
  return names;
}

class Includes : public testing::Test {
 protected:
  void SetUp() override {
    const auto resolve = [&](const std::string& name) -> std::string {
      for (const char* root : {"src/", "tools/"}) {
        if (paths_.count(root + name) > 0) return root + name;
      }
      return {};
    };
    for (const TreeFile& file : ReadTree()) paths_.insert(file.path);
    for (TreeFile& file : product_) {
      for (const std::string& name : Included(file, '"', '"')) {
        const std::string path = resolve(name);
        const std::string form =
            name.starts_with("ui_") ? FolderOf(file.path) + name.substr(3, name.size() - 5) + ".ui" : path;
        if (paths_.count(form) == 0) wrong_.push_back(file.path + " includes the unknown " + name);
        if (!path.empty()) edges_[file.path].push_back(path);
      }
    }
  }

  // Depth first; a file met again on the way to itself closes a circle.
  void Visit(const std::string& path, std::vector<std::string>& way) {
    if (std::find(way.begin(), way.end(), path) != way.end()) {
      std::string circle;
      for (const std::string& step : way) circle += step + " -> ";
      wrong_.push_back(circle + path);
    } else if (visited_.insert(path).second) {
      way.push_back(path);
      for (const std::string& next : edges_[path]) Visit(next, way);
      way.pop_back();
    }
  }

  std::vector<TreeFile> product_ = ReadProduct();
  std::set<std::string> paths_;
  std::map<std::string, std::vector<std::string>> edges_;
  std::set<std::string> visited_;
  std::vector<std::string> wrong_;
};

TEST_F(Includes, PointDownOrSideways) {
  ASSERT_GT(edges_.size(), 100U);
  for (const auto& [from, targets] : edges_) {
    const std::string_view layer = LayerOf(from);
    for (const std::string& to : targets) {
      const bool sideways = layer == LayerOf(to) && (layer != "tool" || FolderOf(from) == FolderOf(to));
      if (!sideways && kBelow.at(layer).count(LayerOf(to)) == 0) wrong_.push_back(from + " includes " + to);
      const bool window = LayerOf(to) == "window" && FolderOf(from) != FolderOf(to);
      if (layer == "window" && from.ends_with(".h") && window) {
        wrong_.push_back(from + " includes a form of another subsystem: " + to);
      }
    }
  }
  EXPECT_THAT(wrong_, testing::IsEmpty());
}

TEST_F(Includes, FormNoCircle) {
  std::vector<std::string> way;
  for (const TreeFile& file : product_) Visit(file.path, way);
  EXPECT_EQ(visited_.size(), product_.size());
  EXPECT_THAT(wrong_, testing::IsEmpty());
}

// The core stands on the standard library alone: no toolkit, and the system's headers in platform/posix only.
TEST_F(Includes, OfTheCoreAreStandard) {
  const auto standard = [](char c) { return std::islower(static_cast<unsigned char>(c)) || c == '_'; };
  std::size_t seen = 0;
  for (const TreeFile& file : product_) {
    const std::string_view layer = LayerOf(file.path);
    const bool posix = layer == "posix";
    if (!posix && layer != "core" && layer != "common" && layer != "platform") continue;
    for (const std::string& name : Included(file, '<', '>')) {
      const bool ofTheSystem = posix && name.ends_with(".h") && !name.starts_with("Q");
      if (!ofTheSystem && !std::all_of(name.begin(), name.end(), standard)) {
        wrong_.push_back(file.path + " includes <" + name + ">");
      }
      ++seen;
    }
  }
  EXPECT_GT(seen, 100U);
  EXPECT_THAT(wrong_, testing::IsEmpty());
}

}  // namespace
}  // namespace morvane::house
