// A base directory on the disk, everything that a window needs, and the frame over it. The user and the
// side programs follow scripts, and waits run events without taking time.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QCoreApplication>
#include <QTest>
#include <memory>
#include <string>

#include "app/AppWindows.h"
#include "app/frame/frmMain.h"
#include "common/RunAndWait.h"
#include "common/Settings.h"
#include "common/files/FileDialogs.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "fonts/GlyphCache.h"
#include "link/modComm.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/PosixSystemInfo.h"
#include "platform/qt/Operations.h"
#include "platform/qt/PictureStore.h"
#include "support/FakeClipboard.h"
#include "support/FakeClock.h"
#include "support/FakeLinks.h"
#include "support/FakeLocale.h"
#include "support/FakeProcesses.h"
#include "support/FakePrompts.h"
#include "support/FakeWaitWindow.h"
#include "support/TempFolder.h"
#include "textjob/job/RecoveryCopy.h"
#include "textjob/job/TextJob.h"
#include "textjob/preview/PreviewState.h"
#include "textjob/preview/ViewOptions.h"

namespace morvane::test {

// The control of that name; fails the test when there is none.
template <typename T>
T& Find(const QObject& parent, const char* name) {
  T* found = parent.findChild<T*>(name);
  if (found == nullptr) throw std::runtime_error(std::string("no control named ") + name);
  return *found;
}

// The real disk, until it is told to be full.
class FillableDisk : public platform::PosixFileSystem {
 public:
  bool full = false;

  std::unique_ptr<platform::OutputFile> CreateNew(const std::string& path, const std::string& permissionsLike,
                                                  platform::Error& error) override {
    if (!full) return PosixFileSystem::CreateNew(path, permissionsLike, error);
    error = platform::Error::DiskFull;
    return nullptr;
  }
};

class WindowStation {
 public:
  // `base`: a base directory that outlives the station, instead of its own folder.
  explicit WindowStation(const std::string& base = {});
  ~WindowStation();

  // Makes the frame and goes through its loading, as the program does.
  app::frmMain& Load();
  app::frmMain& Frame() { return *frame_; }
  QAction& Entry(const char* name) { return *frame_->Entry(name); }
  // The form of that name in the active child window.
  template <typename T>
  T& Active() {
    T* form = qobject_cast<T*>(frame_->ActiveForm());
    if (form == nullptr) throw std::runtime_error("another form is active");
    return *form;
  }

  void Set(const std::string& key, const std::string& value) {
    settings.SaveSetting(common::kSettingsSection, key, value);
  }
  std::string Get(const std::string& key) { return settings.GetSetting(common::kSettingsSection, key, ""); }
  // Lets everything that waits in the event queue happen.
  static void Pump();

  TempFolder folder;
  const std::string base;
  FillableDisk fileSystem;
  platform::PosixSystemInfo systemInfo;
  FakeProcesses processes;
  FakePrompts prompts;
  FakeLocale locale;
  FakeClock clock;
  FakeWaitWindow waitWindow;
  bool abort = false;
  bool developer = false;
  platform::Operations operations{abort};
  common::Files files{fileSystem, base};
  common::Settings settings{files};
  common::ProcessRunner runner{processes, clock, files, base, abort};
  common::DialogFolders folders;
  common::FileDialogs dialogs{prompts, files, folders};
  FakeClipboard clipboard;
  platform::PictureStore pictures{files};
  context::StatusPanels panels;
  FakeController controller{clock};
  FakeSerialPort serial{controller};
  FakeTcpClient tcp{controller};
  link::Comm comm{{files, settings, clock, prompts, waitWindow, panels, serial, tcp, abort}};
  textjob::ViewOptions viewOptions;
  textjob::TextJob job;
  textjob::PreviewState previewState;
  textjob::RecoveryCopy recovery{files, clock, prompts};
  fonts::FontTable font;
  fonts::GlyphCache glyphs{font};
  app::AppWindows windows{context};
  context::AppContext context;

 private:
  std::unique_ptr<app::frmMain> frame_;
};

}  // namespace morvane::test
