// The editor's window: form_victim FOLDER LOG SEED SPEED. Keys and clicks come as from a user; time runs
// SPEED times as fast.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <random>

#include "platform/posix/PosixClock.h"
#include "support/qt_WindowStation.h"
#include "textjob/job/modTjb.h"
#include "textjob/ui/frmEdit.h"
#include "widgets/grid/CellGrid.h"

namespace morvane::test {
namespace {

constexpr const char* kVictimJob = "JOB.TJB";

// The editor that is driven. After a start it holds what was restored, else the saved job, if there is one.
class FormVictim {
 public:
  FormVictim(const std::string& folder, int speed) : speed_(speed), station_(folder) {
    Wait(0);
    station_.files.WriteStraight("FONT1.FNT", "");
    station_.prompts.answers = {platform::Answer::Yes};
    station_.Load();
    const bool restored = station_.windows.OfferRecovery();
    if (!restored && station_.files.FileExists(kVictimJob)) station_.windows.OpenJob(kVictimJob);
    form_ = &station_.Active<textjob::frmEdit>();
    station_.Frame().activateWindow();
    Wait(0);
    station_.prompts.answers.clear();
  }
  const textjob::TextJob& Job() const { return station_.job; }
  // Each is one change: what a killed program leaves was told before.
  void Change(const std::string& comment, std::size_t random) {
    QApplication::clipboard()->setText(QString::fromStdString(comment));
    const std::size_t lines = station_.job.LineCount();
    const std::size_t action = random % 4;
    if (action == 0 && lines < 200) return Click("cmdNewLine");
    if (action == 1 && lines > 1) return Select(0), Click("cmdDeleteLine");
    if (action == 2 && lines > 0) return Select(random / 4 % lines), PasteX();
    Comments().selectAll();
    Key(Qt::Key_V);
  }
  void Undo() { Key(Qt::Key_Z); }
  void Save() {
    station_.prompts.files = {{station_.base + '/' + kVictimJob}};
    Click("cmdSave");
  }
  double Seconds() const { return clock_.MonotonicSeconds() * speed_; }
  void Wait(int milliseconds) {
    clock_.Sleep(milliseconds / speed_);
    station_.clock.seconds = Seconds();
    WindowStation::Pump();
  }

 private:
  QLineEdit& Comments() { return Find<QLineEdit>(*form_, "txtComments"); }
  void Key(Qt::Key key) {
    Comments().setFocus();
    QTest::keyClick(&Comments(), key, Qt::ControlModifier);
  }
  void Select(std::size_t line) {
    Find<QListWidget>(*form_, "cmbLine").setCurrentRow(static_cast<int>(line));
  }
  void PasteX() {
    auto& grid = Find<widgets::CellGrid>(*form_, "PropertyGrid");
    for (int row = 0; row < grid.RowCount(); ++row) {
      if (grid.CellText(row, 0) == "X pos") grid.SetCurrentCell(row, 1, true);
    }
    QTest::keyClick(&grid.Editors().TextBox(), Qt::Key_V, Qt::ControlModifier);
  }
  void Click(const char* name) { QTest::mouseClick(&Find<QAbstractButton>(*form_, name), Qt::LeftButton); }

  int speed_;
  platform::PosixClock clock_;
  WindowStation station_;
  textjob::frmEdit* form_ = nullptr;
};

// Each line of the log: what, a comment, a hash of the whole job, the time in milliseconds. "start" and "now"
// tell what the job is; "save", "undo" and "change", which names the comment to come, what is about to
// happen. A line reaches the system at once, so a killed process leaves all of them.
void EditUntilKilled(FormVictim& victim, const std::string& logPath, unsigned seed) {
  std::mt19937 random(seed);
  std::ofstream log(logPath);
  const auto tell = [&](const char* what, const std::string& comment) {
    const std::size_t hash = std::hash<std::string>()(textjob::WriteTjb(victim.Job()));
    log << what << ' ' << comment << ' ' << hash << ' ' << std::llround(victim.Seconds() * 1000) << std::endl;
  };
  tell("start", "-");
  // Often, to be killed in a save; or hardly ever, so that much hangs on the copy.
  const std::size_t actions = seed % 2 == 0 ? 20 : 1000;
  for (unsigned number = 1;; ++number) {
    const std::string comment = std::to_string(seed) + '.' + std::to_string(number);
    const std::size_t action = random() % actions;
    tell(action == 0 ? "save" : action < 4 ? "undo" : "change", comment);
    if (action == 0) {
      victim.Save();
    } else if (action < 4) {
      victim.Undo();
    } else {
      victim.Change(comment, random());
    }
    tell("now", comment);
    victim.Wait(static_cast<int>(random() % 50));
  }
}

}  // namespace
}  // namespace morvane::test

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(count, arguments);
  const int speed = std::atoi(arguments[4]);
  morvane::test::FormVictim victim(arguments[1], speed);
  morvane::test::EditUntilKilled(victim, arguments[2], static_cast<unsigned>(std::atoi(arguments[3])));
}
