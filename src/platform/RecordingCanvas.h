// Keeps a drawing as a display list: windows hold their drawings in it and paint from it, the command
// line and tests read it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Canvas.h"

namespace morvane::platform {

class RecordingCanvas : public Canvas {
 public:
  enum class Kind : std::uint8_t { Scale, Lines, Box, Circle, Text, Image };

  // A run of primitives of one kind: `count` items from `first` on in the list of that kind. Lines of one
  // pen that follow each other make one run; every other primitive is a run of its own.
  struct Run {
    Kind kind = Kind::Lines;
    std::uint32_t first = 0;
    std::uint32_t count = 0;
    Pen pen;  // lines only
  };
  struct BoxItem {
    Rectangle box;
    Color color = 0;
    bool filled = false;
  };
  struct CircleItem {
    float x = 0;
    float y = 0;
    float radius = 0;
    Pen pen;
  };
  struct TextItem {
    float x = 0;
    float y = 0;
    std::string text;
    Color color = 0;
    TextFace face;
  };
  struct ImageItem {
    std::string name;
    Rectangle place;
  };

  // Drops the primitives; the scale in force stays and heads the new list.
  void Clear() override;
  // A scale set twice with nothing drawn in between counts once.
  void SetScale(const CanvasView& view) override;
  void Lines(const Pen& pen, const Segment* segments, std::size_t count) override;
  void Box(const Rectangle& box, Color color, bool filled) override;
  void Circle(float x, float y, float radius, const Pen& pen) override;
  void Text(float x, float y, const std::string& text, Color color, const TextFace& face) override;
  void Image(const std::string& name, const Rectangle& place) override;

  // Draws everything in its order, lines in their batches. The target is not cleared.
  void Replay(Canvas& target) const;

  // The scale in force, if one was ever set.
  const std::optional<CanvasView>& View() const { return view_; }
  const std::vector<Run>& Runs() const { return runs_; }
  const std::vector<Segment>& Segments() const { return segments_; }
  const std::vector<BoxItem>& Boxes() const { return boxes_; }
  const std::vector<CircleItem>& Circles() const { return circles_; }
  const std::vector<TextItem>& Texts() const { return texts_; }
  const std::vector<ImageItem>& Images() const { return images_; }

 private:
  void Append(Kind kind, std::size_t sizeAfter);
  void Draw(const Run& run, Canvas& target) const;

  std::optional<CanvasView> view_;
  std::vector<Run> runs_;
  std::vector<CanvasView> views_;
  std::vector<Segment> segments_;
  std::vector<BoxItem> boxes_;
  std::vector<CircleItem> circles_;
  std::vector<TextItem> texts_;
  std::vector<ImageItem> images_;
};

}  // namespace morvane::platform
