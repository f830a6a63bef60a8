// The pictures that leave the program as files, and those that are kept: a broken icon file, a key that
// doesn't turn, a ground that stays when the window or the theme changes.

#include <QBuffer>
#include <QDataStream>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <memory>

#include <gtest/gtest.h>

#include "platform/desktop/art/backdrop.h"
#include "platform/desktop/art/ico_file.h"
#include "platform/desktop/art/key_frames.h"

namespace ovindra::art {
namespace {

class Art : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "art_test";
    static char* argv[] = {name, nullptr};
    app_ = std::make_unique<QGuiApplication>(argc, argv);
  }

  // Qt's own statics are gone by the time that the program's would be.
  static void TearDownTestSuite() { app_.reset(); }

 private:
  inline static std::unique_ptr<QGuiApplication> app_;
};

QByteArray IcoOf(const QList<QImage>& pictures) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(WriteIco(buffer, pictures));
  return bytes;
}

// Reads the directory of an icon file and decodes the picture that each entry points to.
QList<QImage> PicturesIn(const QByteArray& bytes) {
  QDataStream stream(bytes);
  stream.setByteOrder(QDataStream::LittleEndian);
  quint16 reserved, type, count;
  stream >> reserved >> type >> count;
  EXPECT_EQ(reserved, 0);
  EXPECT_EQ(type, 1);
  QList<QImage> pictures;
  for (int i = 0; i < count; ++i) {
    quint8 width, height, colors, none;
    quint16 planes, bits;
    quint32 size, offset;
    stream >> width >> height >> colors >> none >> planes >> bits >> size >> offset;
    EXPECT_EQ(bits, 32);
    EXPECT_LE(qint64{offset} + size, bytes.size());
    const QImage picture = QImage::fromData(bytes.mid(offset, size), "PNG");
    EXPECT_EQ(picture.size(), QSize(width == 0 ? 256 : width, height == 0 ? 256 : height));
    pictures.append(picture);
  }
  return pictures;
}

TEST_F(Art, AnIconFileGivesBackEveryPicture) {
  QList<QImage> written;
  for (const int side : {16, 48, 64, 256}) {
    written.append(KeyFrame(2, side).toImage().convertToFormat(QImage::Format_ARGB32));
  }
  const QByteArray bytes = IcoOf(written);
  const QList<QImage> read = PicturesIn(bytes);
  ASSERT_EQ(read.size(), written.size());
  for (int i = 0; i < read.size(); ++i) EXPECT_EQ(read[i], written[i]) << written[i].width();

  if (!QImageReader::supportedImageFormats().contains("ico")) return;
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, "ico");
  EXPECT_EQ(reader.imageCount(), written.size());
  EXPECT_EQ(reader.read().convertToFormat(QImage::Format_ARGB32), written[0]);
}

TEST_F(Art, AnIconFileThatCantBeWrittenIsTold) {
  QBuffer closed;
  closed.open(QIODevice::ReadOnly);
  EXPECT_FALSE(WriteIco(closed, {KeyFrame(1, 16).toImage()}));
}

TEST_F(Art, TheKeyTurnsFromFrameToFrame) {
  const QImage frames[] = {KeyFrame(1, 64).toImage(), KeyFrame(2, 64).toImage(), KeyFrame(3, 64).toImage()};
  EXPECT_NE(frames[0], frames[1]);
  EXPECT_NE(frames[1], frames[2]);
  EXPECT_NE(frames[2], frames[0]);
  EXPECT_EQ(KeyFrame(1, 80, 2).size(), QSize(160, 160));
}

TEST_F(Art, TheGroundIsPaintedAnewForAnotherSizeScreenOrTheme) {
  Backdrop backdrop;
  const QSize size(400, 200);
  const qint64 first = backdrop.Picture(size, 1, false).cacheKey();
  EXPECT_EQ(backdrop.Picture(size, 1, false).cacheKey(), first);
  EXPECT_EQ(backdrop.Picture(size, 1.25, false).size(), QSize(500, 250));
  const QColor light = backdrop.Picture(size, 1, false).toImage().pixelColor(200, 5);
  const QColor dark = backdrop.Picture(size, 1, true).toImage().pixelColor(200, 5);
  EXPECT_GT(light.lightness(), dark.lightness());
  EXPECT_EQ(backdrop.Picture(QSize(300, 200), 1, true).size(), QSize(300, 200));
}

}  // namespace
}  // namespace ovindra::art
