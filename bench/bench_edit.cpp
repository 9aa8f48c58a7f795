// From an edit in the editor's window to the painted drawing, in a job of 1001 lines, beside a bare full pass
// over the same job and its painting. At most 1.2 times that: an edit is not felt. The whole program runs,
// painted offscreen.
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <chrono>
#include <iostream>
#include <stdexcept>
#include <vector>

#include "app/Program.h"
#include "bench/BenchStation.h"
#include "platform/RecordingCanvas.h"
#include "platform/qt/QtCanvas.h"
#include "widgets/canvas/CanvasView.h"
#include "widgets/grid/CellGrid.h"

namespace morvane::bench {
namespace {

constexpr int kRounds = 40;
constexpr int kWarmUp = 4;
constexpr double kLimit = 1.2;
constexpr int kWidth = 1600;  // of the main window, pixels
constexpr int kHeight = 1000;
constexpr auto kLongestWait = std::chrono::seconds(10);
constexpr int kTwips = 15;  // to a pixel

// What the drawing takes to paint is over when its widget has painted.
class PaintCount : public QObject {
 public:
  int count = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

class Bench {
 public:
  Bench(BenchStation& station, const app::Program& program, QWidget& form)
      : station_(station),
        program_(program),
        form_(form),
        pic_(*form.findChild<widgets::CanvasView*>()),
        grid_(*form.findChild<widgets::CellGrid*>()),
        list_(*form.findChild<QListWidget*>("cmbLine")),
        pictures_(station.Files()) {
    pic_.installEventFilter(&paints_);
  }

  void Run() {
    std::cout << "job of " << program_.Context().job.LineCount() << " lines, drawing of " << pic_.width()
              << " x " << pic_.height() << ", medians of " << kRounds << ", limit " << kLimit << '\n';
    for (const int lines : {1, 100, list_.count()}) {
      Select(lines);
      const std::string what = std::to_string(lines) + " selected";
      int key = 0;
      Report(what + ", keys", [&] { Key(key++ % 2 == 0 ? Qt::Key_1 : Qt::Key_Backspace); });
      // The keys took each other back: one more leaves a step.
      Key(Qt::Key_2);
      int step = 0;
      Report(what + ", undo and redo",
             [&] { form_.findChild<QToolButton*>(step++ % 2 == 0 ? "cmdUndo" : "cmdRedo")->click(); });
    }
    Select(1);
    int row = 0;
    Report("another line in the list", [&] { list_.setCurrentRow(++row); });
    int step = 0;
    Report("Delete Line and undo", [&] {
      form_.findChild<QAbstractButton*>(step++ % 2 == 0 ? "cmdDeleteLine" : "cmdUndo")->click();
    });
  }

 private:
  using Clock = std::chrono::steady_clock;

  template <typename Work>
  static double Milliseconds(Work&& work) {
    const auto begin = Clock::now();
    work();
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
  }
  static double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + kRounds / 2, values.end());
    return values[kRounds / 2];
  }

  void WaitForPaint(int before) const {
    const auto begin = Clock::now();
    while (paints_.count == before) {
      QCoreApplication::processEvents();
      if (Clock::now() - begin > kLongestWait) throw std::runtime_error("nothing was painted");
    }
  }
  // The first lines, without a pass for each.
  void Select(int lines) {
    const int before = paints_.count;
    {
      const QSignalBlocker blocker(list_);
      list_.clearSelection();
      for (int row = 0; row + 1 < lines; ++row) list_.item(row)->setSelected(true);
    }
    list_.item(lines - 1)->setSelected(true);
    WaitForPaint(before);
    for (int row = 0; row < grid_.RowCount(); ++row) {
      if (grid_.CellText(row, 0) == "X pos") grid_.SetCurrentCell(row, 1, true);
    }
  }
  void Key(int key) const {
    const QString text = key == Qt::Key_Backspace ? QString() : QString(QChar(key));
    QLineEdit& box = grid_.Editors().TextBox();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, {}, text);
      QCoreApplication::sendEvent(&box, &event);
    }
  }
  void PassAndPaint() {
    const QSize size = pic_.size();
    platform::RecordingCanvas drawing;
    station_.Draw(program_.Context().job,
                  {static_cast<float>(size.width()), static_cast<float>(size.height())}, drawing);
    QPainter painter(&image_);
    platform::QtCanvas canvas(painter, {size, 1, Qt::black, platform::SmoothLines(drawing.Segments().size())},
                              pictures_);
    drawing.Replay(canvas);
  }

  // Each edit has its bare pass right behind it, so that other load on the machine meets both.
  template <typename Edit>
  void Report(const std::string& what, Edit&& edit) {
    image_ = QImage(pic_.size(), QImage::Format_RGB32);
    std::vector<double> edits, bares, ratios;
    for (int round = -kWarmUp; round < kRounds; ++round) {
      const int before = paints_.count;
      const double ours = Milliseconds([&] {
        edit();
        WaitForPaint(before);
      });
      const double bare = Milliseconds([&] { PassAndPaint(); });
      if (round < 0) continue;
      edits.push_back(ours);
      bares.push_back(bare);
      ratios.push_back(ours / bare);
    }
    const double ratio = Median(ratios);
    std::cout << what << ": " << Median(edits) << " ms, bare " << Median(bares) << " ms, ratio " << ratio
              << (ratio > kLimit ? "  OVER THE LIMIT" : "") << std::endl;
  }

  BenchStation& station_;
  const app::Program& program_;
  QWidget& form_;
  widgets::CanvasView& pic_;
  widgets::CellGrid& grid_;
  QListWidget& list_;
  platform::PictureStore pictures_;
  QImage image_;
  PaintCount paints_;
};

// The editor, as soon as it holds the job.
QWidget* Editor() {
  for (QWidget* widget : QApplication::allWidgets()) {
    const auto* list = widget->findChild<QListWidget*>("cmbLine");
    if (widget->objectName() == "frmEdit" && list != nullptr && list->count() > 0) return widget;
  }
  return nullptr;
}

}  // namespace
}  // namespace morvane::bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  morvane::bench::BenchStation station;
  station.SaveJob();
  station.Set("MainWidth", morvane::bench::kWidth * morvane::bench::kTwips);
  station.Set("MainHeight", morvane::bench::kHeight * morvane::bench::kTwips);
  morvane::app::Program program(station.Files().BaseDirectory(), station.Files().BaseDirectory());
  QTimer ready;
  QObject::connect(&ready, &QTimer::timeout, [&] {
    QWidget* editor = morvane::bench::Editor();
    if (editor == nullptr) return;
    ready.stop();
    morvane::bench::Bench(station, program, *editor).Run();
    QCoreApplication::exit();
  });
  ready.start(10);
  morvane::app::CommandLine line;
  line.splash = false;
  line.jobFile = "JOB.TJB";
  return program.Run(line);
}
