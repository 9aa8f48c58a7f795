#include "support/Mutator.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <exception>
#include <iterator>

#include "common/RunTimeError.h"

namespace morvane::test {
namespace {

constexpr std::size_t kLongestInput = 64 * 1024;
constexpr std::size_t kMostTruncations = 4096;
constexpr double kMostSeconds = 5;
constexpr long kMostGrowthKilobytes = 512 * 1024;
constexpr long kMostGrowthHugeKilobytes = 2048 * 1024;
constexpr std::size_t kHugeLine = 100 * 1000 * 1000;

// Texts that have broken readers of numbers, names and lists.
const std::string kWords[] = {"1e308",
                              "-1e308",
                              "1e-400",
                              "1e999999999",
                              "nan",
                              "-nan",
                              "inf",
                              "-inf",
                              "-0",
                              "0x10",
                              "&HFFFFFFFFF",
                              "&H",
                              "99999999999999999999",
                              "-2147483649",
                              "32768",
                              ".",
                              "-",
                              "+",
                              "1.2.3",
                              ",",
                              ",,",
                              ",,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,",
                              ";",
                              "=",
                              "\"",
                              "'",
                              "\t",
                              " ",
                              "\r",
                              "\n",
                              "\r\n",
                              "\n\r",
                              "@@",
                              "@@,",
                              "[",
                              "]",
                              "(",
                              ")",
                              "..\\",
                              "/",
                              "\\",
                              "C:",
                              "%s%n",
                              "\x1A",
                              std::string(1, '\0'),
                              std::string(3, '\0'),
                              "\x80\xFF",
                              "\xEF\xBB\xBF",
                              "G05T",
                              "M06T",
                              "G01X",
                              "COMMENT,"};

double Now() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

long PeakKilobytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

// Start and the first bytes of an input, for a message that finds it again.
std::string Shown(const std::string& bytes) {
  return ::testing::PrintToString(bytes.substr(0, 400));
}

void Feed(const std::string& bytes, const Reader& reader, double mostSeconds) {
  const double start = Now();
  try {
    reader(bytes);
  } catch (const common::RunTimeError&) {
    // A clear refusal.
  } catch (const std::exception& failure) {
    ADD_FAILURE() << failure.what() << " left the reader of " << Shown(bytes);
  }
  EXPECT_LT(Now() - start, mostSeconds) << "for " << bytes.size() << " bytes " << Shown(bytes);
}

}  // namespace

Mutator::Mutator(std::vector<std::string> seeds, std::uint64_t randomSeed)
    : seeds_(std::move(seeds)), random_(randomSeed) {
  if (seeds_.empty()) seeds_.emplace_back();
}

// Not a standard distribution: those differ between libraries.
std::size_t Mutator::Below(std::size_t limit) {
  return limit == 0 ? 0 : random_() % limit;
}

std::string Mutator::Next() {
  static constexpr Damage kDamages[] = {
      &Mutator::Truncate,      &Mutator::Flip,          &Mutator::Flip,       &Mutator::Erase,
      &Mutator::InsertRun,     &Mutator::Splice,        &Mutator::InsertWord, &Mutator::InsertWord,
      &Mutator::ReplaceNumber, &Mutator::ReplaceNumber, &Mutator::DoubleLine, &Mutator::DropLine,
      &Mutator::RandomBytes};
  std::string text = Seed();
  for (std::size_t left = 1 + Below(8); left > 0; --left) (this->*kDamages[Below(std::size(kDamages))])(text);
  if (text.size() > kLongestInput) text.resize(kLongestInput);
  return text;
}

std::pair<std::size_t, std::size_t> Mutator::LineAt(const std::string& text, std::size_t position) const {
  const std::size_t before = position == 0 ? std::string::npos : text.rfind('\n', position - 1);
  const std::size_t begin = before == std::string::npos ? 0 : before + 1;
  const std::size_t end = std::min(text.find('\n', begin), text.size());
  return {begin, std::min(end + 1, text.size()) - begin};
}

void Mutator::Truncate(std::string& text) {
  text.resize(Place(text));
}

void Mutator::Flip(std::string& text) {
  if (!text.empty()) text[Below(text.size())] = static_cast<char>(random_());
}

void Mutator::Erase(std::string& text) {
  text.erase(Place(text), Below(40));
}

void Mutator::InsertRun(std::string& text) {
  static const std::string kFills("\0 09-,.A\n\r\"@[=\xFF", 16);
  text.insert(Place(text), std::size_t{1} << Below(14), kFills[Below(kFills.size())]);
}

void Mutator::InsertWord(std::string& text) {
  text.insert(Place(text), kWords[Below(std::size(kWords))]);
}

void Mutator::ReplaceNumber(std::string& text) {
  const std::size_t begin = text.find_first_of("0123456789", Place(text));
  if (begin == std::string::npos) return;
  const std::size_t end = std::min(text.find_first_not_of("0123456789.", begin), text.size());
  text.replace(begin, end - begin, kWords[Below(16)]);
}

void Mutator::Splice(std::string& text) {
  const std::string& other = Seed();
  text.resize(Place(text));
  text.append(other, Place(other));
}

void Mutator::DoubleLine(std::string& text) {
  const auto [begin, length] = LineAt(text, Place(text));
  const std::string line = text.substr(begin, length);
  for (std::size_t left = std::size_t{1} << Below(8); left > 0 && text.size() < kLongestInput; --left) {
    text.insert(begin, line);
  }
}

void Mutator::DropLine(std::string& text) {
  const auto [begin, length] = LineAt(text, Place(text));
  text.erase(begin, length);
}

void Mutator::RandomBytes(std::string& text) {
  std::string bytes(Below(64), '\0');
  for (char& byte : bytes) byte = static_cast<char>(random_());
  text.replace(Place(text), Below(64), bytes);
}

void RunMutations(const std::vector<std::string>& seeds, const Reader& reader, int count) {
  const long before = PeakKilobytes();
  Feed("", reader, kMostSeconds);
  for (const std::string& seed : seeds) {
    for (std::size_t length = 0; length <= std::min(seed.size(), kMostTruncations); ++length) {
      Feed(seed.substr(0, length), reader, kMostSeconds);
    }
    Feed(seed, reader, kMostSeconds);
  }
  Mutator mutator(seeds);
  for (int i = 0; i < count && !::testing::Test::HasFailure(); ++i)
    Feed(mutator.Next(), reader, kMostSeconds);
  EXPECT_LT(PeakKilobytes() - before, kMostGrowthKilobytes);
}

void RunHugeLine(const std::string& start, const std::string& fill, const Reader& reader, double seconds) {
  std::string line = start;
  line.reserve(kHugeLine + fill.size());
  while (line.size() < kHugeLine) line += fill;
  const long before = PeakKilobytes();
  Feed(line, reader, seconds);
  EXPECT_LT(PeakKilobytes() - before, kMostGrowthHugeKilobytes);
}

}  // namespace morvane::test
