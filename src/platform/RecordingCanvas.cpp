#include "platform/RecordingCanvas.h"

namespace morvane::platform {

void RecordingCanvas::Append(Kind kind, std::size_t sizeAfter) {
  runs_.push_back({kind, static_cast<std::uint32_t>(sizeAfter - 1), 1, {}});
}

void RecordingCanvas::Clear() {
  runs_.clear();
  views_.clear();
  segments_.clear();
  boxes_.clear();
  circles_.clear();
  texts_.clear();
  images_.clear();
  if (view_) SetScale(*view_);
}

void RecordingCanvas::SetScale(const CanvasView& view) {
  view_ = view;
  if (!runs_.empty() && runs_.back().kind == Kind::Scale) {
    views_.back() = view;
    return;
  }
  views_.push_back(view);
  Append(Kind::Scale, views_.size());
}

void RecordingCanvas::Lines(const Pen& pen, const Segment* segments, std::size_t count) {
  if (count == 0) return;
  const bool joins = !runs_.empty() && runs_.back().kind == Kind::Lines && runs_.back().pen == pen;
  if (!joins) runs_.push_back({Kind::Lines, static_cast<std::uint32_t>(segments_.size()), 0, pen});
  segments_.insert(segments_.end(), segments, segments + count);
  runs_.back().count += static_cast<std::uint32_t>(count);
}

void RecordingCanvas::Box(const Rectangle& box, Color color, bool filled) {
  boxes_.push_back({box, color, filled});
  Append(Kind::Box, boxes_.size());
}

void RecordingCanvas::Circle(float x, float y, float radius, const Pen& pen) {
  circles_.push_back({x, y, radius, pen});
  Append(Kind::Circle, circles_.size());
}

void RecordingCanvas::Text(float x, float y, const std::string& text, Color color, const TextFace& face) {
  texts_.push_back({x, y, text, color, face});
  Append(Kind::Text, texts_.size());
}

void RecordingCanvas::Image(const std::string& name, const Rectangle& place) {
  images_.push_back({name, place});
  Append(Kind::Image, images_.size());
}

void RecordingCanvas::Replay(Canvas& target) const {
  for (const Run& run : runs_) Draw(run, target);
}

void RecordingCanvas::Draw(const Run& run, Canvas& target) const {
  switch (run.kind) {
    case Kind::Scale:
      target.SetScale(views_[run.first]);
      return;
    case Kind::Lines:
      target.Lines(run.pen, segments_.data() + run.first, run.count);
      return;
    case Kind::Box: {
      const BoxItem& item = boxes_[run.first];
      target.Box(item.box, item.color, item.filled);
      return;
    }
    case Kind::Circle: {
      const CircleItem& item = circles_[run.first];
      target.Circle(item.x, item.y, item.radius, item.pen);
      return;
    }
    case Kind::Text: {
      const TextItem& item = texts_[run.first];
      target.Text(item.x, item.y, item.text, item.color, item.face);
      return;
    }
    case Kind::Image: {
      const ImageItem& item = images_[run.first];
      target.Image(item.name, item.place);
      return;
    }
  }
}

}  // namespace morvane::platform
