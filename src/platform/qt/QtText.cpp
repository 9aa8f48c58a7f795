#include "platform/qt/QtText.h"

#include "common/text/Text.h"

namespace morvane::platform {

QString ToQt(std::string_view text) {
  return QString::fromStdString(common::ToUtf8(text));
}

std::string FromQt(const QString& text) {
  return common::FromUtf8(text.toStdString());
}

QString PathToQt(std::string_view nativePath) {
  return QString::fromUtf8(nativePath.data(), static_cast<qsizetype>(nativePath.size()));
}

std::string PathFromQt(const QString& nativePath) {
  return nativePath.toStdString();
}

}  // namespace morvane::platform
