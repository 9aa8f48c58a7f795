#include "common/files/FileNames.h"

#include <gtest/gtest.h>

namespace morvane::common {
namespace {

TEST(FileNames, SplitsAtTheFirstPointAndTheLastSeparator) {
  using Case = std::array<const char*, 5>;
  for (const auto& [path, directory, name, base, extension] :
       {Case{"A.B.C", "", "A.B.C", "A", "B.C"}, Case{"AB", "", "AB", "AB", ""},
        Case{"C:\\JOBS\\A.B", "C:\\JOBS", "A.B", "A", "B"}, Case{"/home/x/A.B", "/home/x", "A.B", "A", "B"},
        Case{"", "", "", "", ""}, Case{"JOBS\\", "JOBS", "", "", ""}}) {
    EXPECT_EQ(PathDirectory(path), directory);
    EXPECT_EQ(PathFileName(path), name);
    EXPECT_EQ(FileBaseName(name), base);
    EXPECT_EQ(FileExtension(name), extension);
  }
}

TEST(FileNames, CheckFileName) {
  using Case = std::pair<std::string, std::string>;
  std::vector<Case> cases = {{"ABCDEFGH.JOB", ""},
                             {"C:\\MY JOBS\\AB", ""},
                             {"\xC4-_\".TJB", ""},
                             {"ABCDEFGHI.JOB", "Name is longer than 8 characters"},
                             {"ABCDEFGHI.JOBS", "Extension is longer than 3 characters"},
                             {"A B.JOB", "Invalid character SPACE in name"},
                             {"A.J B", "Invalid character SPACE in extension"},
                             {"A.B.C", "Invalid character . in extension"},
                             {std::string("A\0B.JOB", 7), "Unknown problem with filename"}};
  for (const char c : std::string(":*?<>|!#$%&'()@^`{}~+,;=[]")) {
    cases.push_back({std::string("A") + c, std::string("Invalid character ") + c + " in name"});
  }
  for (const auto& [path, expected] : cases) {
    std::string message = "old";
    EXPECT_EQ(CheckFileName(path, message), expected.empty()) << path;
    EXPECT_EQ(message, expected) << path;
  }
}

TEST(FileNames, MatchesPattern) {
  using Case = std::tuple<const char*, const char*, bool>;
  for (const auto& [name, pattern, matches] :
       {Case{"A.TJB", "*.tjb", true}, Case{"A.TJBX", "*.tjb", false}, Case{"A", "*.*", true},
        Case{"", "*", true}, Case{"AB", "A?", true}, Case{"A", "A?", false}, Case{"ab.ab.c", "*.AB.?", true},
        Case{"\xE4.JOB", "\xC4.*", true}, Case{"A", "", false}, Case{"A.JO", "*.JOB", false}}) {
    EXPECT_EQ(MatchesPattern(name, pattern), matches) << name << " " << pattern;
  }
}

}  // namespace
}  // namespace morvane::common
