#include "datamatrix/SymbolCache.h"

#include <gtest/gtest.h>

#include "datamatrix/modDataMatrix.h"
#include "support/SideProgramStation.h"

namespace morvane::datamatrix {
namespace {

const std::string kSymbol = "* *\r\n***\r\n";
const ModuleRows kRows{"* *", "***"};

class SymbolCache : public ::testing::Test {
 protected:
  SymbolCache() { PutFile("A$B"); }

  void PutFile(const std::string& content) {
    station_.disk.Put("/base/lot.dm", "20x20\n0\n.01\n1\n\n\n\n\n\n" + content + "@ENDDM@");
  }
  // The next run of the tool keeps its input and makes a symbol.
  void ExpectSymbol() {
    station_.processes.scripts.push_back({true, 2, 0, [this] {
                                            input_ = station_.disk.Get("/base/in.txt");
                                            station_.disk.Put("/base/out.txt", kSymbol);
                                          }});
  }
  // One line of a pass of its own.
  ModuleRows Draw(const std::string& name = "LOT.DM") {
    FailedSymbols failed;
    return BuildSymbolCache(station_.runner, name, expand_, failed).rows;
  }
  std::size_t Runs() const { return station_.processes.runs.size(); }

  test::SideProgramStation station_{"SQRGEN.EXE"};
  Expansion expand_ = [](const std::string& text) { return "<" + text + ">"; };
  std::string input_;
};

TEST_F(SymbolCache, RunsTheToolOnlyForANewerFile) {
  ExpectSymbol();
  EXPECT_EQ(Draw(), kRows);
  EXPECT_EQ(input_, "<A$B>");
  ASSERT_EQ(Runs(), 1U);
  EXPECT_EQ(station_.processes.runs[0].arguments, std::vector<std::string>{"20x20"});
  EXPECT_EQ(station_.disk.Get("/base/Temp/LOT.out"), kSymbol);

  station_.disk.SetModified("/base/lot.dm", 5);
  station_.disk.SetModified("/base/Temp/LOT.out", 5);
  EXPECT_EQ(Draw(), kRows);
  EXPECT_EQ(Runs(), 1U);

  PutFile("B");
  ExpectSymbol();
  EXPECT_EQ(Draw(), kRows);
  EXPECT_EQ(input_, "<B>");
}

TEST_F(SymbolCache, AFailedBuildLeavesNoRowsAndIsTriedAgainByTheNextPass) {
  station_.disk.Put("/base/out.txt", kSymbol);  // of an earlier run
  station_.ExpectEnd(0);
  station_.ExpectEnd(1);
  station_.ExpectNoStart();
  station_.Expect("out.txt", kSymbol, 3);
  station_.Expect("out.txt", "Text too long");
  station_.Expect("out.txt", std::string(5'000'000, '*'));
  for (std::size_t run = 1; run <= 6; ++run) {
    FailedSymbols failed;
    for (int line = 0; line < 3; ++line) {
      EXPECT_TRUE(BuildSymbolCache(station_.runner, "LOT.DM", expand_, failed).rows.empty());
    }
    EXPECT_FALSE(station_.disk.Has("/base/Temp/LOT.out"));
    EXPECT_EQ(Runs(), run);
  }
  station_.Expect("out.txt", kSymbol);
  EXPECT_EQ(Draw(), kRows);
}

TEST_F(SymbolCache, WhatIsDamagedOrSavedWhileTheToolRunsIsMadeAgain) {
  station_.disk.Put("/base/Temp/LOT.out", "***\r\n*");
  station_.Expect("out.txt", kSymbol);
  EXPECT_EQ(Draw(), kRows);
  EXPECT_EQ(station_.disk.Get("/base/Temp/LOT.out"), kSymbol);
  PutFile("newer");
  station_.processes.scripts = {{true, 0, 0, [this] {
                                   station_.disk.Put("/base/out.txt", kSymbol);
                                   PutFile("later");
                                 }}};
  EXPECT_EQ(Draw(), kRows);
  ExpectSymbol();
  EXPECT_EQ(Draw(), kRows);
  EXPECT_EQ(input_, "<later>");
}

TEST_F(SymbolCache, NoToolForAFileThatCannotBeUsed) {
  station_.disk.Put("/other.dm", FormatDataMatrix({}));
  for (const char* name : {"NONE.DM", "", "..\\other.dm", "/other.dm", "C:other.dm", "LOT\n.DM"}) {
    EXPECT_TRUE(Draw(name).empty()) << name;
  }
  PutFile(std::string(kMaxContent + 1, 'A'));
  EXPECT_TRUE(Draw().empty());
  EXPECT_EQ(Runs(), 0U);
}

}  // namespace
}  // namespace morvane::datamatrix
