#include "platform/qt/QtText.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLocale>
#include <QWidget>

#include "platform/qt/QtLocale.h"
#include "platform/qt/QtSystem.h"

namespace morvane::test {
namespace {

TEST(QtText, EveryByteSurvivesTheRoundTrip) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  EXPECT_EQ(platform::FromQt(platform::ToQt(all)), all);
  EXPECT_EQ(platform::ToQt("\x80 \xE9"), QString::fromUtf8("\u20AC \u00E9"));
  EXPECT_EQ(platform::FromQt(QString::fromUtf8("\u4E2D")), "?");
}

TEST(QtLocale, NamesAndDatesAreTheLocales) {
  const platform::QtLocale german(QLocale("de_DE"));
  EXPECT_EQ(german.ShortDate({2026, 3, 9, 0, 0, 0}), "09.03.26");
  EXPECT_EQ(platform::QtLocale(QLocale("fr_FR")).MonthShortName(2), "f\xE9vr.");
  EXPECT_EQ(platform::QtLocale(QLocale::c()).MonthShortName(12), "Dec");
}

TEST(QtSystem, ClosesWindowsByTheirWholeTitle) {
  QWidget server;
  server.setWindowTitle("Morvane Data Server");
  server.show();
  EXPECT_FALSE(platform::CloseWindowByTitle("Morvane Data"));
  EXPECT_TRUE(server.isVisible());
  EXPECT_TRUE(platform::CloseWindowByTitle("Morvane Data Server"));
  EXPECT_FALSE(server.isVisible());
}

}  // namespace
}  // namespace morvane::test
