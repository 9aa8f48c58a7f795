// One JSON object on a line of its own.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace morvane::cli {

class JsonLine {
 public:
  // Text in the core's code page.
  JsonLine& Add(std::string_view key, std::string_view text);
  // Reads back to the same 32-bit float; what JSON cannot express is null.
  JsonLine& Add(std::string_view key, float value);
  JsonLine& Add(std::string_view key, std::int64_t value);

  // With its line end, UTF-8.
  std::string Text() const { return body_ + "}\n"; }

 private:
  void Key(std::string_view key);
  std::string body_ = "{";
};

}  // namespace morvane::cli
