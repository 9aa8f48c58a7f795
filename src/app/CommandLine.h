// What the words behind the program's name ask for.
#pragma once

#include <QString>
#include <QStringList>

namespace morvane::app {

struct CommandLine {
  bool developer = false;  // the whole command text is "/DEVELOPER"
  bool splash = true;      // "--no-splash" leaves the picture out, for scripts and screenshots
  QString jobFile;         // a text job to open; empty: none
};

// `words` without the program's name.
CommandLine ParseCommandLine(const QStringList& words);

}  // namespace morvane::app
