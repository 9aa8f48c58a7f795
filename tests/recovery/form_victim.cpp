// The editor's window: form_victim FOLDER LOG SEED SPEED. Keys and clicks come as from a user; time runs
// SPEED times as fast.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <cstdlib>

#include "platform/posix/PosixClock.h"
#include "recovery/EditUntilKilled.h"
#include "support/qt_WindowStation.h"
#include "textjob/frmEdit.h"
#include "widgets/CellGrid.h"

namespace morvane::test {
namespace {

class FormVictim : public Victim {
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
  const textjob::TextJob& Job() const override { return station_.job; }
  // Each is one change: what a killed program leaves was told before.
  void Change(const std::string& comment, std::size_t random) override {
    QApplication::clipboard()->setText(QString::fromStdString(comment));
    const std::size_t lines = station_.job.LineCount();
    const std::size_t action = random % 4;
    if (action == 0 && lines < 200) return Click("cmdNewLine");
    if (action == 1 && lines > 1) return Select(0), Click("cmdDeleteLine");
    if (action == 2 && lines > 0) return Select(random / 4 % lines), PasteX();
    Comments().selectAll();
    Key(Qt::Key_V);
  }
  void Undo() override { Key(Qt::Key_Z); }
  void Save() override {
    station_.prompts.files = {{station_.base + '/' + kVictimJob}};
    Click("cmdSave");
  }
  double Seconds() const override { return clock_.MonotonicSeconds() * speed_; }
  void Wait(int milliseconds) override {
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

}  // namespace
}  // namespace morvane::test

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(count, arguments);
  const int speed = std::atoi(arguments[4]);
  morvane::test::FormVictim victim(arguments[1], speed);
  morvane::test::EditUntilKilled(victim, arguments[2], static_cast<unsigned>(std::atoi(arguments[3])));
}
