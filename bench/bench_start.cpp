// From the start of a process to its first painted window: the program with a job, splash left out,
// beside an empty window of the same toolkit. Each start is a process of its own, both kinds in turn. On
// a display where there is one; without, both are painted offscreen.
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QMainWindow>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "app/Program.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRounds = 15;
constexpr int kReport = 3;  // the descriptor on which a child says that it has painted

// Ends the process as soon as a window has painted itself.
class FirstPaint : public QObject {
 public:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint && object->isWidgetType() && !told_) {
      told_ = true;
      QTimer::singleShot(0, [] {
        const bool told = write(kReport, "!", 1) == 1;
        _exit(told ? 0 : 1);
      });
    }
    return false;
  }

 private:
  bool told_ = false;
};

int ShowProgram(int argc, char** argv) {
  QApplication application(argc, argv);
  FirstPaint paint;
  application.installEventFilter(&paint);
  const std::string base = argv[2];
  morvane::app::CommandLine line;
  line.splash = false;
  line.jobFile = "SAMPLE.TJB";
  morvane::app::Program program(base, base);
  return program.Run(line);
}

int ShowEmpty(int argc, char** argv) {
  QApplication application(argc, argv);
  FirstPaint paint;
  application.installEventFilter(&paint);
  QMainWindow window;
  window.resize(1000, 533);
  window.show();
  return QApplication::exec();
}

// Milliseconds until the child has painted.
double Start(const char* self, const char* kind, const std::string& base) {
  int ends[2];
  if (pipe(ends) != 0) return 0;
  const auto begin = Clock::now();
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], kReport);
    execl(self, self, kind, base.c_str(), nullptr);
    _exit(1);
  }
  close(ends[1]);
  char byte = 0;
  const bool painted = read(ends[0], &byte, 1) == 1;
  const double time = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
  close(ends[0]);
  waitpid(child, nullptr, 0);
  if (!painted) std::cerr << kind << " showed no window\n";
  return time;
}

double Median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

int Compare(const char* self) {
  const std::filesystem::path base = std::filesystem::temp_directory_path() / "morvane-bench-start";
  std::filesystem::remove_all(base);
  std::filesystem::copy(MORVANE_SOURCE_DIR "/station", base, std::filesystem::copy_options::recursive);
  std::vector<double> program;
  std::vector<double> empty;
  std::vector<double> ratios;
  for (int round = 0; round <= kRounds; ++round) {
    const double a = Start(self, "program", base.string());
    const double b = Start(self, "empty", base.string());
    if (round == 0) continue;  // fills the caches of disk and fonts
    program.push_back(a);
    empty.push_back(b);
    ratios.push_back(a / b);
  }
  std::filesystem::remove_all(base);
  std::cout << "start to first painted window, medians of " << kRounds << ": program " << Median(program)
            << " ms, empty window " << Median(empty) << " ms, ratio " << Median(ratios) << '\n';
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("DISPLAY")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const std::string kind = argc > 1 ? argv[1] : "";
  if (kind == "program") return ShowProgram(argc, argv);
  if (kind == "empty") return ShowEmpty(argc, argv);
  return Compare("/proc/self/exe");
}
