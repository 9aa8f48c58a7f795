// A base directory on the disk with a large job, and the drawing pass over it.
#pragma once

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "cli/CliPrompts.h"
#include "common/text/Numbers.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixLocale.h"
#include "platform/posix/PosixProcesses.h"
#include "textjob/job/modTjb.h"
#include "textjob/preview/Preview.h"

namespace morvane::bench {

class BenchStation {
 public:
  // 1001 lines of 20 characters each, about 9 strokes a character.
  BenchStation() {
    // What a run that was ended left would be offered by the next one.
    std::filesystem::remove_all(directory_);
    std::filesystem::create_directories(directory_);
    std::ifstream in(MORVANE_SOURCE_DIR "/station/FONT1.fnt", std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    files_.WriteStraight("FONT1.FNT", bytes.str());
    for (std::size_t i = 0; i < textjob::kMaxLines; ++i) {
      textjob::TextJobLine line;
      line.XPos = 0.25F;
      line.YPos = static_cast<float>(i) * 0.004F;
      line.Height = 0.125F;
      line.Font = "FONT1.fnt";
      line.Text = "LINE OF TEXT 1234567";
      job_.Lines.push_back(textjob::FormatTjbLine(line, "0.000"));
    }
  }
  ~BenchStation() {
    std::error_code ignored;
    std::filesystem::remove_all(directory_, ignored);
  }
  BenchStation(const BenchStation&) = delete;
  BenchStation& operator=(const BenchStation&) = delete;

  void Draw(platform::Canvas& canvas) { Draw(job_, {1600, 1000}, canvas); }
  // Another job than its own, fitted to a picture of that size.
  void Draw(const textjob::TextJob& job, const textjob::PictureSize& size, platform::Canvas& canvas) {
    const textjob::PreviewSources sources{files_,   settings_, clock_, locale_,
                                          prompts_, runner_,   font_,  glyphs_};
    textjob::DrawJob(sources, {job, "JOB.TJB", {}, size}, state_, canvas);
  }
  void Set(const char* key, std::int32_t value) {
    settings_.SaveSetting(common::kSettingsSection, key, common::PlainNumber(value));
  }
  const common::Files& Files() const { return files_; }
  // Its job lies in JOB.TJB from now on.
  void SaveJob() { files_.WriteStraight("JOB.TJB", textjob::WriteTjb(job_)); }

 private:
  std::filesystem::path directory_ = std::filesystem::temp_directory_path() / "morvane-bench-station";
  platform::PosixFileSystem fileSystem_;
  common::Files files_{fileSystem_, directory_.string()};
  common::Settings settings_{files_};
  platform::PosixClock clock_;
  platform::PosixLocale locale_;
  platform::PosixProcesses processes_;
  cli::CliPrompts prompts_{false};
  bool abort_ = false;
  common::ProcessRunner runner_{processes_, clock_, files_, directory_.string(), abort_};
  fonts::FontTable font_;
  fonts::GlyphCache glyphs_{font_};
  textjob::TextJob job_;
  textjob::PreviewState state_;
};

}  // namespace morvane::bench
