// Reading and measuring a large job beside the least work that could do: figures to keep an eye on.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <ctime>
#include <fstream>
#include <string>
#include <vector>

#include "common/text/Numbers.h"
#include "gcode/DrawFile.h"
#include "gcode/MeasureDistances.h"
#include "platform/RecordingCanvas.h"

namespace morvane::gcode {
namespace {

constexpr int kStatements = 1'000'000;
constexpr int kArcs = 100'000;

// A coordinate as writers put it, wandering over a square of 40 units.
float Coordinate(int i, int step) {
  return static_cast<float>((i * step) % 40000) / 1000.0F - 5.0F;
}

std::string MoveJob() {
  std::string job = "G90\r\n";
  for (int i = 0; i < kStatements; ++i) {
    job.append(i % 8 == 0 ? "G00X" : "G01X").append(common::FormatPicture(Coordinate(i, 37), "0.000"));
    job.append("Y").append(common::FormatPicture(Coordinate(i, 91), "0.000")).append("\r\n");
  }
  return job;
}

struct ArcData {
  Point start, end, center;
  bool clockwise;
};

// Arcs about wandering centres, each beginning where the last one ended.
ArcData MakeArc(int i, Point start) {
  const Point center = {Coordinate(i, 37), Coordinate(i, 91)};
  const Point end = {center.x + 1.0F + static_cast<float>(i % 7), center.y + static_cast<float>(i % 5) - 2};
  return {start, end, center, i % 2 == 0};
}

std::vector<ArcData> MakeArcs(int count) {
  std::vector<ArcData> arcs;
  Point at;
  for (int i = 0; i < count; ++i) at = arcs.emplace_back(MakeArc(i, at)).end;
  return arcs;
}

std::string ArcJob(int count) {
  constexpr std::size_t kLongestLine = 48;
  std::string job;
  job.reserve(static_cast<std::size_t>(count) * kLongestLine);
  const auto add = [&](const char* letter, float value) {
    job.append(letter).append(common::FormatPicture(value, "0.000"));
  };
  for (int i = 0; i < count; ++i) {
    const ArcData arc = MakeArc(i, {});
    add(arc.clockwise ? "G02X" : "G03X", arc.end.x);
    add("Y", arc.end.y);
    add("I", arc.center.x);
    add("J", arc.center.y);
    job.append("\r\n");
  }
  return job;
}

// Splits lines, converts two numbers each, keeps the extents of the end points.
Extents LeastReading(const std::string& job) {
  Extents extents;
  const char* line = job.data();
  const char* const end = line + job.size();
  while (line < end) {
    const void* feed = std::memchr(line, '\n', static_cast<std::size_t>(end - line));
    const char* const stop = feed ? static_cast<const char*>(feed) : end;
    if (stop - line > 4) {
      float x = 0;
      float y = 0;
      const auto read = std::from_chars(line + 4, stop, x);
      std::from_chars(read.ptr + 1, stop, y);
      extents.CheckExtents(x, y);
    }
    line = stop + 1;
  }
  return extents;
}

// Makes the chords of all arcs, and nothing else.
float LeastChords(const std::vector<ArcData>& arcs) {
  float sum = 0;
  for (const ArcData& arc : arcs) {
    const ArcPath path = ArcTo(arc.start, arc.end, arc.center, arc.clockwise);
    const float step = arc.clockwise ? -1.0F : 1.0F;
    for (float angle = path.startAngle; (path.endAngle - angle) * step >= 0; angle += step) {
      const double radians = angle * (3.14159265358979 / 180.0);
      sum += static_cast<float>(arc.center.x + std::cos(radians) * path.radius);
      sum += static_cast<float>(arc.center.y - std::sin(radians) * path.radius);
    }
    sum += arc.end.x + arc.end.y;
  }
  return sum;
}

void Measure(const std::string& job) {
  PassOptions options;
  options.viewer = Viewer::Preview;
  const GcodeProgram program = ReadProgram(job);
  benchmark::DoNotOptimize(GetExtents(program, options));
  benchmark::DoNotOptimize(MeasureDistances(program));
}

// Time of the processor, which other programs on the machine disturb least.
double Seconds(const auto& work) {
  const std::clock_t begin = std::clock();
  work();
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

// Runs both in turn, so that other load on the machine meets both, and reports the best of each.
void SideBySide(benchmark::State& state, const auto& ours, const auto& least, double limit) {
  double best = 1e9;
  double bestLeast = 1e9;
  for (auto _ : state) {
    bestLeast = std::min(bestLeast, Seconds(least));
    best = std::min(best, Seconds(ours));
  }
  state.counters["ours_ms"] = best * 1000;
  state.counters["least_ms"] = bestLeast * 1000;
  state.counters["ratio"] = best / bestLeast;
  state.counters["limit"] = limit;
}

class CountingCanvas : public platform::RecordingCanvas {
 public:
  std::size_t lines = 0;
  void Lines(const platform::Pen&, const platform::Segment*, std::size_t count) override { lines += count; }
};

double PeakMegabytes() {
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word) {
    if (word == "VmHWM:" && status >> word) return common::ParseNumber(word) / 1024.0;
  }
  return 0;
}

// A million arcs painted, their text in memory too. Runs first: the peak is that of the process.
void PaintArcs(benchmark::State& state) {
  for (auto _ : state) {
    const GcodeProgram program = ReadProgram(ArcJob(kStatements));
    CountingCanvas canvas;
    Surface surface;
    ShowFile(program, {}, surface, canvas);
    state.counters["chords"] = static_cast<double>(canvas.lines);
  }
  state.counters["peak_mb"] = PeakMegabytes();
}
BENCHMARK(PaintArcs)->Iterations(1)->Unit(benchmark::kMillisecond);

void ReadAndMeasure(benchmark::State& state) {
  const std::string job = MoveJob();
  SideBySide(
      state, [&] { Measure(job); }, [&] { benchmark::DoNotOptimize(LeastReading(job)); }, 2.0);
}
BENCHMARK(ReadAndMeasure)->Iterations(25)->Unit(benchmark::kMillisecond);

void ReadAndMeasureArcs(benchmark::State& state) {
  const std::string job = ArcJob(kArcs);
  const std::vector<ArcData> arcs = MakeArcs(kArcs);
  SideBySide(
      state, [&] { Measure(job); }, [&] { benchmark::DoNotOptimize(LeastChords(arcs)); }, 1.5);
}
BENCHMARK(ReadAndMeasureArcs)->Iterations(5)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morvane::gcode

BENCHMARK_MAIN();
