// The drawing pass over a whole job: what the machine will mark, as a list of primitives.
#pragma once

#include <string>
#include <vector>

#include "platform/Canvas.h"
#include "textjob/job/TextJob.h"
#include "textjob/preview/PreviewSources.h"
#include "textjob/preview/PreviewState.h"
#include "textjob/preview/PreviewView.h"
#include "textjob/preview/ViewOptions.h"

namespace morvane::textjob {

struct PreviewRequest {
  const TextJob& job;
  std::string jobName;  // finds the job's own background picture
  ViewOptions options;
  PictureSize picture;
  ClickSearch* search = nullptr;  // set: the pass finds the line nearest to a click
};

struct PreviewResult {
  std::vector<std::string> labels;  // of the lines, as the list shows them: "Line 1: TEXT"
  int current = -1;                 // the last selected line; -1: none
  platform::CanvasView view;
};

// The whole pass. Message boxes may come up and side programs may run meanwhile, with events alive: the
// caller keeps a second pass out until this one has returned.
PreviewResult DrawJob(const PreviewSources& sources, const PreviewRequest& request, PreviewState& state,
                      platform::Canvas& canvas);

}  // namespace morvane::textjob
