// Damaged inputs for readers of files: a fixed seed makes the same ones on each run.
#pragma once

#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace morvane::test {

class Mutator {
 public:
  // `seeds`: well-formed texts to start from; empty text and random bytes come by themselves.
  explicit Mutator(std::vector<std::string> seeds, std::uint64_t randomSeed = 20240305);
  // A seed with one to eight damages: cut, flipped, spliced with another, lines doubled or dropped, NULs,
  // long runs, delimiters and absurd numbers put in. At most 64 KB.
  std::string Next();

 private:
  using Damage = void (Mutator::*)(std::string&);
  std::size_t Below(std::size_t limit);
  std::size_t Place(const std::string& text) { return Below(text.size() + 1); }
  const std::string& Seed() { return seeds_[Below(seeds_.size())]; }
  // Begin and length of one line with its end mark.
  std::pair<std::size_t, std::size_t> LineAt(const std::string& text, std::size_t position) const;

  void Truncate(std::string& text);
  void Flip(std::string& text);
  void Erase(std::string& text);
  void InsertRun(std::string& text);
  void InsertWord(std::string& text);
  void ReplaceNumber(std::string& text);
  void Splice(std::string& text);
  void DoubleLine(std::string& text);
  void DropLine(std::string& text);
  void RandomBytes(std::string& text);

  std::vector<std::string> seeds_;
  std::mt19937_64 random_;
};

using Reader = std::function<void(const std::string& bytes)>;

inline constexpr int kMutations = 20000;

// Gives the reader the empty text, every seed, every truncation of the seeds (up to 4 KB each) and `count`
// mutations. Fails the test when one input takes longer than five seconds, when an exception other than a
// run-time error leaves the reader, or when memory grows beyond 512 MB.
void RunMutations(const std::vector<std::string>& seeds, const Reader& reader, int count = kMutations);

// Gives the reader one line of 100 MB that begins with `start`, filled with `fill` (repeated), and fails
// the test when that takes longer than `seconds` or the peak of memory grows by more than 2 GB.
void RunHugeLine(const std::string& start, const std::string& fill, const Reader& reader,
                 double seconds = 20);

}  // namespace morvane::test
