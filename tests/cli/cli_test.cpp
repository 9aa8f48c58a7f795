#include "cli/CommandLine.h"

namespace morvane {
namespace {

using Cli = test::CommandLine;

const std::string kJob =
    "COMMENT,a \"b\" \xE9\r\n0,1.5,.1,0.125,font1,0,0,0,0,T,\x80@@,1,1,1,0.0625M0.5\r\n4,1,1\r\n";

TEST_F(Cli, WrongUsageIsToldWithTheUsage) {
  folder.Write("A.TJB", kJob);
  for (const char* arguments : {"",
                                "nonsense",
                                "job",
                                "job show",
                                "job show A.TJB more",
                                "job draw A.TJB",
                                "job draw --trace",
                                "job draw A.TJB --trace --size 0x5",
                                "job draw A.TJB --trace --view sideways",
                                "expand letters A",
                                "--frobnicate job show A.TJB",
                                "--now '2026-02-30 00:00:00' job show A.TJB",
                                "font show F.FNT",
                                "gcode draw A.JOB --trace --viewer tv",
                                "gcode draw A.JOB --trace --tool 1 --all-tools",
                                "settings get Settings",
                                "job download",
                                "job upload A.TJB B.TJB",
                                "link",
                                "link files",
                                "link jobs *",
                                "link get A.TXT B.TXT C.TXT",
                                "link gcode 'G0\nG1'",
                                "link runwait A.TJB soon",
                                "link runwait A.TJB 0"}) {
    EXPECT_EQ(Run(arguments), 2) << arguments;
    EXPECT_EQ(folder.errors.substr(0, 19), "usage: morvane-cli ") << arguments;
    EXPECT_EQ(out, "") << arguments;
  }
}

TEST_F(Cli, JobShowPrintsEveryField) {
  folder.Write("A.TJB", kJob);
  ASSERT_EQ(Run("job show a.tjb"), 0) << folder.errors;
  EXPECT_EQ(
      out,
      "{\"comment\":\"a \\\"b\\\" \xC3\xA9\"}\n"
      "{\"index\":0,\"Type\":0,\"XPos\":1.5,\"YPos\":0.1,\"Height\":0.125,\"Compress\":1,\"Font\":\"FONT1\","
      "\"Text\":\"T,\xE2\x82\xAC\",\"Style\":0,\"Angle\":0,\"Radius\":0,\"Incr\":0,\"Side\":1,\"Tool\":1,"
      "\"Depth\":0.0625,\"Depth2\":0.5,\"Justify\":0,\"Prompt\":\"\",\"ScaleX\":1,\"ScaleY\":1,\"Rotate\":0,"
      "\"Location\":0,\"LateStart\":0,\"LateEnd\":0,\"EarlyShut\":0,\"Overlap\":0,\"OverlapHt\":0,"
      "\"Width\":0,\"KeepRatio\":1,\"Margin\":0,\"Backlash\":0,\"Spacing\":0}\n" +
          out.substr(out.find("{\"index\":1")));
  ASSERT_EQ(Run("job rewrite A.TJB B.TJB"), 0) << folder.errors;
  const std::string zeros = "0,0,0,0,0,0,1,0,0,0,0\r\n";
  EXPECT_EQ(
      folder.Read("B.TJB"),
      "COMMENT,a \"b\" \xE9\r\n0,1.5,0.1,0.125,FONT1.fnt,0,0,0,0,T,\x80@@,1,1,1,0.063M0.500,0,@@,1,1,0," +
          zeros + "4,1,1,0,.fnt,0,0,0,0,@@,1,1,1,0.000,0,@@,1,1,0," + zeros);
  EXPECT_EQ(Run("job rewrite NONE.TJB B.TJB"), 1);
  EXPECT_EQ(Run("job show NONE.TJB"), 1);
  EXPECT_EQ(folder.errors, "Morvane: Load(NONE.TJB) File not found\n");
}

TEST_F(Cli, DrawingsAreTracedAndWritten) {
  folder.Write("A.TJB", "4,1,2\r\n2,1,1,0,,0,0,0,0,G.JOB@@,1\r\n");
  folder.Write("G.JOB", "G01X0.1Y0\r\nW1\r\n");
  ASSERT_EQ(Run("job draw A.TJB --trace --view toolpath --size 600x400 --out a.svg"), 0) << folder.errors;
  EXPECT_EQ(out,
            "{\"op\":\"scale\",\"left\":0,\"top\":0,\"width\":6,\"height\":4}\n"
            "{\"op\":\"box\",\"x1\":0,\"y1\":0,\"x2\":6,\"y2\":4,\"color\":0}\n"
            "{\"op\":\"line\",\"x1\":0,\"y1\":0,\"x2\":1,\"y2\":2,\"color\":65280,\"width\":1}\n"
            "{\"op\":\"line\",\"x1\":1,\"y1\":2,\"x2\":1.1,\"y2\":1,\"color\":16776960,\"width\":2}\n"
            "{\"op\":\"circle\",\"x\":1.1,\"y\":1,\"r\":0.01,\"color\":16776960,\"width\":2}\n"
            "{\"op\":\"line\",\"x1\":1.1,\"y1\":1,\"x2\":0,\"y2\":0,\"color\":65280,\"width\":1}\n");
  EXPECT_NE(folder.Read("a.svg").find("<path d=\"M100 200L110 100\" fill=\"none\" stroke=\"#00ffff\""),
            std::string::npos);
  ASSERT_EQ(Run("job draw A.TJB --out a.png --size 60x40"), 0) << folder.errors;
  EXPECT_EQ(folder.Read("a.png").substr(0, 24),
            std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\x3C\0\0\0\x28", 24));
}

TEST_F(Cli, GcodeAndFonts) {
  folder.Write("G.JOB", "G00X1Y0\r\nG01X1Y3\r\nG02X1Y3I0J3\r\n");
  ASSERT_EQ(Run("gcode measure g.job"), 0) << folder.errors;
  EXPECT_EQ(
      out, "{\"move\":1,\"feed\":9.28318,\"total\":10.28318,\"minX\":-1,\"minY\":0,\"maxX\":1,\"maxY\":4}\n");
  ASSERT_EQ(Run("gcode draw G.JOB --viewer small --trace"), 0) << folder.errors;
  EXPECT_EQ(out.substr(0, 52), "{\"op\":\"scale\",\"left\":0,\"top\":0,\"width\":6,\"height\":6}");
  folder.Write("F.FNT", "1:.25,0,.5,1\r\n2:x\r\n");
  ASSERT_EQ(Run("font show F.FNT 1 --backward --width"), 0) << folder.errors;
  EXPECT_EQ(out, "{\"X1\":1,\"Y1\":1,\"X2\":0,\"Y2\":0}\n");
  EXPECT_EQ(Run("font show F.FNT 256"), 1);
  EXPECT_EQ(folder.errors, "Morvane: Subscript out of range\n");
}

TEST_F(Cli, ExpansionsAndSettings) {
  const std::pair<const char*, const char*> cases[] = {
      {"expand text '\xC3\xA9 $$DD$$/$$MM$$'", "\xC3\xA9 09/03"},
      {"expand date yyyy-mm-dd", "2026-03-09"},
      {"expand escapes '\\x41\\xE9'", "A\xC3\xA9"},
      {"settings get Settings Units in", "in\n"},
      {"settings set Settings Units '\xC2\xB5m'", ""},
      {"settings get settings UNITS", "\xC2\xB5m\n"},
      {"settings list Settings", "{\"key\":\"Units\",\"value\":\"\xC2\xB5m\"}\n"},
      {"settings list None", ""}};
  for (const auto& [arguments, wanted] : cases) {
    EXPECT_EQ(Run(arguments), 0) << arguments << folder.errors;
    EXPECT_EQ(out, wanted) << arguments;
  }
  EXPECT_EQ(folder.Read("Morvane.ini"), "[Settings]\r\nUnits=\xB5m\r\n");
}

}  // namespace
}  // namespace morvane
