#include "textjob/preview/PreviewView.h"

#include "common/text/Numbers.h"

namespace morvane::textjob {
namespace {

constexpr float kPi = 3.14159F;

float AtLeastSomething(float length) {
  return length > 0 ? length : 1;
}

// An unrolled circumference, or the sides of a polygon one below the other.
void FitFixture(const recipes::Fixture& fixture, platform::CanvasView& view) {
  switch (fixture.Type) {
    case recipes::kFixtureRotary:
    case recipes::kFixtureRotaryClone:
      view.Height = fixture.Diameter * kPi;
      break;
    case recipes::kFixtureIndex:
      view.Height = static_cast<float>(fixture.Sides) * fixture.Flat;
      break;
    default:
      return;
  }
  if (fixture.Length > 0) view.Width = fixture.Length;
}

}  // namespace

platform::CanvasView SetUpView(const PreviewSettings& settings, const ViewOptions& options,
                               const recipes::Fixture* fixture, const PictureSize& picture) {
  platform::CanvasView view = settings.editor;
  if (options.BackgroundImage && settings.useImageSize) {
    const platform::Rectangle& place = settings.background.place;
    view = {0, 0, place.x + place.width, place.y + place.height};
  }
  view.Width = AtLeastSomething(view.Width);
  view.Height = AtLeastSomething(view.Height);
  if (fixture) FitFixture(*fixture, view);
  view.Width = AtLeastSomething(view.Width);
  view.Height = AtLeastSomething(view.Height);

  const double pictureWidth = AtLeastSomething(picture.width);
  const double pictureHeight = AtLeastSomething(picture.height);
  if (pictureWidth / view.Width < pictureHeight / view.Height) {
    view.Height = common::ToSingle(view.Width * pictureHeight / pictureWidth);
  } else {
    view.Width = common::ToSingle(view.Height * pictureWidth / pictureHeight);
  }
  return view;
}

}  // namespace morvane::textjob
