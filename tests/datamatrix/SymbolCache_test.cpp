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
  SymbolCache() { PutFile("20x20", "A$B"); }

  void PutFile(const std::string& density, const std::string& content) {
    DataMatrixFile file;
    file.Density = density;
    file.Content = content;
    station_.fileSystem.Put("/base/lot.dm", FormatDataMatrix(file));
  }
  // One line of a pass of its own.
  Symbol Draw(const std::string& name = "LOT.DM") {
    FailedSymbols failed;
    return BuildSymbolCache(station_.runner, name, expand_, failed);
  }
  std::size_t Runs() const { return station_.processes.runs.size(); }
  bool IsCached() const { return station_.fileSystem.Has("/base/Temp/LOT.out"); }

  test::SideProgramStation station_{"SQRGEN.EXE"};
  Expansion expand_ = [](const std::string& text) { return "<" + text + ">"; };
};

TEST_F(SymbolCache, RunsTheToolOnlyForANewerFile) {
  std::string input;
  const auto make = [&] {
    input = station_.fileSystem.Get("/base/in.txt");
    station_.fileSystem.Put("/base/out.txt", kSymbol);
  };
  station_.processes.scripts = {{true, 2, 0, make}, {true, 0, 0, make}};
  const Symbol symbol = Draw();
  EXPECT_EQ(symbol.rows, kRows);
  EXPECT_EQ(symbol.file.Density, "20x20");
  EXPECT_EQ(input, "<A$B>");
  ASSERT_EQ(Runs(), 1U);
  EXPECT_EQ(station_.processes.runs[0].program, "/base/SQRGEN.EXE");
  EXPECT_EQ(station_.processes.runs[0].arguments, std::vector<std::string>{"20x20"});
  EXPECT_EQ(station_.processes.runs[0].workingDirectory, "/base");
  EXPECT_EQ(station_.fileSystem.Get("/base/Temp/LOT.out"), kSymbol);
  EXPECT_FALSE(station_.fileSystem.Has("/base/in.txt"));
  EXPECT_FALSE(station_.fileSystem.Has("/base/out.txt"));

  station_.fileSystem.SetModified("/base/lot.dm", 5);
  station_.fileSystem.SetModified("/base/Temp/LOT.out", 5);
  EXPECT_EQ(Draw().rows, kRows);
  EXPECT_EQ(Runs(), 1U);

  station_.fileSystem.Put("/base/lot.dm", "Automatic\n0\n.01\n1\n\n\n\n\n\nno end marker");
  EXPECT_EQ(Draw().rows, kRows);
  ASSERT_EQ(Runs(), 2U);
  EXPECT_EQ(station_.processes.runs[1].arguments, std::vector<std::string>{"Automatic"});
  EXPECT_EQ(input, "<>");
}

TEST_F(SymbolCache, AFailedBuildLeavesNoRowsAndIsTriedAgain) {
  station_.fileSystem.Put("/base/out.txt", kSymbol);  // of an earlier run
  const auto failures = {
      +[](test::SideProgramStation& s) { s.ExpectEnd(0); },
      +[](test::SideProgramStation& s) { s.ExpectEnd(1); },
      +[](test::SideProgramStation& s) { s.ExpectNoStart(); },
      +[](test::SideProgramStation& s) { s.Expect("out.txt", kSymbol, 3); },
      +[](test::SideProgramStation& s) { s.Expect("out.txt", ""); },
      +[](test::SideProgramStation& s) { s.Expect("out.txt", "* *\r\n**\r\n"); },
      +[](test::SideProgramStation& s) { s.Expect("out.txt", "Text too long"); },
      +[](test::SideProgramStation& s) { s.Expect("out.txt", std::string(5'000'000, '*')); }};
  std::size_t runs = 0;
  for (const auto& expectFailure : failures) {
    expectFailure(station_);
    EXPECT_TRUE(Draw().rows.empty());
    EXPECT_FALSE(IsCached());
    EXPECT_EQ(Runs(), ++runs);
  }
  station_.Expect("out.txt", kSymbol);
  EXPECT_EQ(Draw().rows, kRows);
}

TEST_F(SymbolCache, OnePassTriesABadFileOnce) {
  FailedSymbols failed;
  station_.ExpectEnd(1);
  for (int line = 0; line < 1000; ++line) {
    EXPECT_TRUE(BuildSymbolCache(station_.runner, "LOT.DM", expand_, failed).rows.empty());
  }
  EXPECT_EQ(Runs(), 1U);
}

TEST_F(SymbolCache, AFileSavedWhileTheToolRunsIsMadeAgain) {
  station_.processes.scripts = {{true, 0, 0, [&] {
                                   station_.fileSystem.Put("/base/out.txt", kSymbol);
                                   PutFile("20x20", "later");
                                 }}};
  EXPECT_EQ(Draw().rows, kRows);
  EXPECT_FALSE(IsCached());
}

TEST_F(SymbolCache, ADamagedCacheIsMadeAgain) {
  station_.fileSystem.Put("/base/Temp/LOT.out", "***\r\n*");
  station_.Expect("out.txt", kSymbol);
  EXPECT_EQ(Draw().rows, kRows);
  EXPECT_EQ(station_.fileSystem.Get("/base/Temp/LOT.out"), kSymbol);
}

TEST_F(SymbolCache, NoToolForAFileThatCannotBeUsed) {
  station_.fileSystem.Put("/other.dm", FormatDataMatrix({}));
  for (const char* name : {"NONE.DM", "", "..\\other.dm", "/other.dm", "C:other.dm", "LOT\n.DM"}) {
    const Symbol symbol = Draw(name);
    EXPECT_TRUE(symbol.rows.empty()) << name;
    EXPECT_EQ(symbol.file.Density, kAutomatic) << name;
  }
  PutFile("20x20", std::string(kMaxContent + 1, 'A'));
  EXPECT_TRUE(Draw().rows.empty());
  EXPECT_EQ(Runs(), 0U);
}

}  // namespace
}  // namespace morvane::datamatrix
