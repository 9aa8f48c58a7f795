#include "platform/qt/QtClipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include "support/FakeClipboard.h"

namespace morvane::test {
namespace {

TEST(Clipboard, TextComesBackAsItWas) {
  std::string every = "4,1,1\r\n";
  for (int code = 1; code < 256; ++code) every += static_cast<char>(code);
  FakeClipboard fake;
  platform::QtClipboard real;
  for (platform::Clipboard* clipboard : std::initializer_list<platform::Clipboard*>{&fake, &real}) {
    for (const std::string& text : {every, std::string("4,2,2\r\n"), std::string()}) {
      clipboard->SetText(text);
      EXPECT_EQ(clipboard->Text(), text);
    }
  }
  QGuiApplication::clipboard()->setText(QString::fromUtf8("\xE2\x82\xAC\xE4\xBD\xA0"));
  EXPECT_EQ(real.Text(), "\x80?");
  QGuiApplication::clipboard()->setImage(QImage(2, 2, QImage::Format_RGB32));
  EXPECT_EQ(real.Text(), "");
}

}  // namespace
}  // namespace morvane::test
