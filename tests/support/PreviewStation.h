// A base directory in memory with everything that a drawing pass reads, and the pass over it.
#pragma once

#include <string>
#include <vector>

#include "fonts/GlyphCache.h"
#include "platform/RecordingCanvas.h"
#include "support/SideProgramStation.h"
#include "textjob/preview/Preview.h"

namespace morvane::test {

struct PreviewStation : SideProgramStation {
  PreviewStation() : SideProgramStation("SQRGEN.EXE") {}

  void Put(const std::string& name, const std::string& bytes) { disk.Put("/base/" + name, bytes); }
  void Set(const std::string& key, const std::string& value) {
    settings.SaveSetting(common::kSettingsSection, key, value);
  }

  // Draws the lines at a picture whose scale is that of the default view.
  textjob::PreviewResult Draw(const std::vector<std::string>& lines, const textjob::ViewOptions& options = {},
                              textjob::ClickSearch* search = nullptr) {
    job.Lines = lines;
    const textjob::PreviewSources sources{files, settings, clock, locale, prompts, runner, font, glyphs};
    return textjob::DrawJob(sources, {job, "JOB.TJB", options, picture, search}, state, canvas);
  }

  fonts::FontTable font;
  fonts::GlyphCache glyphs{font};
  textjob::TextJob job;
  textjob::PreviewState state;
  textjob::PictureSize picture{600, 400};
  platform::RecordingCanvas canvas;
};

}  // namespace morvane::test
