// What the preview keeps between its passes.
#pragma once

#include <optional>

#include "recipes/Fixture.h"
#include "textjob/job/ParsedLines.h"

namespace morvane::textjob {

// A click on the canvas looks for the nearest drawn end. World units.
struct ClickSearch {
  float x = 0;
  float y = 0;
  float best = 9999;  // distance of the nearest end so far
  int line = -1;      // its line; -1: none yet
};

struct PreviewState {
  // The pen is not put back at the start of a pass.
  float PenX = 0;
  float PenY = 0;
  // The fixture read last. One that can't be read leaves it as it was.
  std::optional<recipes::Fixture> fixture;
  ParsedLines lines;
};

}  // namespace morvane::textjob
