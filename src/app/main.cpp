#include <QDir>

#include "app/AppIcon.h"
#include "app/Application.h"
#include "app/Program.h"
#include "app/Version.h"
#include "platform/qt/QtText.h"

int main(int argc, char** argv) {
  using namespace morvane;
  app::Application application(argc, argv);
  QApplication::setApplicationName(app::kTitle);
  QApplication::setApplicationVersion(app::VersionText());
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(app::AppIcon());

  const QString programDirectory = QApplication::applicationDirPath();
  const QString wanted = qEnvironmentVariable("MORVANE_BASE");
  const QString base = wanted.isEmpty() ? programDirectory : QDir(wanted).absolutePath();
  app::Program program(platform::PathFromQt(programDirectory), platform::PathFromQt(base));
  application.OnFailure([&program](const std::string& description) { program.TellFailure(description); });
  const int status = program.Run(app::ParseCommandLine(QApplication::arguments().mid(1)));
  application.OnFailure({});
  return status;
}
