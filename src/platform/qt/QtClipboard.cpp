#include "platform/qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "platform/qt/QtText.h"

namespace morvane::platform {

std::string QtClipboard::Text() const {
  return FromQt(QGuiApplication::clipboard()->text());
}

void QtClipboard::SetText(std::string_view text) {
  QGuiApplication::clipboard()->setText(ToQt(text));
}

}  // namespace morvane::platform
