#include "app/Version.h"

namespace morvane::app {

QString VersionText() {
  return QStringLiteral(MORVANE_VERSION);
}

QString MainCaption() {
  return QString(kTitle) + " V" + VersionText();
}

QString BuildDate() {
  return QStringLiteral(MORVANE_BUILD_DATE);
}

}  // namespace morvane::app
