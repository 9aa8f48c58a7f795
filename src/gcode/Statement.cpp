#include "gcode/Statement.h"

#include <cstddef>

#include "common/text/Numbers.h"

namespace morvane::gcode {
namespace {

// Takes numbers from a line that is cut at letters. No letter of the dialect can be part of a number, so
// reading a number as far as it goes gives the same as reading the part in front of the letter. The line
// ends at a line end or with the text.
class Cutter {
 public:
  Cutter(std::string_view text, std::size_t start, bool fold) : text_(text), position_(start), fold_(fold) {}

  // The number in front of `letter`; the text behind the letter is next. Without the letter the number
  // is read all the same and nothing is left, so no later letter is found either.
  float Take(char letter) {
    const float value = Rest();
    found_ = false;
    for (; !found_ && position_ < text_.size() && !IsLineEnd(text_[position_]); ++position_) {
      found_ = Fold(text_[position_]) == letter;
    }
    return value;
  }
  // The number that begins here.
  float Rest() {
    std::size_t length = 0;
    const float value = common::ToSingle(common::ParseNumber(text_.substr(position_), length));
    position_ += length;
    return value;
  }
  char First() const { return position_ < text_.size() ? text_[position_] : '\0'; }
  bool Found() const { return found_; }
  std::size_t Position() const { return position_; }

 private:
  static bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }
  char Fold(char c) const { return fold_ && c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

  std::string_view text_;
  std::size_t position_;
  bool fold_;
  bool found_ = false;
};

void ReadMove(Cutter& cutter, Statement& statement) {
  statement.x = cutter.Take('Y');
  statement.hasX = true;
  if (!cutter.Found()) return;
  statement.y = cutter.Take('Z');
  statement.hasY = true;
  statement.hasZ = cutter.Found();
  if (statement.hasZ) statement.cx = cutter.Rest();
}

void ReadRapid(Cutter& cutter, Statement& statement) {
  ReadMove(cutter, statement);
}

void ReadFeed(Cutter& cutter, Statement& statement) {
  statement.feed = true;
  ReadMove(cutter, statement);
}

void ReadRapidY(Cutter& cutter, Statement& statement) {
  statement.y = cutter.Rest();
  statement.hasY = true;
}

void ReadFeedY(Cutter& cutter, Statement& statement) {
  statement.feed = true;
  ReadRapidY(cutter, statement);
}

void ReadCounterClockwise(Cutter& cutter, Statement& statement) {
  statement.feed = true;
  statement.x = cutter.Take('Y');
  statement.y = cutter.Take('I');
  statement.cx = cutter.Take('J');
  statement.broken = !cutter.Found();
  statement.cy = cutter.Rest();
}

void ReadClockwise(Cutter& cutter, Statement& statement) {
  statement.clockwise = true;
  ReadCounterClockwise(cutter, statement);
}

void ReadTurn(Cutter& cutter, Statement& statement) {
  statement.feed = true;
  statement.x = cutter.Take('I');
  statement.cx = cutter.Take('J');
  statement.cy = cutter.Take('P');
  statement.broken = !cutter.Found();
}

void ReadWholeNumber(Cutter& cutter, Statement& statement) {
  statement.x = common::ToInt16(cutter.Rest());
}

void ReadNumber(Cutter& cutter, Statement& statement) {
  statement.x = cutter.Rest();
}

// The number of an output is the one digit behind the letter; 0 stands for none.
void ReadOutput(Cutter& cutter, Statement& statement) {
  const char digit = cutter.First();
  if (digit >= '1' && digit <= '8') statement.x = static_cast<float>(digit - '0');
}

void ReadNothing(Cutter&, Statement&) {}

// The first characters of a line in one word, so that a test is one comparison.
constexpr std::uint32_t Pack(std::string_view text, bool fold) {
  std::uint32_t packed = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    char c = i < text.size() ? text[i] : '\0';
    if (fold && c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    packed = (packed << 8) | static_cast<unsigned char>(c);
  }
  return packed;
}

struct Entry {
  std::uint32_t start;
  std::uint32_t mask;
  std::size_t length;
  Word word;
  void (*read)(Cutter&, Statement&);
};

constexpr Entry Begins(std::string_view text, Word word, void (*read)(Cutter&, Statement&)) {
  return {Pack(text, false), ~std::uint32_t{0} << (8 * (4 - text.size())), text.size(), word, read};
}

// In the order of the tests; the first match decides.
constexpr Entry kEntries[] = {
    Begins("G00Y", Word::Move, ReadRapidY),    Begins("G01Y", Word::Move, ReadFeedY),
    Begins("G00X", Word::Move, ReadRapid),     Begins("G01X", Word::Move, ReadFeed),
    Begins("G02X", Word::Arc, ReadClockwise),  Begins("G03X", Word::Arc, ReadCounterClockwise),
    Begins("G05T", Word::Turn, ReadTurn),      Begins("M06T", Word::Tool, ReadWholeNumber),
    Begins("W", Word::Wait, ReadNothing),      Begins("G04", Word::Mark, ReadNothing),
    Begins("I", Word::Mark, ReadNothing),      Begins("S", Word::OutputOn, ReadOutput),
    Begins("C", Word::OutputOff, ReadOutput),  Begins("VP", Word::VelocityPercent, ReadWholeNumber),
    Begins("VF", Word::FeedSpeed, ReadNumber), Begins("VM", Word::MoveSpeed, ReadNumber),
    Begins("END", Word::End, ReadNothing),
};

}  // namespace

Statement ParseStatement(std::string_view line, bool foldToCapitals) {
  Statement statement;
  ReadStatement(line, foldToCapitals, statement);
  return statement;
}

std::size_t ReadStatement(std::string_view text, bool foldToCapitals, Statement& statement) {
  const std::uint32_t start = Pack(text, foldToCapitals);
  for (const Entry& entry : kEntries) {
    if ((start & entry.mask) != entry.start) continue;
    statement.word = entry.word;
    Cutter cutter(text, entry.length, foldToCapitals);
    entry.read(cutter, statement);
    return cutter.Position();
  }
  return 0;
}

}  // namespace morvane::gcode
