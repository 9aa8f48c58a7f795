#include "app/CommandLine.h"

#include <gtest/gtest.h>

namespace morvane::app {
namespace {

TEST(CommandLine, OnlyTheWholeTextMakesAnEngineer) {
  for (const auto& [words, developer] : {std::pair{QStringList{"/DEVELOPER"}, true},
                                         {QStringList{"/developer"}, false},
                                         {QStringList{"/DEVELOPER", "/X"}, false},
                                         {QStringList{"A.tjb", "--no-splash"}, false}}) {
    const CommandLine line = ParseCommandLine(words);
    EXPECT_EQ(line.developer, developer) << words.join(' ').toStdString();
    EXPECT_EQ(line.jobFile.isEmpty(), words[0] != "A.tjb");
    EXPECT_EQ(line.splash, !words.contains("--no-splash"));
  }
}

}  // namespace
}  // namespace morvane::app
