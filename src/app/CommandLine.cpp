#include "app/CommandLine.h"

namespace morvane::app {

CommandLine ParseCommandLine(const QStringList& words) {
  CommandLine line;
  line.developer = words.join(' ') == "/DEVELOPER";
  line.splash = !words.contains("--no-splash");
  for (const QString& word : words) {
    if (word.endsWith(".tjb", Qt::CaseInsensitive)) line.jobFile = word;
  }
  return line;
}

}  // namespace morvane::app
