// The documents that come with the program are the first thing that a user sees, and what the checks by eye
// and the pictures of the user guide are made from.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "common/FileNames.h"
#include "common/Text.h"
#include "datamatrix/modDataMatrix.h"
#include "gcode/panel/modPanel.h"
#include "recipes/modFixture.h"
#include "support/PreviewStation.h"
#include "textjob/JobFile.h"
#include "textjob/modTjb.h"

namespace morvane::textjob {
namespace {

constexpr const char* kFixtures[] = {"",           "CLONE.FIX",  "INDEX.FIX",
                                     "ROTARY.FIX", "CUSTOM.FIX", "ROTCLONE.FIX"};
// Types whose `Text` names a file that is read for drawing.
const std::set<std::int32_t> kFileTypes = {kGraphic,    kPanel,    kDataMatrix, kImage,
                                           kClosedPath, kParkPath, kRaster};

class StationJobs : public testing::Test {
 protected:
  StationJobs() {
    for (const auto& entry : std::filesystem::directory_iterator(MORVANE_SOURCE_DIR "/station")) {
      std::ifstream in(entry.path(), std::ios::binary);
      std::ostringstream bytes;
      bytes << in.rdbuf();
      names.push_back(entry.path().filename().string());
      station.Put(names.back(), bytes.str());
    }
    station.Put("PIXBAKE.EXE", "program");
  }

  std::vector<std::string> Names(std::string_view extension) const {
    std::vector<std::string> found;
    for (const std::string& name : names) {
      if (common::EqualIgnoringCase(common::FileExtension(name), extension)) found.push_back(name);
    }
    EXPECT_FALSE(found.empty()) << extension;
    return found;
  }

  std::vector<TextJobLine> Load(const std::string& name) {
    TextJob job;
    EXPECT_TRUE(LoadTjbFile(job, name, station.files, station.prompts)) << name;
    raw = job.Lines;
    std::vector<TextJobLine> lines;
    for (const std::string& line : raw) lines.push_back(ParseTjbLine(line));
    return lines;
  }

  test::PreviewStation station;
  std::vector<std::string> names;
  std::vector<std::string> raw;  // the lines of the job loaded last
};

TEST_F(StationJobs, DrawWithoutAMessageWithEachFixture) {
  for (const std::string& name : Names("TJB")) {
    for (const TextJobLine& line : Load(name)) {
      if (kFileTypes.count(line.Type)) {
        EXPECT_TRUE(station.files.FileExists(line.Text)) << name << ' ' << line.Text;
      }
    }
    for (const char* fixture : kFixtures) {
      station.Set("Fixture", fixture);
      const ViewOptions options{true, true, true, true, *fixture != '\0'};
      EXPECT_EQ(station.Draw(raw, options).labels.size(), raw.size());
      EXPECT_GT(station.canvas.Segments().size(), 100U) << name;
      EXPECT_THAT(station.prompts.Texts(), testing::IsEmpty()) << name << ' ' << fixture;
    }
  }
}

TEST_F(StationJobs, TypesHoldsOneOfEverything) {
  std::set<std::int32_t> types, styles, justifications, locations;
  bool proFont = false;
  for (const TextJobLine& line : Load("TYPES.TJB")) {
    types.insert(line.Type);
    if (!IsTextLine(line.Type)) continue;
    styles.insert(line.Style);
    justifications.insert(line.Justify);
    locations.insert(line.Location);
    proFont |= line.Width > 0 && line.Spacing > 0;
  }
  EXPECT_EQ(types.size(), static_cast<std::size_t>(kLineTypeCount));
  EXPECT_THAT(styles, testing::ElementsAre(kRegular, kArcText, kAngular, kRadiusText));
  EXPECT_THAT(justifications, testing::ElementsAre(kLeft, kCenter, kRight));
  EXPECT_THAT(locations, testing::ElementsAre(kOutside, kInside));
  EXPECT_TRUE(proFont);
}

TEST_F(StationJobs, TheSampleFillsTheFirstViewAndStaysInside) {
  Load("SAMPLE.TJB");
  const auto view = station.Draw(raw).view;
  float left = view.Width, top = view.Height, right = 0, bottom = 0;
  for (const platform::Segment& s : station.canvas.Segments()) {
    left = std::min({left, s.x1, s.x2});
    right = std::max({right, s.x1, s.x2});
    top = std::min({top, s.y1, s.y2});
    bottom = std::max({bottom, s.y1, s.y2});
  }
  constexpr float kMargin = 0.15F;
  EXPECT_NEAR(left, kMargin, 1e-4);
  EXPECT_NEAR(top, kMargin, 1e-4);
  EXPECT_NEAR(view.Width - right, kMargin, 1e-4);
  EXPECT_NEAR(view.Height - bottom, kMargin, 1e-4);
}

// What the program would save is what lies there, so that a first save changes nothing but what was edited.
TEST_F(StationJobs, EveryDocumentIsAsTheProgramWritesIt) {
  const auto bytes = [this](const std::string& name) { return station.files.Read(name); };
  for (const std::string& name : Names("TJB")) {
    TextJob job;
    ReadTjb(bytes(name), job);
    for (std::string& line : job.Lines) {
      TextJobLine record = ParseTjbLine(line);
      record.Font = FontToken(record.Font);
      line = FormatTjbLine(record, station.settings.UnitsFormatText());
    }
    EXPECT_EQ(WriteTjb(job), bytes(name));
  }
  std::set<std::int16_t> fixtureTypes;
  for (const std::string& name : Names("FIX")) {
    const recipes::Fixture fixture = recipes::ParseFixture(bytes(name));
    fixtureTypes.insert(fixture.Type);
    EXPECT_EQ(recipes::FormatFixture(fixture), bytes(name));
  }
  EXPECT_EQ(fixtureTypes.size(), 5U);
  for (const std::string& name : Names("PAN")) {
    EXPECT_EQ(gcode::panel::FormatPanel(gcode::panel::ParsePanel(bytes(name))), bytes(name));
  }
  for (const std::string& name : Names("DM")) {
    const auto file = datamatrix::ParseDataMatrix(bytes(name), datamatrix::MissingMarker::Empties);
    EXPECT_EQ(datamatrix::FormatDataMatrix(file), bytes(name));
  }
}

TEST_F(StationJobs, EveryNameIsOneThatTheControllerTakes) {
  for (const std::string& name : names) {
    const std::size_t point = name.find('.');
    ASSERT_NE(point, std::string::npos) << name;
    EXPECT_LE(point, 8U) << name;
    EXPECT_LE(name.size() - point, 4U) << name;
  }
}

}  // namespace
}  // namespace morvane::textjob
