// Every reader of files takes any bytes: what comes back holds together, or is refused by a run-time error.
#include <gtest/gtest.h>

#include <cmath>

#include "common/IniText.h"
#include "common/RunTimeError.h"
#include "common/Settings.h"
#include "datamatrix/ModuleRows.h"
#include "datamatrix/modDataMatrix.h"
#include "fonts/modFont.h"
#include "gcode/DrawFile.h"
#include "gcode/MeasureDistances.h"
#include "gcode/panel/modPanel.h"
#include "platform/RecordingCanvas.h"
#include "recipes/modFixture.h"
#include "support/FakeFileSystem.h"
#include "support/Mutator.h"
#include "textjob/job/LockImages.h"
#include "textjob/job/RecoveryFile.h"
#include "textjob/job/modTjb.h"

namespace morvane {
namespace {

using common::RunTimeError;

// Reads as the program does, then writes; what was written must read back with the rest untouched.
void ReadIni(const std::string& bytes) {
  const common::SettingsSnapshot snapshot(bytes);
  EXPECT_LE(snapshot.Get("Settings", "IP", "").size(), 255u);
  snapshot.Number("Settings", "GridSpacing", "1");
  std::size_t listed = 0;
  for (const auto& [key, value] : snapshot.GetAll("Machines")) listed += key.size() + value.size();
  EXPECT_LE(listed, 10240u);
  const std::string changed = common::IniWith(bytes, "Settings", "IP", "1.2.3.4");
  EXPECT_EQ(common::IniValue(changed, "Settings", "IP"), "1.2.3.4");
  EXPECT_EQ(common::SettingsSnapshot(changed).Get("Settings", "Units", "none"),
            snapshot.Get("Settings", "Units", "none"));
  EXPECT_LE(common::IniWithout(changed, "Settings", "IP").size(), changed.size());
}

// Every line can be parsed, and what was parsed is written in a form that parses and writes the same.
void ReadTjb(const std::string& bytes) {
  textjob::TextJob job, again;
  try {
    textjob::ReadTjb(bytes, job);
  } catch (const RunTimeError&) {
    ASSERT_EQ(job.LineCount(), textjob::kMaxLines);
  }
  textjob::ReadTjb(textjob::WriteTjb(job), again);
  ASSERT_EQ(again.Lines, job.Lines);
  const auto rewritten = [](const std::string& line) {
    return textjob::FormatTjbLine(textjob::ParseTjbLine(line), "0.000");
  };
  for (const std::string& line : job.Lines) {
    const std::string twice = rewritten(rewritten(line));
    ASSERT_EQ(rewritten(twice), twice);
  }
}

// The texts of a copy; its head is made for them, as a damage would else be found before they are read.
void ReadRecovery(const std::string& texts) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char byte : texts) hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211U;
  textjob::RecoveredJob copy, again;
  const bool whole =
      textjob::ReadRecovery("MORVANE RECOVERY 1 " + std::to_string(hash) + "\r\n" + texts, copy);
  ASSERT_LE(copy.job.LineCount(), textjob::kMaxLines);
  ASSERT_TRUE(!whole || textjob::ReadRecovery(textjob::WriteRecovery(copy.job, copy.name, ""), again));
  ASSERT_EQ(whole ? copy.job.Lines : again.job.Lines, again.job.Lines);
}

// Every character can be asked for, in all four ways, and by the viewer's scanner.
void ReadFont(const std::string& bytes) {
  fonts::FontTable table;
  fonts::ReadFont(std::make_shared<const fonts::FontLines>(fonts::ParseFont(bytes)), table);
  std::vector<fonts::FontSegment> segments;
  for (int code = 0; code < fonts::kFontCodes; ++code) {
    const std::string& line = table.FontChars[static_cast<std::size_t>(code)];
    if (line.empty()) continue;
    fonts::ReadFontLine(line, code, segments);
    ASSERT_LE(segments.size(), std::size_t{fonts::kMaxSegments});
    for (const int way : {0, 1, 2, 3}) {
      try {
        fonts::loadFontChar(table, code, segments, way % 2 == 0, way / 2 == 0 ? 0.0F : 1.0F);
        ASSERT_LE(segments.size(), std::size_t{fonts::kMaxSegments});
      } catch (const RunTimeError& error) {
        ASSERT_EQ(error.number(), common::kTypeMismatch);
      }
    }
  }
}

class CheckingCanvas : public platform::RecordingCanvas {
 public:
  void SetScale(const platform::CanvasView& view) override {
    EXPECT_TRUE(view.Width > 0 && view.Height > 0 && std::isfinite(view.Left + view.Width));
  }
  void Lines(const platform::Pen& pen, const platform::Segment* segments, std::size_t count) override {
    EXPECT_GE(pen.width, 1);
    for (std::size_t i = 0; i < count; ++i) {
      ASSERT_TRUE(std::isfinite(segments[i].x2) && std::isfinite(segments[i].y2));
    }
  }
};

void ShowJob(const std::string& bytes, gcode::Viewer viewer) {
  CheckingCanvas canvas;
  gcode::PassOptions options;
  options.viewer = viewer;
  options.currentLine = 3;
  options.click = gcode::Point{1, 1};
  options.velocityWidth = 2.0F;
  gcode::Surface surface;
  const auto program = gcode::ReadProgram(bytes, gcode::OptionsOf(viewer).foldToCapitals);
  gcode::ShowFile(program, options, surface, canvas);
}

void ReadJob(const std::string& bytes) {
  using gcode::Viewer;
  ShowJob(bytes, Viewer::Editor);
  if (bytes.size() < 1'000'000) {
    for (const Viewer viewer : {Viewer::Graphic, Viewer::Preview, Viewer::Small}) ShowJob(bytes, viewer);
  }
  const gcode::Distances distances = gcode::MeasureDistances(gcode::ReadProgram(bytes));
  EXPECT_TRUE(std::isfinite(distances.move + distances.feed));
}

// What `parse` made of the bytes is written in a form that reads and writes the same.
template <typename Parse, typename Format>
auto ExpectStable(const std::string& bytes, const Parse& parse, const Format& format) {
  const auto record = parse(bytes);
  const std::string written = format(record);
  EXPECT_NO_THROW(EXPECT_EQ(format(parse(written)), written));
  return record;
}

void ReadFixture(const std::string& bytes) {
  const auto fixture = ExpectStable(bytes, recipes::ParseFixture, recipes::FormatFixture);
  ASSERT_LE(fixture.Path.size(), recipes::kFixturePathPoints);
}

void ReadPanel(const std::string& bytes) {
  ExpectStable(bytes, gcode::panel::ParsePanel, gcode::panel::FormatPanel);
}

void ReadDataMatrix(const std::string& bytes) {
  using datamatrix::MissingMarker;
  const auto parse = [](const std::string& text) {
    return datamatrix::ParseDataMatrix(text, MissingMarker::Empties);
  };
  const auto file = ExpectStable(bytes, parse, datamatrix::FormatDataMatrix);
  const datamatrix::SymbolSize size = datamatrix::PlaceholderSize(file.Density);
  ASSERT_TRUE(size.rows > 0 && size.rows < 32768 && size.columns > 0 && size.columns < 32768);
  datamatrix::ModuleSpacing(file);
  ASSERT_LE(datamatrix::ParseDataMatrix(bytes, MissingMarker::KeepsRest).Content.size(), bytes.size());
}

// Whatever comes back can be drawn: equal rows of modules, within the limit.
void ReadSymbol(const std::string& bytes) {
  const datamatrix::ModuleRows rows = datamatrix::ParseModuleRows(bytes);
  ASSERT_LE(rows.size(), datamatrix::kMaxModules);
  for (const std::string& row : rows) {
    ASSERT_EQ(row.size(), rows.front().size());
    ASSERT_TRUE(!row.empty() && row.size() <= datamatrix::kMaxModules);
    ASSERT_EQ(row.find_first_not_of("* "), std::string::npos);
  }
}

// A record that was written is found again whatever else the list holds.
void ReadLockList(const std::string& bytes) {
  test::FakeFileSystem fileSystem("/base");
  const common::Files files(fileSystem, "/base");
  fileSystem.Put("/base/LockImages.txt", bytes);
  textjob::LockRecord record{"B.TJB", "", 0, 0, 0, 0};
  textjob::FindLockRecord(files, record);
  textjob::WriteLockRecord(files, {"B.TJB", "B.BMP", 1, 2, 3, 4}, false);
  ASSERT_TRUE(textjob::FindLockRecord(files, record));
  ASSERT_EQ(record.Image, "B.BMP");
  ASSERT_EQ(record.Height, 4.0F);
}

struct Subject {
  const char* name;
  test::Reader read;
  std::vector<std::string> seeds;
  std::vector<std::pair<std::string, std::string>> hugeLines;  // start and filling
};

const Subject kSubjects[] = {
    {"Ini",
     ReadIni,
     {"[Settings]\r\nImported=1\r\nComPort=5\r\nIP=192.168.0.10\r\nUnitsFormat=0.000\r\nGridSpacing=.5\r\n"
      "LOGO.BMP=0,0,4,4\r\nColor0=16776960\r\n\r\n; machines\r\n[Machines]\r\nM 1=10.0.0.1\r\n",
      "\xEF\xBB\xBF[Machines]\nA=1;B=2=3\n\n[Settings]\nUnits = \" mm \"\n=x\nword\n[Settings]\nUnits=in"},
     {{"[Settings]\nIP=", "x"}, {"", "["}, {"[Machines]\n", "a=1\r"}}},
    {"Tjb",
     ReadTjb,
     {"COMMENT,Job created by Morvane on 11/16/2026.\r\n"
      "0,1.5,2,0.125,FONT1.fnt,0,0,0,0,SAMPLE@@,1,1,1,0.000,0,@@,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n"
      "8,1,2,3,font2,3,4,5,6,a,b \xE9@@,7,8,9,0.5M1.5,1,Ask@@,10,11,12,1,13,14,15,16,17,0,18,19,20,21\r\n"
      "2,0,0,0,.fnt,0,0,0,0,LOGO.job@@,0.5,1,2,0.010M0.020,0,@@,&H10\r\n"},
     {{"", "9"}, {"0,0,0,1,F,0,0,0,0,", "a,b@@,"}, {"COMMENT,", "x"}}},
    {"Font",
     ReadFont,
     {"1:0.5,0,0.5,1\r\n2:\r\n3:0.000,-0.250,1.000,1.500;1,1.5,.5,1e1;\r\n4:-1,-1,-1,-1\r\n"},
     {{"", "9"}, {"1:", "0,0,1,1;"}, {"", "1:\r\n"}}},
    {"Job",
     ReadJob,
     {"G90\r\nG00X0.000Y0.000\r\nG01X1.250Y3.000\r\nG02X3Y2I2J2\r\nG03X1.5Y2I2J2\r\nW5\r\n",
      "G00X1Y2Z3\r\nG01X5\r\nG01Y-2.5\r\nM06T2\r\nG05T.5I1J1P0\r\nM06T16\r\nG01X1E1Y2\r\n",
      "s1\r\nvp50\r\nvf1.5\r\nvm2\r\ng01x1y1\r\ng04p1\r\ni3\r\nc1\r\ng02x1y1i2j2\r\nend\r\n"},
     {{"G01X", "1"}, {"M06T2\r\n", "a comment "}, {"G90\r\ng00x1y2\r\nG05T1I", "-1.5e"}}},
    {"Fixture",
     ReadFixture,
     {"0\r\n1\r\n3\r\n0.75\r\n5\r\n-1.5\r\n6\r\n0.125\r\n10\r\n20\r\n1,1;2,2\r\nG0 X1\r\nEND\r\n"
      "12.5,True\r\n0,1@G0 X1@G0 X2\r\n1,2\r\n0.5,-3\r\n"},
     {{"", "9"},
      {"0\n1\n1\n1\n1\n1\n1\n1\n1\n1\n\n\n", "G0 X1 "},
      {"0\n1\n1\n1\n1\n1\n1\n1\n1\n1\n\n\nEND\n0,False\n0,0@@\n", "1,2\n"}}},
    {"Panel", ReadPanel, {gcode::panel::FormatPanel({})}, {{"", "9"}, {"48\n", "\r"}}},
    {"DataMatrix",
     ReadDataMatrix,
     {"20x20\r\n1\r\n.02\r\n1\r\n\r\n\r\n\r\n\r\n\r\n[)>\\x1E12\\x1D$$YY$$\r\n%%A.1%%@ENDDM@",
      datamatrix::FormatDataMatrix({})},
     {{"", "9"}, {"Automatic\n0\n.01\n1\n\n\n\n\n\n", "@ENDDM"}}},
    {"Symbol",
     ReadSymbol,
     {"\"* * \"\r\n\"*  *\"\r\n\"**  \"\r\n\"****\"\r\n", "* *\n***,* *\n"},
     {{"", "*"}, {"* *\n", "* *,"}, {"\"* *", " "}, {"* *", "\r\n"}}},
    {"LockList",
     ReadLockList,
     {"A.TJB,A.BMP,1,2.5,3,4\r\nDIR\\b.tjb,,0,0,2,2\r\nC.TJB,C.BMP,0.125,-1,1E+10,4\r\n"},
     {{"A.TJB,", "9"}, {"", "\\"}}},
    {"Recovery",
     ReadRecovery,
     {"5,A.TJB\r\n0,\r\n3,any\r\n5,4,1,1\r\n0,\r\n7,3,0,0\r\n\r\n", "5,<NEW>\r\n0,\r\n0,\r\n"},
     {{"1,A\r\n0,\r\n", "9"}, {"1,A\r\n0,\r\n0,\r\n", "0,\r\n"}, {"99999999,", "A"}}}};

class Readers : public testing::TestWithParam<Subject> {};

TEST_P(Readers, TakeAnyBytes) {
  test::RunMutations(GetParam().seeds, GetParam().read);
}

TEST_P(Readers, TakeALineOfAnyLength) {
  for (const auto& [start, fill] : GetParam().hugeLines) test::RunHugeLine(start, fill, GetParam().read);
}

INSTANTIATE_TEST_SUITE_P(, Readers, testing::ValuesIn(kSubjects),
                         [](const auto& subject) { return subject.param.name; });

}  // namespace
}  // namespace morvane
