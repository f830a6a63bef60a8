#include "platform/desktop/services/documents.h"

#include <QDir>
#include <QStandardPaths>

namespace ovindra::desktop {

QString DocumentsFolder() {
  QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  QDir().mkpath(folder);
  return folder;
}

QString FreshDocument(const QString& name, const QString& extension) {
  const QDir documents(DocumentsFolder());
  QString file = name + "." + extension;
  for (int number = 2; documents.exists(file); ++number)
    file = name + " " + QString::number(number) + "." + extension;
  return documents.filePath(file);
}

}  // namespace ovindra::desktop
