// SQRGEN.EXE [SIZE]: encodes in.txt as a Data Matrix symbol into out.txt, both in the working directory.
#include <cstdint>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "common/RunTimeError.h"
#include "common/files/Files.h"
#include "platform/posix/PosixFileSystem.h"
#include "sqrgen/Symbol.h"

namespace {

using namespace morvane;

constexpr const char* kInput = "in.txt";
constexpr const char* kOutput = "out.txt";
constexpr std::uint64_t kMaxInput = 1024 * 1024;  // bytes; far more than any symbol holds
constexpr const char* kLineEnd = "\r\n";

std::string ReadContent(const common::Files& files) {
  // Asked before reading, since a huge file would fill the memory.
  if (files.System().Status(files.Resolve(kInput)).size > kMaxInput) {
    throw sqrgen::SymbolError(std::string(kInput) + " is too large for any symbol.");
  }
  try {
    return files.Read(kInput);
  } catch (const common::RunTimeError& error) {
    throw sqrgen::SymbolError(std::string(kInput) + ": " + error.description());
  }
}

std::string Encode(const common::Files& files, int argumentCount, char** arguments) {
  if (argumentCount > 2) throw sqrgen::SymbolError("Usage: SQRGEN.EXE [Automatic|ROWSxCOLUMNS]");
  std::string out;
  const std::string size = argumentCount == 2 ? arguments[1] : "Automatic";
  for (const std::string& row : sqrgen::MakeSymbol(ReadContent(files), size)) {
    out += row + kLineEnd;
  }
  return out;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  try {
    platform::PosixFileSystem fileSystem;
    const common::Files files(fileSystem, std::filesystem::current_path().string());
    std::string out;
    int exitCode = 0;
    try {
      out = Encode(files, argumentCount, arguments);
    } catch (const sqrgen::SymbolError& error) {
      out = std::string(error.what()) + kLineEnd;
      exitCode = 1;
      std::cerr << error.what() << '\n';
    }
    files.WriteStraight(kOutput, out);
    return exitCode;
  } catch (const std::exception& error) {
    std::cerr << kOutput << ": " << error.what() << '\n';
    return 1;
  }
}
