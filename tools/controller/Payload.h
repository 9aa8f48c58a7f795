// The bytes behind a download's command line, until the file is whole.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace morvane::controller {

// A text ends with a line whose end is "ENDFILE" or "ENDJOB", which may stand behind other bytes. Of a
// binary file the length is known.
class Payload {
 public:
  explicit Payload(std::string name) : name_(std::move(name)) {}
  Payload(std::string name, std::size_t length, std::int64_t sum);

  // Takes what belongs to the file; the count of it.
  std::size_t Take(std::string_view bytes);
  bool Done() const { return done_; }
  // Binary: the sum over the file, or over it and the bytes that its sender adds behind each full block,
  // is the one that was told.
  bool Good() const { return good_; }
  const std::string& Name() const { return name_; }
  const std::string& Bytes() const { return bytes_; }

 private:
  std::size_t TakeText(std::string_view bytes);
  std::size_t TakeBinary(std::string_view bytes);
  void Check();

  std::string name_;
  std::string bytes_;
  std::size_t lineStart_ = 0;
  bool binary_ = false;
  std::size_t length_ = 0;
  std::size_t surplus_ = 0;  // bytes that may follow the file and count in the sum
  std::int64_t told_ = 0;
  std::int64_t sum_ = 0;
  bool done_ = false;
  bool good_ = true;
};

}  // namespace morvane::controller
