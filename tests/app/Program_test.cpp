// The program as its user starts it: one for each base directory, and a killed one blocks nobody.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QThread>
#include <filesystem>

#include "support/TempFolder.h"

namespace morvane::test {
namespace {

constexpr int kLimit = 30000;  // milliseconds; a loaded machine starts slowly

struct Running {
  explicit Running(const TempFolder& base, const QStringList& arguments = {"--no-splash"}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("MORVANE_BASE", QString::fromStdString(base.Path()));
    environment.insert("XDG_CONFIG_HOME", QString::fromStdString(base / "config"));
    environment.insert("XDG_RUNTIME_DIR", QString::fromStdString(base.Path()));
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    process.setProcessEnvironment(environment);
    process.start(MORVANE_BIN_DIR "/Morvane", arguments);
  }
  ~Running() {
    process.kill();
    process.waitForFinished();
  }
  QProcess process;
};

// The scratch folder is emptied in the middle of the start, when the instance is already the only one.
bool Clears(const std::string& file) {
  QElapsedTimer timer;
  timer.start();
  while (std::filesystem::exists(file) && timer.elapsed() < kLimit) QThread::msleep(5);
  return !std::filesystem::exists(file);
}

TEST(Program, OnlyOneForEachBaseDirectory) {
  const TempFolder base;
  std::filesystem::create_directory(base / "Temp");
  base.Write("Temp/left.ret", "");
  Running first(base);
  ASSERT_TRUE(Clears(base / "Temp/left.ret"));
  EXPECT_NE(base.Read("Morvane.ini").find("Color0=16776960\r\n"), std::string::npos);

  base.Write("Temp/reply.ret", "");
  Running second(base);
  ASSERT_TRUE(second.process.waitForFinished(kLimit));
  EXPECT_EQ(second.process.exitCode(), 0);
  EXPECT_EQ(second.process.readAllStandardError().trimmed(), "") << "it ends silently";
  EXPECT_TRUE(std::filesystem::exists(base / "Temp/reply.ret")) << "the first is undisturbed";

  first.process.kill();
  ASSERT_TRUE(first.process.waitForFinished(kLimit));
  Running third(base);
  EXPECT_TRUE(Clears(base / "Temp/reply.ret")) << "the killed one blocks nobody";
}

}  // namespace
}  // namespace morvane::test
