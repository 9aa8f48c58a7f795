#include "app/Program.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

#include "app/StartSettings.h"
#include "app/frame/frmMain.h"
#include "app/frmSplash.h"
#include "common/Attempt.h"
#include "common/ImportSettings.h"
#include "gcode/ui/frmPreview.h"
#include "platform/posix/PosixPaths.h"
#include "platform/qt/QtSystem.h"
#include "platform/qt/QtText.h"

namespace morvane::app {
namespace {

constexpr int kJobAfter = 10;  // milliseconds after the window was shown

}  // namespace

Program::Program(const std::string& programDirectory, const std::string& baseDirectory)
    : programDirectory_(programDirectory),
      userStore_(fileSystem_, platform::UserConfigDirectory()),
      operations_(abortTransfers_),
      clock_(operations_),
      files_(fileSystem_, baseDirectory),
      settings_(files_),
      processRunner_{processes_, clock_, files_, programDirectory, abortTransfers_},
      pictures_(files_),
      prompts_(operations_),
      fileDialogs_(prompts_, files_, dialogFolders_),
      windows_(context_),
      waitWindow_(windows_),
      serial_(settings_),
      comm_(
          {files_, settings_, clock_, prompts_, waitWindow_, statusPanels_, serial_, tcp_, abortTransfers_}),
      context_{.files = files_,
               .settings = settings_,
               .processes = processRunner_,
               .clock = clock_,
               .locale = locale_,
               .systemInfo = systemInfo_,
               .prompts = prompts_,
               .fileDialogs = fileDialogs_,
               .clipboard = clipboard_,
               .waitWindow = waitWindow_,
               .progress = statusPanels_,
               .operations = operations_,
               .comm = comm_,
               .pictures = pictures_,
               .statusPanels = statusPanels_,
               .viewOptions = viewOptions_,
               .job = job_,
               .previewState = previewState_,
               .recovery = recovery_,
               .font = font_,
               .glyphs = glyphs_,
               .windows = windows_,
               .abortTransfers = abortTransfers_,
               .developerMode = developerMode_} {
  prompts_.SetStation(platform::PathToQt(baseDirectory));
  prompts_.SetSidePanel("job", [this](QFileDialog& dialog) { return PreviewPanel(dialog); });
}

Program::~Program() = default;

QWidget* Program::PreviewPanel(QFileDialog& dialog) {
  auto* panel = new gcode::frmPreview(context_, &dialog);
  const auto show = [this, panel](const QString& path) {
    const bool file = QFileInfo(path).isFile();
    panel->ShowFile(file ? files_.ProgramName(platform::PathFromQt(path)) : std::string());
  };
  QObject::connect(&dialog, &QFileDialog::currentChanged, panel, show);
  // A typed name selects the file in the list without making it current.
  if (const auto* name = dialog.findChild<QLineEdit*>("fileNameEdit")) {
    QObject::connect(name, &QLineEdit::textEdited, panel,
                     [&dialog, show](const QString& text) { show(dialog.directory().filePath(text)); });
  }
  return panel;
}

int Program::Run(const CommandLine& line) {
  const platform::SingleInstance instance(files_.BaseDirectory());
  if (!instance.First()) return 0;
  PrepareSettings();
  developerMode_ = line.developer || userStore_.Get("Settings", "Developer", "0") == "1";
  Start(line);
  return QCoreApplication::exec();
}

// Settings that cannot be written stay as they are; every reader has its default.
void Program::PrepareSettings() {
  files_.ClearLeftovers();
  common::Quietly([this] {
    common::ImportSettings(userStore_, settings_);
    WriteColorDefaults(settings_);
  });
}

// The working directory comes first, as a shell's user expects, then the base directory.
std::string Program::JobArgument(const QString& file) const {
  if (file.isEmpty()) return {};
  const QFileInfo here(file);
  if (here.exists()) return platform::PathFromQt(here.absoluteFilePath());
  return files_.Resolve(platform::FromQt(file));
}

void Program::Start(const CommandLine& line) {
  std::unique_ptr<frmSplash> splash;
  if (line.splash && !developerMode_) {
    splash = std::make_unique<frmSplash>();
    splash->show();
    clock_.Sleep(kSplashTime);
  }
  const std::string job = JobArgument(line.jobFile);
  QDir::setCurrent(platform::PathToQt(files_.BaseDirectory()));
  frame_ = std::make_unique<frmMain>(context_, windows_);
  windows_.SetFrame(frame_.get());
  QObject::connect(frame_.get(), &frmMain::Unloaded, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
  frame_->MDIForm_Load();
  splash.reset();
  frame_->show();
  // The window stands before the job is drawn, which may take side programs and their waits.
  QTimer::singleShot(kJobAfter, frame_.get(), [this, job] {
    if (!windows_.OfferRecovery() && !job.empty()) windows_.OpenFile(job);
  });
}

}  // namespace morvane::app
