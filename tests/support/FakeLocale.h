// A locale whose words show where they came from.
#pragma once

#include <string>

#include "platform/Locale.h"

namespace morvane::test {

class FakeLocale : public platform::Locale {
 public:
  std::string months[12] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

  std::string MonthShortName(int month) const override {
    return month >= 1 && month <= 12 ? months[month - 1] : std::string();
  }
  std::string ShortDate(const platform::DateTime& date) const override {
    return std::to_string(date.month) + "/" + std::to_string(date.day) + "/" + std::to_string(date.year);
  }
};

}  // namespace morvane::test
