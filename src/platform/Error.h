// What an operating system call can fail with, in the few kinds that the program tells apart.
#pragma once

namespace morvane::platform {

enum class Error {
  None,
  FileNotFound,      // the last part of the path does not exist
  PathNotFound,      // a folder of the path does not exist
  PermissionDenied,  // includes a read-only file or disk
  DiskFull,
  AlreadyExists,
  DeviceError,  // a read or write that the device refused
  AccessError,  // anything else: a folder where a file was wanted, a bad name
};

}  // namespace morvane::platform
