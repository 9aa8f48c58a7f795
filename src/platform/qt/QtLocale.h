// Month names and the short date form as the desktop's locale has them.
#pragma once

#include <QLocale>

#include "platform/Locale.h"

namespace morvane::platform {

class QtLocale : public Locale {
 public:
  explicit QtLocale(const QLocale& locale = QLocale::system()) : locale_(locale) {}
  std::string MonthShortName(int month) const override;
  std::string ShortDate(const DateTime& date) const override;

 private:
  QLocale locale_;
};

}  // namespace morvane::platform
