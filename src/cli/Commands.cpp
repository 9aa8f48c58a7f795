#include "cli/Commands.h"

namespace morvane::cli {

const std::vector<Command>& AllCommands() {
  static const std::vector<Command> kCommands = {
      {"job show", "FILE.TJB", JobShow},
      {"job rewrite", "IN.TJB OUT.TJB", JobRewrite},
      {"job draw", "FILE.TJB [draw options]", JobDraw},
      {"job download", "FILE.TJB [--run]", JobDownload},
      {"job upload", "NAME.TJB", JobUpload},
      {"expand", "text|date|escapes TEXT", ExpandCommand},
      {"font show", "FILE.fnt CODE [--backward] [--width]", FontShow},
      {"gcode draw", "FILE.JOB [--viewer graphic|preview|editor|small] [--tool N|--all-tools] [draw options]",
       GcodeDraw},
      {"gcode measure", "FILE.JOB", GcodeMeasure},
      {"link files", "PATTERN", LinkFiles},
      {"link jobs", "", LinkJobs},
      {"link get", "NAME [LOCAL]", LinkGet},
      {"link put", "LOCAL [NAME]", LinkPut},
      {"link putbin", "LOCAL [NAME]", LinkPutBinary},
      {"link putjob", "LOCAL", LinkPutJob},
      {"link delete", "NAME", LinkDelete},
      {"link run", "NAME", LinkRun},
      {"link runwait", "NAME [SECONDS]", LinkRunWait},
      {"link gcode", "TEXT", LinkGcode},
      {"link date", "", LinkDate},
      {"link check", "", LinkCheck},
      {"settings get", "SECTION KEY [DEFAULT]", SettingsGet},
      {"settings set", "SECTION KEY VALUE", SettingsSet},
      {"settings list", "SECTION", SettingsList},
  };
  return kCommands;
}

std::string UsageText() {
  std::string text =
      "usage: morvane-cli [--base DIR] [--now \"YYYY-MM-DD HH:MM:SS\"] [--yes|--no] COMMAND "
      "...\n\ncommands:\n";
  for (const Command& command : AllCommands()) {
    text += "  " + std::string(command.words) + ' ' + std::string(command.usage) + '\n';
  }
  text +=
      "\ndraw options: --out FILE.svg|FILE.png  --size WxH (default 1200x800)  --trace  --select 0,3\n"
      "              --view toolpath,grid,marks,background,fixture (default: what the settings say)\n";
  return text;
}

}  // namespace morvane::cli
