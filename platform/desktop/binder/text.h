// Texts and dates between the controls, which speak UTF-8 and the calendar, and the toolkit. Nothing is
// owned.
#pragma once

#include <QDate>
#include <QString>
#include <string>
#include <string_view>

#include "base/date.h"

namespace ovindra::desktop {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) {
  return text.toStdString();
}

inline QDate ToQt(Date day) {
  return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
          static_cast<int>(static_cast<unsigned>(day.day()))};
}

inline Date FromQt(QDate day) {
  return {std::chrono::year(day.year()), std::chrono::month(static_cast<unsigned>(day.month())),
          std::chrono::day(static_cast<unsigned>(day.day()))};
}

}  // namespace ovindra::desktop
