// The documents that come with the program are the first thing that a user sees, and what the checks by eye
// and the pictures of the user guide are made from.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "common/files/FileNames.h"
#include "datamatrix/modDataMatrix.h"
#include "gcode/panel/modPanel.h"
#include "recipes/modFixture.h"
#include "support/PreviewStation.h"
#include "textjob/job/JobFile.h"
#include "textjob/job/modTjb.h"

namespace morvane::textjob {
namespace {

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
};

TEST_F(StationJobs, DrawWithoutAMessageWithEachFixture) {
  const std::set<std::int32_t> kFileTypes = {kGraphic,    kPanel,    kDataMatrix, kImage,
                                             kClosedPath, kParkPath, kRaster};
  std::vector<std::string> fixtures = station.files.List("*.FIX");
  EXPECT_EQ(fixtures.size(), 5U);
  fixtures.emplace_back();
  for (const std::string& name : station.files.List("*.TJB")) {
    TextJob job;
    ASSERT_TRUE(LoadTjbFile(job, name, station.files, station.prompts)) << name;
    for (const std::string& line : job.Lines) {
      const TextJobLine record = ParseTjbLine(line);
      EXPECT_TRUE(kFileTypes.count(record.Type) == 0 || station.files.FileExists(record.Text)) << line;
    }
    for (const std::string& fixture : fixtures) {
      station.Set("Fixture", fixture);
      EXPECT_EQ(station.Draw(job.Lines, {true, true, true, true, !fixture.empty()}).labels.size(),
                job.LineCount());
      EXPECT_GT(station.canvas.Segments().size(), 100U) << name;
      EXPECT_THAT(station.prompts.Texts(), testing::IsEmpty()) << name << ' ' << fixture;
    }
  }
}

TEST_F(StationJobs, AKeyTypedOpensNoFile) {
  for (const std::string& name : station.files.List("*.TJB")) {
    TextJob job;
    LoadTjbFile(job, name, station.files, station.prompts);
    station.Draw(job.Lines, {true, true, true, true, true});
    station.disk.reads.clear();
    job.Lines[0] += ' ';
    station.Draw(job.Lines, {true, true, true, true, true});
    // The settings have their own reader; the side programs, which do not run here, are tried again.
    for (const char* again : {"Morvane.ini", "out.txt", "Temp/PHOTO.BMP"}) {
      station.disk.reads.erase(std::string("/base/") + again);
    }
    EXPECT_THAT(station.disk.reads, testing::IsEmpty()) << name;
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
  using namespace datamatrix;
  using namespace gcode::panel;
  using namespace recipes;
  ExpectUnchanged("*.FIX", [](const auto& bytes) { return FormatFixture(ParseFixture(bytes)); });
  ExpectUnchanged("*.PAN", [](const auto& bytes) { return FormatPanel(ParsePanel(bytes)); });
  ExpectUnchanged("*.DM", [](const auto& bytes) {
    return FormatDataMatrix(ParseDataMatrix(bytes, MissingMarker::Empties));
  });
}

}  // namespace
}  // namespace morvane::textjob
