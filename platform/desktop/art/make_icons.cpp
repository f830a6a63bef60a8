// Writes key1.ico, key2.ico and key3.ico, the frames of the login window's key, into the folder given. Run by
// the build; exits with 1 and says why when a file can't be written.

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <cstdio>

#include "platform/desktop/art/ico_file.h"
#include "platform/desktop/art/key_frames.h"

namespace {

// Frames are shown 80 pixels wide; the last is for screens of double density.
constexpr int kSides[] = {16, 24, 32, 48, 64, 80, 160};

bool WriteFrame(const QDir& folder, int frame) {
  QFile file(folder.filePath(QString("key%1.ico").arg(frame)));
  QList<QImage> pictures;
  for (const int side : kSides) pictures.append(ovindra::art::KeyFrame(frame, side).toImage());
  if (file.open(QIODevice::WriteOnly) && ovindra::art::WriteIco(file, pictures) && file.flush()) return true;
  std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");  // a build machine has no screen
  const QGuiApplication app(argc, argv);
  if (argc != 2) {
    std::fputs("usage: ovindra-icons OUTPUT_DIR\n", stderr);
    return 1;
  }
  const QDir folder(argv[1]);
  for (int frame = 1; frame <= ovindra::art::kKeyFrames; ++frame) {
    if (!WriteFrame(folder, frame)) return 1;
  }
  return 0;
}
