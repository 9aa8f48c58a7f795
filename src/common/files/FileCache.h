// Files read once, and what was made of them, until they change on the disk. A drawing pass asks for the
// same fonts, graphics and pictures at each key that is typed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <type_traits>

#include "platform/FileSystem.h"

namespace morvane::common {

using SharedBytes = std::shared_ptr<const std::string>;

// Entries are found by native path and are good as long as time and size of their file stay. What was used
// longest ago goes first when all together exceed the limit; what a caller holds stays valid.
class FileCache {
 public:
  static constexpr std::size_t kLimit = std::size_t{192} << 20U;  // bytes

  explicit FileCache(const platform::FileSystem& fileSystem, std::size_t limit = kLimit)
      : fileSystem_(fileSystem), limit_(limit) {}

  // The whole file. Throws the run-time error of the failure.
  SharedBytes Bytes(const std::string& path);
  // What `kParse(bytes)` makes of the file: the same object as long as the file stays as it is. Throws what
  // reading and parsing throw. A product that takes much more room than its file tells it by `KeptBytes()`.
  template <auto kParse>
  auto Product(const std::string& path);
  // A file that this program writes or removes.
  void Forget(const std::string& path);

 private:
  struct Made {
    std::shared_ptr<const void> product;
    std::size_t weight = 0;
  };
  struct Entry {
    std::string path;
    std::uint64_t size = 0;
    std::int64_t modified = 0;
    SharedBytes bytes;
    std::map<const void*, Made> products;  // by the function that made them
    std::size_t weight = 0;
  };

  // An address of its own for each parser.
  template <auto kParse>
  static constexpr char kKey = 0;

  // The entry of the file as it is now, used last.
  Entry& Get(const std::string& path);
  void Weigh(Entry& entry, std::size_t more);
  void Trim();

  const platform::FileSystem& fileSystem_;
  std::size_t limit_;
  std::size_t weight_ = 0;
  std::list<Entry> entries_;  // used last first
  std::map<std::string, std::list<Entry>::iterator, std::less<>> byPath_;
};

template <auto kParse>
auto FileCache::Product(const std::string& path) {
  using Result = std::remove_cvref_t<std::invoke_result_t<decltype(kParse), const std::string&>>;
  Entry& entry = Get(path);
  Made& made = entry.products[&kKey<kParse>];
  if (!made.product) {
    const auto product = std::make_shared<const Result>(kParse(*entry.bytes));
    made.weight = sizeof(Result) + entry.bytes->size();
    if constexpr (requires { product->KeptBytes(); }) made.weight = product->KeptBytes();
    made.product = product;
    Weigh(entry, made.weight);
  }
  const auto result = std::static_pointer_cast<const Result>(made.product);
  Trim();
  return result;
}

}  // namespace morvane::common
