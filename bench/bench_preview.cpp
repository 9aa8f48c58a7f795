// A full pass over a large job beside the least work that could do: the same points put through one
// affine transform and emitted from a flat array; and painted beside the same segments in one batch.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <chrono>

#include "bench/BenchStation.h"
#include "platform/RecordingCanvas.h"
#include "platform/qt/PictureStore.h"
#include "platform/qt/QtCanvas.h"

namespace morvane::bench {
namespace {

using platform::Segment;

// Counts, and looks at each segment once, as any consumer does.
class CountingCanvas : public platform::Canvas {
 public:
  void Clear() override { count = 0; }
  void SetScale(const platform::CanvasView&) override {}
  void Lines(const platform::Pen&, const Segment* segments, std::size_t n) override {
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

struct Affine {
  double xx, xy, x, yx, yy, y;

  Segment operator()(const Segment& s) const {
    return {static_cast<float>(s.x1 * xx + s.y1 * xy + x), static_cast<float>(s.x1 * yx + s.y1 * yy + y),
            static_cast<float>(s.x2 * xx + s.y2 * xy + x), static_cast<float>(s.x2 * yx + s.y2 * yy + y)};
  }
};

void EmitFlat(const std::vector<Segment>& source, const Affine& matrix, platform::Canvas& canvas) {
  constexpr std::size_t kBatch = 4096;
  std::vector<Segment> out(kBatch);
  for (std::size_t from = 0; from < source.size(); from += kBatch) {
    const std::size_t count = std::min(kBatch, source.size() - from);
    for (std::size_t i = 0; i < count; ++i) out[i] = matrix(source[from + i]);
    canvas.Lines({}, out.data(), count);
  }
}

using Seconds = std::chrono::duration<double>;

// Runs both in turn in each round, so that the ratio holds when the machine's speed drifts.
template <typename Work, typename Least>
void Compare(benchmark::State& state, Work&& work, Least&& least) {
  using Clock = std::chrono::steady_clock;
  double workTime = 0;
  double leastTime = 0;
  for (auto _ : state) {
    const auto begin = Clock::now();
    work();
    const auto middle = Clock::now();
    least();
    leastTime += Seconds(Clock::now() - middle).count();
    workTime += Seconds(middle - begin).count();
  }
  const auto rounds = static_cast<double>(state.iterations());
  state.counters["work_ms"] = workTime / rounds * 1e3;
  state.counters["least_ms"] = leastTime / rounds * 1e3;
  state.counters["ratio"] = workTime / leastTime;
}

void BM_FullPass(benchmark::State& state) {
  BenchStation station;
  platform::RecordingCanvas drawing;
  station.Draw(drawing);
  CountingCanvas pass;
  CountingCanvas flat;
  Compare(
      state, [&] { station.Draw(pass); },
      [&] {
        EmitFlat(drawing.Segments(), {0.9, 0.1, 3, -0.1, 0.9, 2}, flat);
      });
  benchmark::DoNotOptimize(pass.sum + flat.sum);
  state.counters["segments"] = static_cast<double>(drawing.Segments().size());
}
BENCHMARK(BM_FullPass)->Unit(benchmark::kMillisecond)->MinTime(2);

void BM_Painted(benchmark::State& state) {
  BenchStation station;
  const auto width = static_cast<int>(state.range(0));
  station.Set("LineWidth", width);
  platform::RecordingCanvas drawing;
  station.Draw(drawing);

  QImage image(1600, 1000, QImage::Format_RGB32);
  platform::PictureStore pictures(station.Files());
  std::vector<QLineF> lines;
  const double scale = 1600 / double{drawing.View()->Width};
  for (const Segment& s : drawing.Segments())
    lines.emplace_back(s.x1 * scale, s.y1 * scale, s.x2 * scale, s.y2 * scale);
  Compare(
      state,
      [&] {
        station.Draw(drawing);
        QPainter painter(&image);
        platform::QtCanvas canvas(painter, {image.size(), 1, Qt::black}, pictures);
        canvas.Clear();
        drawing.Replay(canvas);
      },
      [&] {
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setPen(QPen(Qt::cyan, width));
        painter.drawLines(lines.data(), static_cast<int>(lines.size()));
      });
}
BENCHMARK(BM_Painted)->Unit(benchmark::kMillisecond)->Arg(1)->Arg(2)->MinTime(4);

}  // namespace
}  // namespace morvane::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
