#include "support/qt_WindowStation.h"

namespace morvane::test {

WindowStation::WindowStation(const std::string& baseDirectory)
    : base(baseDirectory.empty() ? folder.Path() : baseDirectory),
      context{.files = files,
              .settings = settings,
              .processes = runner,
              .clock = clock,
              .locale = locale,
              .systemInfo = systemInfo,
              .prompts = prompts,
              .fileDialogs = dialogs,
              .clipboard = clipboard,
              .waitWindow = waitWindow,
              .progress = panels,
              .operations = operations,
              .comm = comm,
              .pictures = pictures,
              .statusPanels = panels,
              .viewOptions = viewOptions,
              .job = job,
              .previewState = previewState,
              .recovery = recovery,
              .font = font,
              .glyphs = glyphs,
              .windows = windows,
              .abortTransfers = abort,
              .developerMode = developer} {
  clock.onWait = [this](int) {
    const platform::Operations::Scope scope(operations);
    serial.Pump();
    tcp.Pump();
    QCoreApplication::processEvents();
  };
}

WindowStation::~WindowStation() = default;

app::frmMain& WindowStation::Load() {
  frame_ = std::make_unique<app::frmMain>(context, windows);
  windows.SetFrame(frame_.get());
  frame_->MDIForm_Load();
  frame_->show();
  Pump();
  return *frame_;
}

void WindowStation::Pump() {
  for (int round = 0; round < 5; ++round) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

}  // namespace morvane::test
