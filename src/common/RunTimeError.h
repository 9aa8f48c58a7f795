// The run-time failures of the program: a number and the words that message boxes show for it.
#pragma once

#include <exception>
#include <string>

#include "platform/Error.h"

namespace morvane::common {

enum RunTimeErrorNumber : int {
  kOverflow = 6,
  kSubscriptOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kDeviceIoError = 57,
  kFileNotFound = 53,
  kDiskFull = 61,
  kInputPastEndOfFile = 62,
  kPermissionDenied = 70,
  kPathFileAccessError = 75,
  kPathNotFound = 76,
};

// Thrown by strict conversions, array bounds, file operations and reads past the end. The operation
// that owns the failure catches it and reports `description`.
class RunTimeError : public std::exception {
 public:
  // The description is the standard one of the number.
  explicit RunTimeError(RunTimeErrorNumber number);
  // A failure with words of its own.
  RunTimeError(int number, std::string description);
  int number() const { return number_; }
  const std::string& description() const { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  int number_;
  std::string description_;
};

// Throws the run-time error that stands for `error`; does nothing for None.
void ThrowIf(platform::Error error);

}  // namespace morvane::common
