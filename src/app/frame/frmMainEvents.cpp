// Start, end, size and drops of the main window.
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMdiArea>
#include <QMimeData>
#include <QScreen>

#include "app/AppWindows.h"
#include "app/frame/MainGeometry.h"
#include "app/frame/MdiChild.h"
#include "app/frame/frmMain.h"
#include "app/menu/MenuActions.h"
#include "common/Attempt.h"
#include "common/Settings.h"
#include "common/files/Files.h"
#include "common/text/Numbers.h"
#include "context/AppContext.h"
#include "platform/Prompts.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtText.h"
#include "textjob/preview/ViewSettings.h"

namespace morvane::app {
namespace {

constexpr int kTitleBar = 40;  // pixels, at most; by it a window can be taken

// The screen that shows the window's top; null when none does.
const QScreen* ScreenOf(const QRect& place) {
  const QRect top = place.adjusted(0, 0, 0, kTitleBar - place.height());
  for (const QScreen* screen : QGuiApplication::screens()) {
    if (screen->availableGeometry().intersects(top)) return screen;
  }
  return nullptr;
}

// A window that lies on no screen (one that has been unplugged) comes up on the first one, and one that is
// larger than its screen (as one that was replaced) fills it.
QRect OnScreen(QRect place) {
  const QScreen* screen = ScreenOf(place);
  const QRect room = (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
  if (screen == nullptr) place.moveTo(room.topLeft());
  const QSize most(room.width(), room.height() - kTitleBar);
  const QSize size = place.size().boundedTo(most).expandedTo(ToPixels(MainGeometry()).size());
  if (size.width() != place.width()) place.moveLeft(room.left());
  if (size.height() != place.height()) place.moveTop(room.top());
  place.setSize(size);
  return place;
}

std::vector<QString> LocalFiles(const QMimeData& data) {
  std::vector<QString> files;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) files.push_back(url.toLocalFile());
  }
  return files;
}

}  // namespace

void frmMain::ReadGeometryAndMarks() {
  MainGeometry geometry;
  common::Attempt(context_.prompts, "MDIForm_Load", [&] { geometry = ReadGeometry(context_.settings); });
  context_.viewOptions = textjob::ReadViewOptions(context_.settings.Read());
  ShowViewMarks();
  HoldMinimumSize();
  const QRect place = OnScreen(ToPixels(geometry));
  resize(place.size());
  move(place.topLeft());
}

void frmMain::HoldMinimumSize() {
  const bool normal =
      (windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
  const MainGeometry least;
  setMinimumSize(normal ? ToPixels(least).size() : QSize(0, 0));
}

void frmMain::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) HoldMinimumSize();
  if (event->type() == QEvent::PaletteChange) area_->setBackground(palette().brush(QPalette::Dark));
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (context_.operations.Running()) {
    // The operation sees the abort flag at its next wait; the rest of the way out follows then.
    context_.operations.Quit();
    setEnabled(false);
    context_.operations.WhenIdle([this] {
      setEnabled(true);
      close();
    });
    event->ignore();
    return;
  }
  context_.operations.Quit();
  if (!UnloadForms()) {
    context_.operations.CancelQuit();
    event->ignore();
    return;
  }
  WriteGeometryAndMarks();
  context_.files.ClearTemp();
  event->accept();
  emit Unloaded();
}

bool frmMain::UnloadForms() {
  for (QMdiSubWindow* child : area_->subWindowList(QMdiArea::CreationOrder)) {
    if (!child->isHidden() && !child->close()) return false;
  }
  return true;
}

void frmMain::WriteGeometryAndMarks() {
  std::vector<common::SettingChange> changes;
  const auto add = [&](const char* key, std::string value) {
    changes.push_back({std::string(common::kSettingsSection), key, std::move(value)});
  };
  if (!isMinimized()) {
    const MainGeometry geometry = ToTwips(QRect(pos(), size()));
    add("MainLeft", common::PlainNumber(geometry.left));
    add("MainTop", common::PlainNumber(geometry.top));
    add("MainWidth", common::PlainNumber(geometry.width));
    add("MainHeight", common::PlainNumber(geometry.height));
  }
  for (common::SettingChange& change : textjob::ViewOptionChanges(context_.viewOptions)) {
    changes.push_back(std::move(change));
  }
  // Nobody is left to do anything about a failure, and the old settings are whole.
  common::Quietly([&] { context_.settings.Apply(changes); });
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
  if (!LocalFiles(*event->mimeData()).empty()) event->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent* event) {
  const std::vector<QString> files = LocalFiles(*event->mimeData());
  event->acceptProposedAction();
  // The source of the drag waits for this event, so the files are opened after it.
  QMetaObject::invokeMethod(
      this,
      [this, files] {
        for (const QString& file : files) windows_.OpenFile(platform::PathFromQt(file));
      },
      Qt::QueuedConnection);
}

}  // namespace morvane::app
