#include "platform/qt/QtCanvas.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <QPixmap>
#include <cmath>
#include <limits>

#include "common/files/Files.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/qt/PictureStore.h"
#include "support/TempFolder.h"

namespace morvane::test {
namespace {

constexpr platform::Color kRed = 255;
constexpr platform::Color kBlue = 255 * 65536;

class QtCanvasTest : public ::testing::Test {
 protected:
  // A surface of 100 by 50 pen pixels that shows the world from (0, 0) to (10, 5).
  QImage Paint(double ratio, const std::function<void(platform::Canvas&)>& draw) {
    QImage image(QSize(100, 50) * ratio, QImage::Format_RGB32);
    QPainter painter(&image);
    platform::QtCanvas canvas(painter, {image.size(), ratio, Qt::white, 0}, pictures_);
    canvas.Clear();
    canvas.SetScale({0, 0, 10, 5});
    draw(canvas);
    return image;
  }
  static int Count(const QImage& image, const QRect& where, QColor color) {
    int count = 0;
    for (int y = where.top(); y <= where.bottom(); ++y) {
      for (int x = where.left(); x <= where.right(); ++x) count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
  }

  TempFolder folder_;
  platform::PosixFileSystem fileSystem_;
  common::Files files_{fileSystem_, folder_.Path()};
  platform::PictureStore pictures_{files_};
};

TEST_F(QtCanvasTest, PensAreAsWideAsToldOnEveryScreen) {
  for (const double ratio : {1.0, 1.5, 2.0}) {
    for (const int width : {1, 2, 4}) {
      const QImage image = Paint(ratio, [&](platform::Canvas& canvas) {
        canvas.Line({kRed, width}, {1, 2.5F, 9, 2.5F});
      });
      const QRect column(qRound(50 * ratio), 0, 1, image.height());
      EXPECT_NEAR(Count(image, column, Qt::red), width * ratio, 0.51) << ratio << " " << width;
      const QRect outside(0, 0, qRound(8 * ratio), image.height());
      EXPECT_EQ(Count(image, outside, Qt::red), 0);
    }
  }
}

TEST_F(QtCanvasTest, WhatNoScreenCanHoldDoesNoHarm) {
  constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
  constexpr float kHuge = 1e30F;
  const QImage image = Paint(1, [&](platform::Canvas& canvas) {
    canvas.Line({kRed, 1}, {-kHuge, 2.5F, kHuge, 2.5F});
    canvas.Line({kBlue, 1}, {kNan, 1, 5, kNan});
    canvas.Circle(5, 2, kHuge, {kBlue, 1});
    canvas.Circle(kNan, 2, 1, {kBlue, 1});
    canvas.Box({kNan, 0, 1, 1}, kBlue, true);
    canvas.Text(kHuge, 0, "far", kBlue, {});
    canvas.Text(0, 4.9F, std::string(1, '\0'), kBlue, {"", kHuge, kHuge, false});
    canvas.Image("NONE.BMP", {0, 0, kHuge, kHuge});
    canvas.SetScale({0, 0, 0, 0});
    canvas.Line({kBlue, 1}, {1, 1, 2, 2});
  });
  EXPECT_EQ(Count(image, QRect(0, 24, 100, 2), Qt::red), 100);
  EXPECT_EQ(Count(image, image.rect(), Qt::blue), 0);
}

TEST_F(QtCanvasTest, CirclesTextAndLargeCirclesLieWhereTold) {
  const QImage image = Paint(1, [](platform::Canvas& canvas) {
    canvas.Circle(2, 2, 1, {kRed, 1});
    canvas.Circle(5, 1004, 1000, {kBlue, 1});  // its top at (5, 4)
    canvas.Text(6, 1, "T", kRed, {"", 2, 0, false});
  });
  EXPECT_GT(Count(image, QRect(29, 15, 3, 10), Qt::red), 0);
  EXPECT_EQ(Count(image, QRect(14, 14, 12, 12), Qt::red), 0);
  EXPECT_GT(Count(image, QRect(45, 39, 10, 3), Qt::blue), 8);
  EXPECT_GT(Count(image, QRect(60, 10, 20, 20), Qt::red), 10);
}

TEST_F(QtCanvasTest, PicturesAreKnownByTheirContentAndReadAnewWhenTheyChange) {
  QImage half(4, 1, QImage::Format_RGB32);
  half.fill(Qt::red);
  const auto encoded = [&](const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    half.save(&buffer, format);
    return bytes.toStdString();
  };
  const char kGif[] = "GIF89a\1\0\1\0\200\0\0\377\0\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;";
  for (const std::string& bytes :
       {encoded("BMP"), encoded("JPG"), encoded("ICO"), std::string(kGif, sizeof kGif - 1)}) {
    folder_.Write("PART.WMF", bytes);  // the name lies
    const QImage image = Paint(1, [](platform::Canvas& canvas) { canvas.Image("part.wmf", {2, 1, 4, 2}); });
    const QColor inside = image.pixelColor(40, 20);
    EXPECT_TRUE(inside.red() > 240 && inside.green() < 16 && inside.blue() < 16) << bytes.substr(0, 4);
    EXPECT_EQ(image.pixelColor(15, 20), QColor(Qt::white));
  }
}

}  // namespace
}  // namespace morvane::test
