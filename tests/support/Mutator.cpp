#include "support/Mutator.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <random>

#include "common/RunTimeError.h"
#include "common/text/Tokenizer.h"

namespace morvane::test {
namespace {

constexpr std::size_t kLongestInput = 64 * 1024;
constexpr double kMostSeconds = 5, kMostSecondsHuge = 20;

// Texts that have broken readers of numbers, names and lists: between blanks, then those of control bytes.
constexpr std::string_view kNumbers =
    "1e308 -1e308 1e-400 1e999999999 nan -nan inf -inf -0 0x10 &HFFFFFFFFF &H 99999999999999999999 "
    "-2147483649 32768 1.2.3";
constexpr std::string_view kMarks =
    ". - + , ,, ,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,, ; = \" ' @@ @@, [ ] ( ) ..\\ / \\ C: %s%n \x80\xFF "
    "\xEF\xBB\xBF G05T M06T G01X COMMENT,";
constexpr std::string_view kControls[] = {"\t",   " ",    "\r",      "\n",         "\r\n",
                                          "\n\r", "\x1A", {"\0", 1}, {"\0\0\0", 3}};

class Mutator {
 public:
  explicit Mutator(const std::vector<std::string>& seeds) : seeds_(seeds) {
    words_.insert(words_.end(), numbers_.begin(), numbers_.end());
    words_.insert(words_.end(), std::begin(kControls), std::end(kControls));
  }

  std::string Next() {
    static constexpr Damage kDamages[] = {
        &Mutator::Truncate,   &Mutator::Flip,          &Mutator::Flip,         &Mutator::Erase,
        &Mutator::InsertRun,  &Mutator::Splice,        &Mutator::InsertWord,   &Mutator::InsertWord,
        &Mutator::RepeatLine, &Mutator::ReplaceNumber, &Mutator::ReplaceNumber};
    std::string text = Any(seeds_);
    for (std::size_t left = 1 + Below(8); left > 0; --left) {
      (this->*kDamages[Below(std::size(kDamages))])(text, Below(text.size() + 1));
    }
    if (text.size() > kLongestInput) text.resize(kLongestInput);
    return text;
  }

 private:
  using Damage = void (Mutator::*)(std::string&, std::size_t place);
  // Not a standard distribution: those differ between libraries.
  std::size_t Below(std::size_t limit) { return random_() % limit; }
  const std::string& Any(const std::vector<std::string>& texts) { return texts[Below(texts.size())]; }

  void Truncate(std::string& text, std::size_t place) { text.resize(place); }
  void Flip(std::string& text, std::size_t place) {
    if (place < text.size()) text[place] = static_cast<char>(random_());
  }
  void Erase(std::string& text, std::size_t place) { text.erase(place, Below(40)); }
  void InsertRun(std::string& text, std::size_t place) {
    static constexpr std::string_view kFills("\0 09-,.A\n\r\"@[=\xFF", 15);
    text.insert(place, std::size_t{1} << Below(14), kFills[Below(kFills.size())]);
  }
  void InsertWord(std::string& text, std::size_t place) { text.insert(place, Any(words_)); }
  void Splice(std::string& text, std::size_t place) {
    const std::string& other = Any(seeds_);
    text.replace(place, std::string::npos, other, Below(other.size() + 1));
  }
  // Drops the rest of a line with its end mark, or repeats it.
  void RepeatLine(std::string& text, std::size_t place) {
    const std::string line = text.substr(place, std::min(text.find('\n', place), text.size()) + 1 - place);
    std::string lines;
    for (auto left = Below(2) << Below(9); left > 0 && lines.size() < kLongestInput; --left) lines += line;
    text.replace(place, line.size(), lines);
  }
  void ReplaceNumber(std::string& text, std::size_t place) {
    const std::size_t begin = text.find_first_of("0123456789", place);
    if (begin == std::string::npos) return;
    const std::size_t end = std::min(text.find_first_not_of("0123456789.", begin), text.size());
    text.replace(begin, end - begin, Any(numbers_));
  }

  const std::vector<std::string>& seeds_;
  const std::vector<std::string> numbers_ = common::SplitText(kNumbers, " ");
  std::vector<std::string> words_ = common::SplitText(kMarks, " ");
  std::mt19937_64 random_{20240305};
};

// Gives one input; the message about a failure shows its first bytes. The peak of memory so far comes back.
long Feed(const std::string& bytes, const Reader& reader, double mostSeconds) {
  const auto start = std::chrono::steady_clock::now();
  try {
    reader(bytes);
  } catch (const common::RunTimeError&) {
    // A clear refusal.
  } catch (const std::exception& failure) {
    ADD_FAILURE() << failure.what() << " left the reader";
  }
  EXPECT_LT(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(), mostSeconds);
  if (::testing::Test::HasFailure()) {
    ADD_FAILURE() << bytes.size() << " bytes: " << ::testing::PrintToString(bytes.substr(0, 400));
  }
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

}  // namespace

void RunMutations(const std::vector<std::string>& seeds, const Reader& reader) {
  const long before = Feed("", reader, kMostSeconds);
  for (const std::string& seed : seeds) {
    for (std::size_t length = 0; length <= std::min(seed.size(), std::size_t{4096}); ++length) {
      Feed(seed.substr(0, length), reader, kMostSeconds);
    }
  }
  Mutator mutator(seeds);
  long after = before;
  for (int i = 0; i < 20000 && !::testing::Test::HasFailure(); ++i) {
    after = Feed(mutator.Next(), reader, kMostSeconds);
  }
  EXPECT_LT(after - before, 512 * 1024);
}

void RunHugeLine(const std::string& start, const std::string& fill, const Reader& reader) {
  std::string line = start;
  while (line.size() < 100'000'000) line += fill;
  const long before = Feed("", reader, kMostSecondsHuge);
  EXPECT_LT(Feed(line, reader, kMostSecondsHuge) - before, 2048 * 1024);
}

}  // namespace morvane::test
