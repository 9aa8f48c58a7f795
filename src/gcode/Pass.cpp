#include "gcode/Pass.h"

#include <algorithm>
#include <cmath>

#include "common/RunTimeError.h"
#include "common/text/Numbers.h"

namespace morvane::gcode {
namespace {

constexpr float kRoundMarkRadius = 0.01F;
constexpr platform::Color kSmallRapid = 0x0000FF;
constexpr platform::Color kSmallFeed = 0x000000;

}  // namespace

Pass::Pass(const PassOptions& options, platform::Canvas* canvas)
    : options_(options), viewer_(OptionsOf(options.viewer)), batch_(canvas) {
  state_.Extents = options.extents;
  SetPens();
}

const PassState& Pass::Run(const GcodeProgram& program) {
  try {
    program.ForEach([this](const Statement& statement) { Step(statement); });
  } catch (const common::RunTimeError&) {
    state_.Failed = true;
  }
  batch_.Flush();
  return state_;
}

void Pass::Step(const Statement& statement) {
  if ((viewer_.words & Bit(statement.word)) == 0) return;
  line_ = statement.line;
  current_ = viewer_.marksCurrent && line_ == options_.currentLine;
  switch (statement.word) {
    case Word::Move:
      return Move(statement);
    case Word::Arc:
      if (statement.broken) throw common::RunTimeError(common::kTypeMismatch);
      return MoveArc(statement.x, statement.y, statement.cx, statement.cy, statement.clockwise);
    case Word::Turn:
      return MoveTurn(statement);
    case Word::Wait:
      return batch_.Circle(state_.X, state_.Y, kRoundMarkRadius, {MarkColor(), options_.settings.lineWidth});
    case Word::Mark:
      return Cross(state_.X, state_.Y, MarkColor());
    default:
      return SetState(statement);
  }
}

void Pass::Move(const Statement& statement) {
  if (viewer_.needsXAndY && !(statement.hasX && statement.hasY)) return;
  if (viewer_.readsZ && statement.hasZ) state_.Z = statement.cx;
  MoveAbsolute(statement.hasX ? statement.x : state_.X, statement.hasY ? statement.y : state_.Y,
               statement.feed);
}

void Pass::MoveAbsolute(float x, float y, bool feed) {
  const Point start = {state_.X, state_.Y};
  const bool drawn = feed || options_.showRapids;
  if (feed && !toolExists_) throw common::RunTimeError(common::kSubscriptOutOfRange);
  if (drawn) batch_.Add(PenOf(feed), {start.x, start.y, x, y});
  state_.X = x;
  state_.Y = y;
  state_.Extents.CheckExtents(x, y);
  if (current_ && drawn) MarkEnds(start);
  if (options_.click) CheckDistance(start);
}

void Pass::MoveRelative(float dx, float dy, bool feed) {
  const float x = state_.X + dx;
  const float y = state_.Y + dy;
  if (!std::isfinite(x) || !std::isfinite(y)) throw common::RunTimeError(common::kOverflow);
  MoveAbsolute(x, y, feed);
}

void Pass::MoveArc(float x, float y, float cx, float cy, bool clockwise) {
  if (!ToolShown()) return MoveAbsolute(x, y, true);
  DrawArc(ArcTo({state_.X, state_.Y}, {x, y}, {cx, cy}, clockwise));
}

void Pass::MoveTurn(const Statement& statement) {
  if (statement.broken) throw common::RunTimeError(common::kTypeMismatch);
  const Turn turn = TurnAbout({state_.X, state_.Y}, {statement.cx, statement.cy}, statement.x);
  if (ToolShown()) {
    DrawArc(turn.path);
  } else {
    MoveAbsolute(turn.path.target.x, turn.path.target.y, true);
  }
  state_.X = turn.end.x;
  state_.Y = turn.end.y;
}

void Pass::DrawArc(const ArcPath& path) {
  if (!toolExists_) throw common::RunTimeError(common::kSubscriptOutOfRange);
  const Point start = {state_.X, state_.Y};
  const platform::Pen pen = PenOf(true);
  WalkArc(path, [&](Point to) {
    batch_.Add(pen, {state_.X, state_.Y, to.x, to.y});
    state_.X = to.x;
    state_.Y = to.y;
    state_.Extents.CheckExtents(to.x, to.y);
  });
  if (current_) MarkEnds(start);
  if (options_.click) CheckDistance(start);
}

void Pass::SetState(const Statement& statement) {
  switch (statement.word) {
    case Word::Tool:
      state_.Tool = static_cast<std::int16_t>(statement.x);
      return SetPens();
    case Word::OutputOn:
    case Word::OutputOff:
      if (statement.x < 1) return;
      state_.Outputs[static_cast<std::size_t>(statement.x) - 1] = statement.word == Word::OutputOn;
      return;
    case Word::VelocityPercent:
      state_.VelocityPercent = static_cast<std::int16_t>(statement.x);
      return SetPens();
    case Word::FeedSpeed:
      state_.FeedSpeed = statement.x;
      return;
    case Word::MoveSpeed:
      state_.MoveSpeed = statement.x;
      return;
    case Word::End:
      state_.Ended = true;
      return;
    default:
      return;
  }
}

// Made when the tool or the velocity changes, not for each move.
void Pass::SetPens() {
  rapidPen_ = {viewer_.settingsPens ? options_.settings.rapid : kSmallRapid, 1};
  feedPen_ = {viewer_.settingsPens ? options_.settings.feed : kSmallFeed, FeedWidth()};
  toolExists_ = true;
  if (!ToolShown()) {
    rapidPen_.color = feedPen_.color = options_.settings.background;
  } else if (viewer_.toolColors) {
    toolExists_ = state_.Tool >= 1 && state_.Tool <= kToolCount;
    if (toolExists_) feedPen_.color = ToolColor(state_.Tool);
  }
}

int Pass::FeedWidth() const {
  if (!viewer_.wideFeeds) return 1;
  if (!options_.velocityWidth || (viewer_.words & Bit(Word::VelocityPercent)) == 0) {
    return std::max(1, options_.settings.lineWidth);
  }
  if (state_.VelocityPercent == 0) throw common::RunTimeError(common::kDivisionByZero);
  return std::max(1, common::ToInt32(*options_.velocityWidth * 100.0 / state_.VelocityPercent));
}

bool Pass::ToolShown() const {
  if (!viewer_.toolColors || options_.allTools) return true;
  return state_.Tool == options_.shownTool && state_.Tool >= 1 && state_.Tool <= kToolCount;
}

platform::Pen Pass::PenOf(bool feed) const {
  platform::Pen pen = feed ? feedPen_ : rapidPen_;
  if (current_) pen.color = options_.settings.current;
  return pen;
}

platform::Color Pass::MarkColor() const {
  return current_ ? options_.settings.current : options_.settings.rapid;
}

void Pass::Cross(float x, float y, platform::Color color) {
  const float arm = options_.settings.referenceLength;
  batch_.Add({color, 1}, {x - arm, y, x + arm, y});
  batch_.Add({color, 1}, {x, y - arm, x, y + arm});
}

void Pass::MarkEnds(Point start) {
  Cross(start.x, start.y, MarkColor());
  Cross(state_.X, state_.Y, MarkColor());
}

void Pass::CheckDistance(Point start) {
  for (const Point& end : {start, Point{state_.X, state_.Y}}) {
    const float distance = SegmentLength(end.x, end.y, options_.click->x, options_.click->y);
    if (distance >= state_.NearestDistance) continue;
    state_.NearestDistance = distance;
    state_.NearestLine = line_;
  }
}

}  // namespace morvane::gcode
