#include "textjob/preview/PreviewPen.h"

#include <utility>

namespace morvane::textjob {

PreviewPen::PreviewPen(platform::Canvas& canvas, PreviewState& state, const PenOptions& options)
    : canvas_(canvas), state_(state), options_(options) {}

platform::Canvas& PreviewPen::Surface() {
  Flush();
  return canvas_;
}

void PreviewPen::Flush() {
  if (count_ > 0 && pieces_ < kMaxPieces) canvas_.Lines(pen_, batch_.data(), count_);
  pieces_ += count_;
  count_ = 0;
}

void PreviewPen::Start(const platform::Pen& pen) {
  Flush();
  pen_ = pen;
}

void PreviewPen::HitTest(float x1, float y1, float x2, float y2) {
  if (!options_.search) return;
  ClickSearch& search = *options_.search;
  for (const auto& [x, y] : {std::pair{x1, y1}, std::pair{x2, y2}}) {
    const float distance = std::hypot(x - search.x, y - search.y);
    if (!(distance < search.best)) continue;
    search.best = distance;
    search.line = line_;
  }
}

void PreviewPen::AddCopies(const platform::Segment& s) {
  if (pieces_ >= kMaxPieces) return;
  const recipes::Fixture& grid = *options_.grid;
  if (grid.Rows <= 0) return;
  const platform::Pen pen{options_.copyColor, options_.lineWidth};
  int left = kMaxCopies;
  for (int column = 0; column < grid.Columns; ++column) {
    for (int row = 0; row < grid.Rows; ++row) {
      if (column == 0 && row == 0) continue;
      if (left-- == 0) return;
      const float dx = static_cast<float>(column) * grid.ColumnDistance;
      const float dy = static_cast<float>(row) * grid.RowDistance;
      Add(pen, {s.x1 + dx, s.y1 + dy, s.x2 + dx, s.y2 + dy});
    }
  }
}

}  // namespace morvane::textjob
