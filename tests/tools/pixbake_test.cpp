#include <gtest/gtest.h>

#include <string>

#include "pixbake/Bitmap.h"
#include "pixbake/Ras.h"
#include "tools/ToolFolder.h"

namespace morvane::test {
namespace {

using pixbake::GreyImage;

// Flat areas, gradients and noise, so that rows hold every kind of run.
GreyImage Picture(std::size_t width, std::size_t height) {
  GreyImage image{width, height, {}};
  std::size_t noise = 1;
  for (std::size_t i = 0; i < width * height; ++i) {
    noise = noise * 1103515245 + 12345;
    const std::size_t kind = i / 40 % 3;
    image.pixels += static_cast<char>(kind == 0 ? 200 : kind == 1 ? i % 251 : noise >> 16 & 255);
  }
  return image;
}

TEST(Pixbake, ABakedBitmapComesBackByteForByte) {
  ToolFolder folder;
  folder.MakeFolder("Temp");
  for (const std::size_t width : {1, 2, 3, 4, 127, 128, 129, 130, 259}) {
    SCOPED_TRACE(width);
    const std::string bitmap = pixbake::WriteBitmap(Picture(width, 7));
    folder.Write("Temp/temp.bmp", bitmap);
    ASSERT_EQ(folder.Run("PIXBAKE.EXE '.\\Temp\\temp.bmp' '.\\NAME.RAS'"), 0) << folder.errors;
    EXPECT_EQ(folder.Read("NAME.RAS"), pixbake::WriteRas(Picture(width, 7)));
    ASSERT_EQ(folder.Run("PIXBAKE.EXE /R '.\\name.ras' '.\\TEMP\\NAME.BMP'"), 0) << folder.errors;
    EXPECT_EQ(folder.Read("Temp/NAME.BMP"), bitmap);
  }
  EXPECT_EQ(folder.Names(), (std::set<std::string>{"NAME.RAS", "Temp", "Temp/NAME.BMP", "Temp/temp.bmp"}));
}

TEST(Pixbake, AFailureExplainsItselfAndLeavesNothing) {
  const std::string raster = pixbake::WriteRas(Picture(30, 20));
  const std::string bitmap = pixbake::WriteBitmap(Picture(30, 20));
  ToolFolder folder;
  folder.Write("GOOD.RAS", raster);
  folder.Write("GOOD.BMP", bitmap);
  folder.Write("CUT.BMP", bitmap.substr(0, bitmap.size() - 1));
  folder.Write("CUT.RAS", raster.substr(0, raster.size() - 1));
  folder.Write("OLD.RAS", "old");
  const auto before = folder.Names();
  using Case = std::pair<const char*, const char*>;
  for (const auto& [arguments, message] :
       {Case{"NONE.BMP NEW.RAS", "NONE.BMP: File not found\n"},
        Case{"GOOD.RAS NEW.RAS", "GOOD.RAS: The file is not a bitmap\n"},
        Case{"CUT.BMP OLD.RAS", "CUT.BMP: The bitmap ends within its pixels\n"},
        Case{"/r GOOD.BMP NEW.BMP", "GOOD.BMP: The file is not a raster\n"},
        Case{"/R CUT.RAS NEW.BMP", "CUT.RAS: The raster is damaged or cut short\n"},
        Case{"GOOD.BMP '.\\NONE\\NEW.RAS'", ".\\NONE\\NEW.RAS: Path not found\n"}}) {
    EXPECT_EQ(folder.Run(std::string("PIXBAKE.EXE ") + arguments), 1) << arguments;
    EXPECT_EQ(folder.errors, message);
  }
  for (const char* arguments : {"", "GOOD.BMP", "/X GOOD.RAS NEW.BMP", "/R GOOD.RAS NEW.BMP more"}) {
    EXPECT_EQ(folder.Run(std::string("PIXBAKE.EXE ") + arguments), 2) << arguments;
    EXPECT_EQ(folder.errors.substr(0, 6), "Usage:");
  }
  EXPECT_EQ(folder.Names(), before);
  EXPECT_EQ(folder.Read("OLD.RAS"), "old");
}

}  // namespace
}  // namespace morvane::test
