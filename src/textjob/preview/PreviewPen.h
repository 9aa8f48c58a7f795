// The pen of a drawing pass: the one primitive that every line type draws with.
#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

#include "fonts/GlyphCache.h"
#include "platform/Canvas.h"
#include "textjob/preview/PreviewState.h"

namespace morvane::textjob {

// A pass draws at most this many pieces, copies included; and at most this many copies of each.
inline constexpr std::size_t kMaxPieces = 20'000'000;
inline constexpr int kMaxCopies = 1000;

struct PenOptions {
  platform::Pen toolPath;  // pen-up moves
  bool showToolPath = false;
  int lineWidth = 1;  // of marked lines, in pixels
  platform::Color copyColor = 0;
  const recipes::Fixture* grid = nullptr;  // a clone fixture, whose other cells repeat each marked line
  ClickSearch* search = nullptr;           // null: nobody looks for a line
};

class PreviewPen {
 public:
  PreviewPen(platform::Canvas& canvas, PreviewState& state, const PenOptions& options);
  ~PreviewPen() { Flush(); }
  PreviewPen(const PreviewPen&) = delete;
  PreviewPen& operator=(const PreviewPen&) = delete;

  float X() const { return state_.PenX; }
  float Y() const { return state_.PenY; }
  platform::Canvas& Surface();
  void SetLine(int index) { line_ = index; }
  int LineWidth() const { return options_.lineWidth; }

  // Pen up: shown only with the tool path. Pen down: marked, hit-tested and repeated for the fixture.
  void PenMove(float x, float y, platform::Color color, bool draw) {
    if (draw) {
      MarkTo(x, y, color);
    } else if (options_.showToolPath) {
      Add(options_.toolPath, {state_.PenX, state_.PenY, x, y});
    }
    Put(x, y);
  }
  // The pen is at another place without having moved there.
  void Put(float x, float y) {
    state_.PenX = x;
    state_.PenY = y;
  }

  // Compares the distances of both ends with the best so far.
  void HitTest(float x1, float y1, float x2, float y2);
  // A line that is no part of the job: hit by nothing, repeated nowhere.
  void Add(const platform::Pen& pen, const platform::Segment& segment) {
    if (!(pen == pen_) || count_ == kBatch) Start(pen);
    batch_[count_++] = segment;
  }
  // The moves through a character. `place` turns a point of the cell into one of the job.
  template <typename Place>
  void Draw(const fonts::Glyph& glyph, const Place& place, platform::Color color);
  void Flush();

 private:
  static constexpr std::size_t kBatch = 4096;

  void MarkTo(float x, float y, platform::Color color) {
    const platform::Segment segment{state_.PenX, state_.PenY, x, y};
    Add({color, options_.lineWidth}, segment);
    if (options_.search) HitTest(segment.x1, segment.y1, x, y);
    if (options_.grid) AddCopies(segment);
  }
  // What is marked alone, at full speed.
  template <typename Place>
  void Mark(const fonts::Glyph& glyph, Place place, const platform::Pen& pen);
  void Start(const platform::Pen& pen);
  void AddCopies(const platform::Segment& segment);

  platform::Canvas& canvas_;
  PreviewState& state_;
  PenOptions options_;
  int line_ = -1;
  platform::Pen pen_;
  std::vector<platform::Segment> batch_{kBatch};
  std::size_t count_ = 0;
  std::size_t pieces_ = 0;
};

template <typename Place>
void PreviewPen::Draw(const fonts::Glyph& glyph, const Place& place, platform::Color color) {
  if (glyph.empty()) return;
  // Most passes only mark: then nothing but the points is looked at.
  if (!options_.showToolPath && !options_.search && !options_.grid) {
    Mark(glyph, place, {color, options_.lineWidth});
    return;
  }
  for (const fonts::GlyphPoint& stop : glyph) {
    const auto point = place(stop.x, stop.y);
    PenMove(point.x, point.y, color, stop.down != 0);
  }
}

template <typename Place>
void PreviewPen::Mark(const fonts::Glyph& glyph, const Place place, const platform::Pen& pen) {
  if (!(pen == pen_) || count_ + glyph.size() >= kBatch) Start(pen);
  platform::Segment* out = batch_.data() + count_;
  float x = 0;
  float y = 0;
  for (const fonts::GlyphPoint& stop : glyph) {
    const auto point = place(stop.x, stop.y);
    // A pen-up stop is written over by the next one: no branch to mispredict.
    *out = {x, y, point.x, point.y};
    out += stop.down;
    x = point.x;
    y = point.y;
  }
  count_ = static_cast<std::size_t>(out - batch_.data());
  Put(x, y);
}

}  // namespace morvane::textjob
