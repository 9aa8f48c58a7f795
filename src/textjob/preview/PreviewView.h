// The world window of the preview.
#pragma once

#include "platform/Canvas.h"
#include "recipes/Fixture.h"
#include "textjob/preview/PreviewSettings.h"
#include "textjob/preview/ViewOptions.h"

namespace morvane::textjob {

struct PictureSize {
  float width = 1;  // pixels
  float height = 1;
};

// The window that the settings, the background picture and the fixture (none: null) ask for, made wider
// or higher so that X and Y have the same scale on the picture.
platform::CanvasView SetUpView(const PreviewSettings& settings, const ViewOptions& options,
                               const recipes::Fixture* fixture, const PictureSize& picture);

}  // namespace morvane::textjob
