#include "common/FileNames.h"

#include <gtest/gtest.h>

namespace morvane::common {
namespace {

TEST(FileNames, SplitsAtTheFirstPointAndTheLastSeparator) {
  struct Case {
    const char* path;
    const char* directory;
    const char* name;
    const char* base;
    const char* extension;
  };
  for (const Case& c : {Case{"AB.JOB", "", "AB.JOB", "AB", "JOB"}, Case{"A.B.C", "", "A.B.C", "A", "B.C"},
                        Case{"AB", "", "AB", "AB", ""}, Case{"C:\\JOBS\\A.B", "C:\\JOBS", "A.B", "A", "B"},
                        Case{"/home/x/A.B", "/home/x", "A.B", "A", "B"}, Case{"", "", "", "", ""},
                        Case{"JOBS\\", "JOBS", "", "", ""}}) {
    EXPECT_EQ(PathDirectory(c.path), c.directory);
    EXPECT_EQ(PathFileName(c.path), c.name);
    EXPECT_EQ(FileBaseName(c.name), c.base);
    EXPECT_EQ(FileExtension(c.name), c.extension);
  }
}

TEST(FileNames, CheckFileName) {
  struct Case {
    std::string path;
    const char* message;
  };
  const Case cases[] = {{"ABCDEFGH.JOB", ""},
                        {"AB", ""},
                        {"C:\\MY JOBS\\AB.JOB", ""},
                        {"\xC4-_\".TJB", ""},
                        {"ABCDEFGHI.JOB", "Name is longer than 8 characters"},
                        {"AB.JOBS", "Extension is longer than 3 characters"},
                        {"ABCDEFGHI.JOBS", "Extension is longer than 3 characters"},
                        {"A B.JOB", "Invalid character SPACE in name"},
                        {"A.J B", "Invalid character SPACE in extension"},
                        {"A.B.C", "Invalid character . in extension"},
                        {std::string("A\0B.JOB", 7), "Unknown problem with filename"},
                        {"A.\r\n", "Unknown problem with filename"}};
  for (const Case& c : cases) {
    std::string message = "old";
    EXPECT_EQ(CheckFileName(c.path, message), *c.message == '\0') << c.path;
    EXPECT_EQ(message, c.message) << c.path;
  }
  for (char c : std::string(":*?<>|!#$%&'()@^`{}~+,;=[]")) {
    std::string message;
    EXPECT_FALSE(CheckFileName(std::string("A") + c, message));
    EXPECT_EQ(message, std::string("Invalid character ") + c + " in name");
  }
}

TEST(FileNames, MatchesPattern) {
  struct Case {
    const char* name;
    const char* pattern;
    bool matches;
  };
  for (const Case& c :
       {Case{"A.TJB", "*.tjb", true}, Case{"A.TJBX", "*.tjb", false}, Case{"A", "*.*", true},
        Case{"A", "*", true}, Case{"", "*", true}, Case{"AB", "A?", true}, Case{"A", "A?", false},
        Case{"ab.ab.c", "*.AB.?", true}, Case{"\xE4.JOB", "\xC4.*", true}, Case{"A", "", false},
        Case{"X.A.JOB", "*A*.JOB", true}, Case{"A.JO", "*.JOB", false}}) {
    EXPECT_EQ(MatchesPattern(c.name, c.pattern), c.matches) << c.name << " " << c.pattern;
  }
}

}  // namespace
}  // namespace morvane::common
