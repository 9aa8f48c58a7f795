// The "C" locale: English month names, dates as M/D/YYYY. For programs without the toolkit.
#pragma once

#include "platform/Locale.h"

namespace morvane::platform {

class PosixLocale : public Locale {
 public:
  std::string MonthShortName(int month) const override;
  std::string ShortDate(const DateTime& date) const override;
};

}  // namespace morvane::platform
