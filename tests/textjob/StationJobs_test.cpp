// The documents that come with the program are the first thing that a user sees, and what the checks by eye
// and the pictures of the user guide are made from.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "common/FileNames.h"
#include "datamatrix/modDataMatrix.h"
#include "gcode/panel/modPanel.h"
#include "recipes/modFixture.h"
#include "support/PreviewStation.h"
#include "textjob/JobFile.h"
#include "textjob/modTjb.h"

namespace morvane::textjob {
namespace {

// Types whose `Text` names a file that is read for drawing.
const std::set<std::int32_t> kFileTypes = {kGraphic,    kPanel,    kDataMatrix, kImage,
                                           kClosedPath, kParkPath, kRaster};

class StationJobs : public testing::Test {
 protected:
  StationJobs() {
    for (const auto& entry : std::filesystem::directory_iterator(MORVANE_SOURCE_DIR "/station")) {
      std::ifstream in(entry.path(), std::ios::binary);
      const std::string name = entry.path().filename().string(),
                        bytes(std::istreambuf_iterator<char>(in), {});
      station.Put(name, bytes);
      std::string message;
      EXPECT_TRUE(common::CheckFileName(name, message)) << name << " is not for the controller: " << message;
    }
    station.Put("PIXBAKE.EXE", "program");
  }

  std::vector<TextJobLine> Load(const std::string& name) {
    TextJob job;
    EXPECT_TRUE(LoadTjbFile(job, name, station.files, station.prompts)) << name;
    raw = job.Lines;
    std::vector<TextJobLine> lines;
    for (const std::string& line : raw) lines.push_back(ParseTjbLine(line));
    return lines;
  }
  // Gives each document of a kind to `rewrite`, which reads and writes it.
  template <typename Rewrite>
  void ExpectUnchanged(const char* pattern, const Rewrite& rewrite) {
    const auto names = station.files.List(pattern);
    EXPECT_FALSE(names.empty()) << pattern;
    for (const std::string& name : names) {
      const std::string bytes = station.files.Read(name);
      EXPECT_EQ(rewrite(bytes), bytes) << name;
    }
  }

  test::PreviewStation station;
  std::vector<std::string> raw;  // the lines of the job loaded last
};

TEST_F(StationJobs, DrawWithoutAMessageWithEachFixture) {
  std::vector<std::string> fixtures = station.files.List("*.FIX");
  EXPECT_EQ(fixtures.size(), 5U);
  fixtures.emplace_back();
  for (const std::string& name : station.files.List("*.TJB")) {
    for (const TextJobLine& line : Load(name)) {
      if (!kFileTypes.count(line.Type)) continue;
      EXPECT_TRUE(station.files.FileExists(line.Text)) << name << ' ' << line.Text;
    }
    for (const std::string& fixture : fixtures) {
      station.Set("Fixture", fixture);
      EXPECT_EQ(station.Draw(raw, {true, true, true, true, !fixture.empty()}).labels.size(), raw.size());
      EXPECT_GT(station.canvas.Segments().size(), 100U) << name;
      EXPECT_THAT(station.prompts.Texts(), testing::IsEmpty()) << name << ' ' << fixture;
    }
  }
}

// What the program would save is what lies there, so that a first save changes nothing but what was edited.
TEST_F(StationJobs, EveryDocumentIsAsTheProgramWritesIt) {
  ExpectUnchanged("*.TJB", [this](const std::string& bytes) {
    TextJob job;
    ReadTjb(bytes, job);
    for (std::string& line : job.Lines) {
      TextJobLine record = ParseTjbLine(line);
      record.Font = FontToken(record.Font);
      line = FormatTjbLine(record, station.settings.UnitsFormatText());
    }
    return WriteTjb(job);
  });
  ExpectUnchanged("*.FIX",
                  [](const auto& bytes) { return recipes::FormatFixture(recipes::ParseFixture(bytes)); });
  ExpectUnchanged(
      "*.PAN", [](const auto& bytes) { return gcode::panel::FormatPanel(gcode::panel::ParsePanel(bytes)); });
  ExpectUnchanged("*.DM", [](const auto& bytes) {
    return datamatrix::FormatDataMatrix(
        datamatrix::ParseDataMatrix(bytes, datamatrix::MissingMarker::Empties));
  });
}

}  // namespace
}  // namespace morvane::textjob
