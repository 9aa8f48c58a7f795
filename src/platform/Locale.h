// What the system's locale says about dates. Text is in the core's code page.
#pragma once

#include <string>

#include "platform/Clock.h"

namespace morvane::platform {

class Locale {
 public:
  virtual ~Locale() = default;
  // Short month name in the platform's spelling ("Mar"); `month` is 1 to 12.
  virtual std::string MonthShortName(int month) const = 0;
  virtual std::string ShortDate(const DateTime& date) const = 0;
};

}  // namespace morvane::platform
