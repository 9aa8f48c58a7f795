#include "platform/qt/QtLocale.h"

#include <QDate>

#include "platform/qt/QtText.h"

namespace morvane::platform {

std::string QtLocale::MonthShortName(int month) const {
  return FromQt(locale_.standaloneMonthName(month, QLocale::ShortFormat));
}

std::string QtLocale::ShortDate(const DateTime& date) const {
  return FromQt(locale_.toString(QDate(date.year, date.month, date.day), QLocale::ShortFormat));
}

}  // namespace morvane::platform
