#include "platform/qt/QtClipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

namespace morvane::test {
namespace {

TEST(Clipboard, TextComesBackAsItWas) {
  std::string every = "4,1,1\r\n";
  for (int code = 1; code < 256; ++code) every += static_cast<char>(code);
  platform::QtClipboard real;
  for (const std::string& text : {every, std::string()}) {
    real.SetText(text);
    EXPECT_EQ(real.Text(), text);
  }
  QGuiApplication::clipboard()->setText(QString::fromUtf8("\xE2\x82\xAC\xE4\xBD\xA0"));
  EXPECT_EQ(real.Text(), "\x80?");
  QGuiApplication::clipboard()->setImage(QImage(2, 2, QImage::Format_RGB32));
  EXPECT_EQ(real.Text(), "");
}

}  // namespace
}  // namespace morvane::test
