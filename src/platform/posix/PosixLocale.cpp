#include "platform/posix/PosixLocale.h"

namespace morvane::platform {
namespace {

constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

}  // namespace

std::string PosixLocale::MonthShortName(int month) const {
  return month >= 1 && month <= 12 ? kMonths[month - 1] : "";
}

std::string PosixLocale::ShortDate(const DateTime& date) const {
  return std::to_string(date.month) + "/" + std::to_string(date.day) + "/" + std::to_string(date.year);
}

}  // namespace morvane::platform
