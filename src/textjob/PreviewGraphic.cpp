#include "textjob/PreviewGraphic.h"

#include <algorithm>

#include "common/Lines.h"
#include "common/Numbers.h"
#include "common/RunTimeError.h"
#include "common/Text.h"
#include "common/Tokenizer.h"
#include "gcode/Geometry.h"

namespace morvane::textjob {
namespace {

using gcode::Point;

constexpr float kDotRadius = 0.01F;
constexpr std::size_t kWordLength = 4;  // "G00X"

class GraphicReader {
 public:
  GraphicReader(const GraphicPlacement& placement, platform::Color color, PreviewPen& pen)
      : placement_(placement), color_(color), pen_(pen) {}

  void Read(std::string_view line) {
    for (const Statement& statement : kStatements) {
      if (!common::StartsWith(line, statement.word)) continue;
      (this->*statement.action)(line.substr(std::min(line.size(), kWordLength)));
      return;
    }
  }

 private:
  using Action = void (GraphicReader::*)(std::string_view rest);
  struct Statement {
    std::string_view word;
    Action action;
  };
  static const Statement kStatements[6];

  Point Place(std::string_view x, std::string_view y) const {
    Point point{common::ParseSingle(x) * placement_.scaleX, common::ParseSingle(y) * placement_.scaleY};
    if (placement_.rotate != 0) point = gcode::RotateAbout(0, 0, point.x, point.y, -placement_.rotate);
    return {point.x + placement_.x, point.y + placement_.y};
  }

  Point PlaceMove(std::string_view rest) const {
    common::TokenScan scan(rest);
    const std::string_view x = scan.Next("Y");
    return Place(x, scan.Next(""));
  }

  void Rapid(std::string_view rest) {
    const Point point = PlaceMove(rest);
    pen_.PenMove(point.x, point.y, color_, false);
  }

  void Feed(std::string_view rest) {
    const Point point = PlaceMove(rest);
    pen_.PenMove(point.x, point.y, color_, true);
  }

  // Text up to a letter that must be there.
  static std::string_view Required(common::TokenScan& scan, std::string_view letter) {
    bool atEnd = false;
    const std::string_view token = scan.Next(letter, atEnd);
    if (atEnd) throw common::RunTimeError(common::kSubscriptOutOfRange);
    return token;
  }

  void Arc(std::string_view rest, bool clockwise) {
    common::TokenScan scan(rest);
    const std::string_view x = Required(scan, "Y");
    const std::string_view y = Required(scan, "I");
    const std::string_view i = Required(scan, "J");
    Walk(gcode::ArcTo({pen_.X(), pen_.Y()}, Place(x, y), Place(i, scan.Next("")), clockwise));
  }
  void Clockwise(std::string_view rest) { Arc(rest, true); }
  void CounterClockwise(std::string_view rest) { Arc(rest, false); }

  void Turns(std::string_view rest) {
    common::TokenScan scan(rest);
    const float turns = common::ParseSingle(Required(scan, "I"));
    const std::string_view i = Required(scan, "J");
    const gcode::Turn turn = gcode::TurnAbout({pen_.X(), pen_.Y()}, Place(i, scan.Next("P")), turns);
    Walk(turn.path);
    pen_.Put(turn.end.x, turn.end.y);
  }

  void Dot(std::string_view /*rest*/) {
    pen_.Surface().Circle(pen_.X(), pen_.Y(), kDotRadius, {color_, pen_.LineWidth()});
  }

  void Walk(const gcode::ArcPath& path) {
    gcode::WalkArc(path, [this](Point point) { pen_.PenMove(point.x, point.y, color_, true); });
  }

  const GraphicPlacement& placement_;
  platform::Color color_;
  PreviewPen& pen_;
};

const GraphicReader::Statement GraphicReader::kStatements[6] = {
    {"G00X", &GraphicReader::Rapid},     {"G01X", &GraphicReader::Feed},
    {"G02X", &GraphicReader::Clockwise}, {"G03X", &GraphicReader::CounterClockwise},
    {"G05T", &GraphicReader::Turns},     {"W", &GraphicReader::Dot},
};

}  // namespace

void DrawGraphic(std::string_view bytes, const GraphicPlacement& placement, platform::Color color,
                 PreviewPen& pen) {
  GraphicReader reader(placement, color, pen);
  common::Lines lines(bytes);
  std::string_view line;
  try {
    while (lines.Next(line)) reader.Read(line);
  } catch (const common::RunTimeError&) {
    // What was drawn stays; a job's file fails silently.
  }
}

}  // namespace morvane::textjob
