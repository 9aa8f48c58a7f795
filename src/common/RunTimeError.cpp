#include "common/RunTimeError.h"

#include <utility>

namespace morvane::common {
namespace {

struct Description {
  RunTimeErrorNumber number;
  const char* text;
};

constexpr Description kDescriptions[] = {
    {kOverflow, "Overflow"},
    {kSubscriptOutOfRange, "Subscript out of range"},
    {kDivisionByZero, "Division by zero"},
    {kTypeMismatch, "Type mismatch"},
    {kFileNotFound, "File not found"},
    {kDeviceIoError, "Device I/O error"},
    {kDiskFull, "Disk full"},
    {kInputPastEndOfFile, "Input past end of file"},
    {kPermissionDenied, "Permission denied"},
    {kPathFileAccessError, "Path/File access error"},
    {kPathNotFound, "Path not found"},
};

const char* Describe(RunTimeErrorNumber number) {
  for (const Description& entry : kDescriptions) {
    if (entry.number == number) return entry.text;
  }
  return "Unknown error";
}

}  // namespace

RunTimeError::RunTimeError(RunTimeErrorNumber number) : number_(number), description_(Describe(number)) {}

RunTimeError::RunTimeError(int number, std::string description)
    : number_(number), description_(std::move(description)) {}

void ThrowIf(platform::Error error) {
  switch (error) {
    case platform::Error::None:
      return;
    case platform::Error::FileNotFound:
      throw RunTimeError(kFileNotFound);
    case platform::Error::PathNotFound:
      throw RunTimeError(kPathNotFound);
    case platform::Error::PermissionDenied:
      throw RunTimeError(kPermissionDenied);
    case platform::Error::DiskFull:
      throw RunTimeError(kDiskFull);
    case platform::Error::DeviceError:
      throw RunTimeError(kDeviceIoError);
    case platform::Error::AlreadyExists:
    case platform::Error::AccessError:
      throw RunTimeError(kPathFileAccessError);
  }
}

}  // namespace morvane::common
