#include "platform/qt/QtSystem.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QGuiApplication>
#include <QWindow>

#include "platform/qt/QtText.h"
#include "platform/qt/X11Windows.h"

namespace morvane::platform {

SingleInstance::SingleInstance(const std::string& baseDirectory) {
  const QFileInfo directory(PathToQt(baseDirectory));
  const QString path = directory.exists() ? directory.canonicalFilePath() : directory.absoluteFilePath();
  const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256);
  server_.setSocketOptions(QLocalServer::AbstractNamespaceOption);
  server_.listen("morvane-" + QString::fromLatin1(hash.toHex().left(32)));
}

bool CloseWindowByTitle(const std::string& title) {
  const QString wanted = ToQt(title);
  bool found = false;
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    if (window->title() != wanted || !window->isVisible()) continue;
    found = true;
    window->close();
  }
  return CloseX11Windows(wanted) || found;
}

}  // namespace morvane::platform
