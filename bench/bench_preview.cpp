// A full pass over a large job beside the least work that could do: the same points put through one
// affine transform and emitted from a flat array.
#include <benchmark/benchmark.h>

#include <fstream>
#include <iostream>
#include <sstream>

#include "platform/RecordingCanvas.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixLocale.h"
#include "platform/posix/PosixProcesses.h"
#include "support/FakePrompts.h"
#include "support/TempFolder.h"
#include "textjob/Preview.h"
#include "textjob/modTjb.h"

namespace morvane::textjob {
namespace {

constexpr std::size_t kLines = kMaxLines;
constexpr const char* kText = "LINE OF TEXT 1234567";  // 20 characters

// Counts, and looks at each segment once, as any consumer does.
class CountingCanvas : public platform::Canvas {
 public:
  void Clear() override { count = 0; }
  void SetScale(const platform::CanvasView&) override {}
  void Lines(const platform::Pen&, const platform::Segment* segments, std::size_t n) override {
    for (std::size_t i = 0; i < n; ++i) sum += segments[i].x2;
    count += n;
  }
  void Box(const platform::Rectangle&, platform::Color, bool) override {}
  void Circle(float, float, float, const platform::Pen&) override {}
  void Text(float, float, const std::string&, platform::Color, const platform::TextFace&) override {}
  void Image(const std::string&, const platform::Rectangle&) override {}

  std::size_t count = 0;
  float sum = 0;
};

struct Station {
  Station() {
    std::ifstream in(MORVANE_SOURCE_DIR "/station/FONT1.fnt", std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    files.WriteStraight("FONT1.FNT", bytes.str());
    for (std::size_t i = 0; i < kLines; ++i) {
      TextJobLine line;
      line.XPos = 0.25F;
      line.YPos = static_cast<float>(i) * 0.004F;
      line.Height = 0.125F;
      line.Font = "FONT1.fnt";
      line.Text = kText;
      job.Lines.push_back(FormatTjbLine(line, "0.000"));
    }
  }

  PreviewResult Draw(platform::Canvas& canvas) {
    const PreviewSources sources{files, settings, clock, locale, prompts, runner, font, glyphs};
    return DrawJob(sources, {job, "JOB.TJB", {}, {1600, 1000}}, state, canvas);
  }

  test::TempFolder folder;
  platform::PosixFileSystem fileSystem;
  common::Files files{fileSystem, folder.Path()};
  common::Settings settings{files};
  platform::PosixClock clock;
  platform::PosixLocale locale;
  platform::PosixProcesses processes;
  test::FakePrompts prompts;
  bool abort = false;
  common::ProcessRunner runner{processes, clock, files, folder.Path(), abort};
  fonts::FontTable font;
  fonts::GlyphCache glyphs{font};
  TextJob job;
  PreviewState state;
};

struct Affine {
  double xx, xy, x, yx, yy, y;
};

void EmitFlat(const std::vector<platform::Segment>& source, const Affine& m, platform::Canvas& canvas) {
  std::vector<platform::Segment> out;
  constexpr std::size_t kBatch = 4096;
  out.reserve(kBatch);
  for (const platform::Segment& s : source) {
    if (out.size() == kBatch) {
      canvas.Lines({}, out.data(), out.size());
      out.clear();
    }
    out.push_back({static_cast<float>(s.x1 * m.xx + s.y1 * m.xy + m.x),
                   static_cast<float>(s.x1 * m.yx + s.y1 * m.yy + m.y),
                   static_cast<float>(s.x2 * m.xx + s.y2 * m.xy + m.x),
                   static_cast<float>(s.x2 * m.yx + s.y2 * m.yy + m.y)});
  }
  canvas.Lines({}, out.data(), out.size());
}

void BM_FullPass(benchmark::State& state) {
  Station station;
  CountingCanvas canvas;
  for (auto _ : state) {
    station.Draw(canvas);
    benchmark::DoNotOptimize(canvas.sum);
  }
  state.counters["segments"] = static_cast<double>(canvas.count);
}
BENCHMARK(BM_FullPass)->Unit(benchmark::kMillisecond);

void BM_FlatArray(benchmark::State& state) {
  Station station;
  platform::RecordingCanvas drawing;
  station.Draw(drawing);
  CountingCanvas canvas;
  for (auto _ : state) {
    canvas.Clear();
    EmitFlat(drawing.Segments(), {0.9, 0.1, 3, -0.1, 0.9, 2}, canvas);
    benchmark::DoNotOptimize(canvas.sum);
  }
  state.counters["segments"] = static_cast<double>(canvas.count);
}
BENCHMARK(BM_FlatArray)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morvane::textjob

BENCHMARK_MAIN();
