#include "platform/desktop/art/ico_file.h"

#include <QBuffer>
#include <QByteArray>
#include <QDataStream>

namespace ovindra::art {
namespace {

constexpr quint16 kIconType = 1;
constexpr quint32 kDirectorySize = 6;
constexpr quint32 kEntrySize = 16;
constexpr quint16 kColorPlanes = 1;
constexpr quint16 kBitsPerPixel = 32;

QByteArray AsPng(const QImage& picture) {
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  picture.convertToFormat(QImage::Format_ARGB32).save(&buffer, "PNG");
  return png;
}

// A side of 256 does not fit the byte and is written as 0.
quint8 SideByte(int side) {
  return static_cast<quint8>(side & 0xFF);
}

void WriteEntry(QDataStream& stream, const QImage& picture, quint32 size, quint32 offset) {
  constexpr quint8 kNoPalette = 0;
  constexpr quint8 kReserved = 0;
  stream << SideByte(picture.width()) << SideByte(picture.height()) << kNoPalette << kReserved << kColorPlanes
         << kBitsPerPixel << size << offset;
}

}  // namespace

bool WriteIco(QIODevice& device, const QList<QImage>& pictures) {
  QList<QByteArray> files;
  for (const QImage& picture : pictures) files.append(AsPng(picture));
  QDataStream stream(&device);
  stream.setByteOrder(QDataStream::LittleEndian);
  const auto count = static_cast<quint16>(pictures.size());
  stream << quint16{0} << kIconType << count;
  quint32 offset = kDirectorySize + kEntrySize * count;
  for (int i = 0; i < pictures.size(); ++i) {
    const auto size = static_cast<quint32>(files[i].size());
    WriteEntry(stream, pictures[i], size, offset);
    offset += size;
  }
  for (const QByteArray& file : files) stream.writeRawData(file.constData(), static_cast<int>(file.size()));
  return stream.status() == QDataStream::Ok;
}

}  // namespace ovindra::art
