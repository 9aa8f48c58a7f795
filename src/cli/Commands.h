// The commands, one function each: it calls what a button calls, and returns the exit status.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/Environment.h"

namespace morvane::cli {

inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;

// Arguments behind the words of the command, UTF-8. Throw UsageError.
using Arguments = std::vector<std::string>;

int JobShow(Environment& environment, const Arguments& arguments);
int JobRewrite(Environment& environment, const Arguments& arguments);
int JobDraw(Environment& environment, const Arguments& arguments);
int JobDownload(Environment& environment, const Arguments& arguments);
int JobUpload(Environment& environment, const Arguments& arguments);
int ExpandCommand(Environment& environment, const Arguments& arguments);
int FontShow(Environment& environment, const Arguments& arguments);
int GcodeDraw(Environment& environment, const Arguments& arguments);
int GcodeMeasure(Environment& environment, const Arguments& arguments);
int LinkFiles(Environment& environment, const Arguments& arguments);
int LinkJobs(Environment& environment, const Arguments& arguments);
int LinkGet(Environment& environment, const Arguments& arguments);
int LinkPut(Environment& environment, const Arguments& arguments);
int LinkPutBinary(Environment& environment, const Arguments& arguments);
int LinkPutJob(Environment& environment, const Arguments& arguments);
int LinkDelete(Environment& environment, const Arguments& arguments);
int LinkRun(Environment& environment, const Arguments& arguments);
int LinkRunWait(Environment& environment, const Arguments& arguments);
int LinkGcode(Environment& environment, const Arguments& arguments);
int LinkDate(Environment& environment, const Arguments& arguments);
int LinkCheck(Environment& environment, const Arguments& arguments);
int SettingsGet(Environment& environment, const Arguments& arguments);
int SettingsSet(Environment& environment, const Arguments& arguments);
int SettingsList(Environment& environment, const Arguments& arguments);

struct Command {
  std::string_view words;  // "job show"
  std::string_view usage;  // what stands behind them
  int (*run)(Environment&, const Arguments&);
};

const std::vector<Command>& AllCommands();
std::string UsageText();

}  // namespace morvane::cli
