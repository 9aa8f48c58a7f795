#include "fonts/modFont.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "common/RunTimeError.h"
#include "fonts/GlyphCache.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/BaseStation.h"
#include "support/TempFolder.h"

namespace morvane::fonts {
namespace {

using Segments = std::vector<FontSegment>;

std::string Show(const Segments& segments) {
  std::ostringstream out;
  for (const FontSegment& s : segments) out << s.X1 << ' ' << s.Y1 << ' ' << s.X2 << ' ' << s.Y2 << ';';
  return out.str();
}

TEST(Font, CharactersForwardBackwardAndWide) {
  FontTable table;
  using Case = std::tuple<const char*, bool, float, const char*>;
  for (const auto& [line, forward, width, expected] :
       {Case{"", true, 0.F, ""}, Case{"65:", true, 1.F, ""},
        Case{"65:.5,0.00,.5,1", true, 0.F, "0.5 0 0.5 1;"},
        Case{"65:1,2,3,4;3,4,5,6;", false, 0.F, "5 6 3 4;3 4 1 2;"},
        Case{"65:.5,0,.5,1", true, .1F, "0.5 0 0.5 1;"}, Case{"65:-1,0,1,1", true, 1.F, "0.5 0 0.5 1;"},
        Case{"65:.25,0,.5,1;.5,1,.75,0", true, 2.F, "0 0 0.5 1;0.5 1 1 0;"},
        Case{"65:0,x,1e0,1;;9,9,9,9", true, 0.F, "0 0 1 1;0 9 9 9;"},
        Case{"65:-.25,-.5", true, 0.F, "-0.25 -0.5 0 0;"}, Case{"66:1,1,1,1", true, 0.F, "1 1 1 1;"}}) {
    table.FontChars[65] = line;
    Segments segments(3);
    loadFontChar(table, 65, segments, forward, width);
    EXPECT_EQ(Show(segments), expected) << line;
  }
  table.FontChars[65] = "A:0,0,1,1";
  Segments segments;
  EXPECT_THROW(loadFontChar(table, 65, segments, true, 0), common::RunTimeError);
  EXPECT_THROW(loadFontChar(table, 256, segments, true, 0), common::RunTimeError);
  std::string many = "65:";
  for (int i = 0; i < 300; ++i) many += "0,0,1,1;";
  table.FontChars[65] = many;
  loadFontChar(table, 65, segments, true, 0);
  EXPECT_EQ(segments.size(), 257U);
}

TEST(Font, TheViewersScannerReportsTheCodeNumber) {
  Segments segments;
  EXPECT_TRUE(ReadFontLine("65:1,2,3,4;3,4,5,6;", 65, segments));
  EXPECT_EQ(Show(segments), "1 2 3 4;3 4 5 6;");
  EXPECT_FALSE(ReadFontLine("66:1,2,3,4", 65, segments));
  EXPECT_TRUE(ReadFontLine("65", 65, segments));
  EXPECT_TRUE(segments.empty());
}

class FontFile : public testing::Test, public test::BaseStation {
 protected:
  bool Load(const std::string& name) { return LoadFont(table, name, FontOrigin::Document, files, prompts); }

  FontTable table;
};

TEST_F(FontFile, SpellingsAndOldEntries) {
  disk.Put("/base/Font1.fnt", "1:\r\n2:old\r\n3:stays\r\n");
  disk.Put("/base/FONT2.FNT", "1:new\r\n2:\r\n");
  for (const char* name : {"FONT1.FNT", "font1.fnt", "FONT1", "FONT1.XYZ"}) EXPECT_TRUE(Load(name)) << name;
  EXPECT_TRUE(Load("font2"));
  EXPECT_EQ(table.FontName, "font2");
  EXPECT_EQ(table.FontChars[1] + table.FontChars[2] + table.FontChars[3], "1:new2:3:stays");
}

TEST_F(FontFile, FailuresKeepTheNewNameAndTheOldEntries) {
  disk.Put("/base/A.FNT", "1:a\r\n");
  disk.Put("/secret.fnt", "1:secret\r\n");
  Load("A.FNT");
  EXPECT_FALSE(Load("B.FNT"));
  EXPECT_FALSE(Load("..\\SECRET.FNT"));
  EXPECT_EQ(table.FontName, "..\\SECRET.FNT");
  EXPECT_EQ(table.FontChars[1], "1:a");
  disk.faults.bytesLeft = 5;
  EXPECT_FALSE(SaveFont(table, "A.FNT", files, prompts));
  EXPECT_EQ(prompts.Texts(), (std::vector<std::string>{"Font File Error: File not found", "Disk full"}));
}

// The name itself may be missing or look harmless while the file it stands for lies elsewhere.
TEST(FontLinks, NoSpellingLeadsADocumentOut) {
  const test::TempFolder folder;
  std::filesystem::create_directories(folder / "outside/inner");
  std::filesystem::create_directory(folder / "base");
  folder.Write("outside/SECRET.FNT", "1:secret\r\n");
  std::filesystem::create_symlink(folder / "outside/SECRET.FNT", folder / "base/A.FNT");
  std::filesystem::create_directory_symlink(folder / "outside/inner", folder / "base/LINK");
  platform::PosixFileSystem disk;
  const common::Files files(disk, folder / "base");
  for (const char* name : {"A", "A.FNT", "A.XYZ", "LINK\\..\\SECRET.FNT", "LINK\\..\\SECRET"}) {
    FontTable table;
    test::FakePrompts prompts;
    LoadFont(table, name, FontOrigin::Document, files, prompts);
    EXPECT_EQ(table.FontChars[1], "") << name;
  }
}

TEST_F(FontFile, RoundTripOf255Lines) {
  std::string bytes;
  for (int code = 1; code <= 255; ++code) bytes += std::to_string(code) + ":0,0,1,1\r\n";
  disk.Put("/base/A.FNT", bytes + "256:behind\r\n");
  ASSERT_TRUE(Load("A.FNT"));
  EXPECT_EQ(table.FontChars[0], "");
  ASSERT_TRUE(SaveFont(table, "B.FNT", files, prompts));
  EXPECT_EQ(disk.Get("/base/B.FNT"), bytes);
}

TEST_F(FontFile, TheGlyphCacheFollowsTheTable) {
  GlyphCache glyphs(table);
  const auto show = [&](bool forward) {
    std::ostringstream out;
    for (const GlyphPoint& p : glyphs.Get(1, forward, false))
      out << (p.down ? "-" : " ") << p.x << ',' << p.y;
    return out.str();
  };
  const auto read = [&](const char* bytes) {
    ReadFont(std::make_shared<const FontLines>(ParseFont(bytes)), table);
  };
  read("1:0,0,1,1;1,1,2,1;5,5,6,6\n");
  EXPECT_EQ(show(true), " 0,0-1,1-2,1 5,5-6,6");
  EXPECT_EQ(show(false), " 6,6-5,5 2,1-1,1-0,0");
  read("1:2,2,3,3\n");
  EXPECT_EQ(show(true), " 2,2-3,3");
}

}  // namespace
}  // namespace morvane::fonts
