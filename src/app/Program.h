// The running program: makes what the process has one of, and goes through start and end.
#pragma once

#include <memory>
#include <string>

#include "app/AppWindows.h"
#include "app/CommandLine.h"
#include "app/FailureNet.h"
#include "common/RunAndWait.h"
#include "common/Settings.h"
#include "common/files/FileDialogs.h"
#include "common/files/Files.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "fonts/GlyphCache.h"
#include "link/modComm.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixPerUserStore.h"
#include "platform/posix/PosixProcesses.h"
#include "platform/posix/PosixSystemInfo.h"
#include "platform/qt/Operations.h"
#include "platform/qt/PictureStore.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtLocale.h"
#include "platform/qt/QtSerialPort.h"
#include "platform/qt/QtTcpClient.h"
#include "textjob/job/RecoveryCopy.h"
#include "textjob/job/TextJob.h"
#include "textjob/preview/PreviewState.h"
#include "textjob/preview/ViewOptions.h"
#include "widgets/prompts/QtPrompts.h"
#include "widgets/prompts/QtWaitWindow.h"

namespace morvane::app {

class frmMain;

class Program {
 public:
  // Native directories: of the program's own files, and where its user's files lie.
  Program(const std::string& programDirectory, const std::string& baseDirectory);
  ~Program();

  // From start to end; the process's exit status.
  int Run(const CommandLine& line);
  void TellFailure(const std::string& description) { net_.Tell(description); }

  // For programs that drive its windows and look at what comes of it.
  const context::AppContext& Context() const { return context_; }

 private:
  void Start(const CommandLine& line);
  void PrepareSettings();
  // Native path of the job on the command line; empty without one.
  std::string JobArgument(const QString& file) const;
  // What stands beside the file list of an open dialog for G-code jobs.
  QWidget* PreviewPanel(QFileDialog& dialog);

  bool abortTransfers_ = false;
  bool developerMode_ = false;
  std::string programDirectory_;
  platform::PosixFileSystem fileSystem_;
  platform::PosixProcesses processes_;
  platform::PosixSystemInfo systemInfo_;
  platform::PosixPerUserStore userStore_;
  platform::Operations operations_;
  platform::QtClock clock_;
  platform::QtLocale locale_;
  common::Files files_;
  common::Settings settings_;
  common::ProcessRunner processRunner_;
  platform::PictureStore pictures_;
  widgets::QtPrompts prompts_;
  common::DialogFolders dialogFolders_;
  common::FileDialogs fileDialogs_;
  platform::QtClipboard clipboard_;
  context::StatusPanels statusPanels_;
  FailureNet net_{prompts_, statusPanels_};
  textjob::ViewOptions viewOptions_;
  textjob::TextJob job_;
  textjob::PreviewState previewState_;
  textjob::RecoveryCopy recovery_{files_, clock_, prompts_};
  fonts::FontTable font_;
  fonts::GlyphCache glyphs_{font_};
  AppWindows windows_;
  widgets::QtWaitWindow waitWindow_;
  platform::QtSerialPort serial_;
  platform::QtTcpClient tcp_;
  link::Comm comm_;
  context::AppContext context_;
  std::unique_ptr<frmMain> frame_;
};

}  // namespace morvane::app
