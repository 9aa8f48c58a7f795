// PIXBAKE.EXE BITMAP RASTER bakes a bitmap into a raster; PIXBAKE.EXE /R RASTER BITMAP turns it back.
#include <cstdint>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "common/RunTimeError.h"
#include "common/files/Files.h"
#include "common/text/CodePage.h"
#include "common/text/Text.h"
#include "pixbake/Bitmap.h"
#include "pixbake/Ras.h"
#include "platform/posix/PosixFileSystem.h"

namespace {

using namespace morvane;

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;
// The largest picture as a bitmap of 32 bits, and headers with room to spare.
constexpr std::uint64_t kMaxFile = pixbake::kMaxPixels * 4 + 4096;

// Program names are text of the code page; a native path beyond it stays as it is.
std::string ProgramName(const std::string& argument) {
  return common::IsExpressible(argument) ? common::FromUtf8(argument) : argument;
}

std::string ReadInput(const common::Files& files, const std::string& name) {
  // Asked before reading, since an endless or huge file would fill the memory.
  if (files.System().Status(files.Resolve(name)).size > kMaxFile)
    throw pixbake::FormatError("The file is too large");
  return files.Read(name);
}

std::string Bake(const std::string& bytes) {
  return pixbake::WriteRas(pixbake::ReadBitmap(bytes));
}
std::string TurnBack(const std::string& bytes) {
  return pixbake::WriteBitmap(pixbake::ReadRas(bytes));
}

int Convert(std::string (*convert)(const std::string&), const std::string& from, const std::string& to) {
  std::string name = from;  // the file that a failure is about
  try {
    platform::PosixFileSystem fileSystem;
    const common::Files files(fileSystem, std::filesystem::current_path().string());
    const std::string result = convert(ReadInput(files, ProgramName(from)));
    name = to;
    // The checked save leaves either the whole new file or what was there before.
    files.Save(ProgramName(to), result);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << name << ": " << error.what() << '\n';
    return kFailed;
  }
}

}  // namespace

int main(int argumentCount, char** argumentValues) {
  const std::vector<std::string> arguments(argumentValues + 1, argumentValues + argumentCount);
  if (arguments.size() == 2) return Convert(Bake, arguments[0], arguments[1]);
  if (arguments.size() == 3 && common::EqualIgnoringCase(arguments[0], "/R")) {
    return Convert(TurnBack, arguments[1], arguments[2]);
  }
  std::cerr << "Usage: PIXBAKE.EXE BITMAP.BMP RASTER.RAS\n"
               "       PIXBAKE.EXE /R RASTER.RAS BITMAP.BMP\n";
  return kWrongUsage;
}
