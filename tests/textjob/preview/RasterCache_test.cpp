#include "textjob/preview/RasterCache.h"

#include <gtest/gtest.h>

#include "support/SideProgramStation.h"
#include "textjob/preview/BitmapSize.h"

namespace morvane::textjob {
namespace {

using namespace std::string_literals;

// Both headers of a picture of 3 by 2 pixels, as far as they are looked at.
const std::string kBitmap = "BM............\x28\0\0\0\3\0\0\0\2\0\0\0"s;

class RasterCache : public ::testing::Test {
 protected:
  RasterCache() { station_.disk.Put("/base/logo.ras", "raster"); }

  RasterBitmap Draw(const std::string& name = "LOGO.RAS") {
    FailedRasters failed;
    return BuildRasterBitmap(station_.runner, name, failed);
  }
  std::size_t Runs() const { return station_.processes.runs.size(); }

  test::SideProgramStation station_{"PIXBAKE.EXE"};
};

TEST_F(RasterCache, BakesOnlyForANewerRaster) {
  station_.Expect("Temp/LOGO.BMP", kBitmap);
  const RasterBitmap drawn = Draw();
  EXPECT_EQ(drawn.status, RasterStatus::Ready);
  EXPECT_EQ(drawn.bitmap, "\\Temp\\LOGO.BMP");
  ASSERT_EQ(Runs(), 1U);
  EXPECT_EQ(station_.processes.runs[0].arguments,
            (std::vector<std::string>{"/R", ".\\LOGO.RAS", ".\\Temp\\LOGO.BMP"}));

  station_.disk.SetModified("/base/logo.ras", 5);
  station_.disk.SetModified("/base/Temp/LOGO.BMP", 5);
  EXPECT_EQ(Draw().status, RasterStatus::Ready);
  EXPECT_EQ(Runs(), 1U);
  station_.disk.Put("/base/logo.ras", "changed");
  station_.Expect("Temp/LOGO.BMP", kBitmap);
  EXPECT_EQ(Draw().status, RasterStatus::Ready);
  EXPECT_EQ(Runs(), 2U);
}

TEST_F(RasterCache, AFailedBakeLeavesNoBitmapAndIsTriedAgainByTheNextPass) {
  station_.ExpectNoStart();
  station_.ExpectEnd(0);
  station_.ExpectEnd(2);
  station_.Expect("Temp/LOGO.BMP", kBitmap, 1);
  station_.Expect("Temp/LOGO.BMP", "BMgarbage");
  for (std::size_t run = 1; run <= 5; ++run) {
    FailedRasters failed;
    for (int line = 0; line < 3; ++line) {
      EXPECT_EQ(BuildRasterBitmap(station_.runner, "LOGO.RAS", failed).status,
                run == 1 ? RasterStatus::ToolNotFound : RasterStatus::Failed);
    }
    EXPECT_FALSE(station_.disk.Has("/base/Temp/LOGO.BMP"));
    EXPECT_EQ(Runs(), run);
  }
}

TEST_F(RasterCache, RastersNeverShareABitmap) {
  station_.disk.Put("/base/SUB.1/LOGO.RAS", "another raster");
  station_.Expect("Temp/SUB.1$LOGO.BMP", kBitmap);
  EXPECT_EQ(Draw("SUB.1\\LOGO.RAS").bitmap, "\\Temp\\SUB.1$LOGO.BMP");
}

TEST_F(RasterCache, NoToolForARasterThatCannotBeUsed) {
  station_.disk.Put("/other.ras", "raster");
  for (const char* name : {"NONE.RAS", "", "..\\other.ras", "/other.ras", "C:other.ras"}) {
    EXPECT_EQ(Draw(name).status, RasterStatus::Failed) << name;
  }
  EXPECT_EQ(Runs(), 0U);
}

TEST(BitmapSize, ReadsBothHeaderForms) {
  // Rows from top to bottom, 16-bit sizes, then what is no picture.
  using Case = std::tuple<std::string, int, int>;
  for (const auto& [bytes, width, height] :
       {Case{"BM............\x28\0\0\0\3\1\0\0\xFE\xFF\xFF\xFF"s, 259, 2},
        Case{"BM............\x0C\0\0\0\xFF\xFF\2\0\1\0\1\0"s, 65535, 2},
        Case{"BM............\x28\0\0\0\3\0\0\0\0\0\0\x80"s, 0, 0},
        Case{"BM............\x28\0\0\0\xFF\xFF\xFF\xFF\2\0\0\0"s, 0, 0}, Case{kBitmap.substr(0, 25), 0, 0}}) {
    const PixelSize size = BitmapSize(bytes).value_or(PixelSize{});
    EXPECT_EQ(size.width, width) << ::testing::PrintToString(bytes);
    EXPECT_EQ(size.height, height) << ::testing::PrintToString(bytes);
  }
}

}  // namespace
}  // namespace morvane::textjob
