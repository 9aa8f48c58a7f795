#include "link/MachineClock.h"

#include "common/text/Numbers.h"
#include "link/ControllerNames.h"

namespace morvane::link {
namespace {

std::string TwoDigits(int value) {
  return common::FormatPicture(value, "00");
}

}  // namespace

std::string DateCommand(const platform::DateTime& time) {
  return "QT7250DATE " + TwoDigits(time.month) + '/' + TwoDigits(time.day) + '/' +
         TwoDigits(time.year % 100) + ' ' + TwoDigits(time.hour) + ':' + TwoDigits(time.minute) + ':' +
         TwoDigits(time.second);
}

bool DownloadDateTime(const WrapperSources& sources, const platform::Clock& clock) {
  sources.waitWindow.Show(WaitText("Downloading Date/Time"));
  if (!sources.comm.SendCommand(DateCommand(clock.Now()))) return false;
  sources.waitWindow.Close();
  sources.prompts.MsgBox("Download Date/Time Complete");
  return true;
}

}  // namespace morvane::link
