// What an event procedure throws ends that event and nothing else.
#include "app/FailureNet.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTimer>

#include "app/Application.h"
#include "common/RunTimeError.h"
#include "support/qt_WindowStation.h"

namespace morvane::test {
namespace {

TEST(FailureNet, AThrowingSlotEndsNothingElse) {
  WindowStation station;
  QTest::keyClicks(&Find<QLineEdit>(station.Load(), "txtComments"), "kept");
  app::FailureNet net(station.prompts, station.panels);
  auto& application = dynamic_cast<app::Application&>(*qApp);
  application.OnFailure([&](const std::string& description) { net.Tell(description); });
  const std::function<void()> failures[] = {[] { throw common::RunTimeError(common::kOverflow); },
                                            [] { throw common::RunTimeError(common::kOverflow); },
                                            [] { throw std::bad_alloc(); }};
  for (const auto& failure : failures) {
    QTimer::singleShot(0, &station.Frame(), failure);
    station.Pump();
  }
  application.OnFailure({});
  EXPECT_EQ(station.prompts.Texts(),
            (FakePrompts::Strings{
                "Something went wrong: Overflow. The program goes on, and your work is still here.",
                "Something went wrong: Out of memory. The program goes on, and your work is still here."}));
  EXPECT_EQ(station.job.Comment, "kept");
  station.clock.Sleep(5000);
  station.recovery.Touch(station.job, "<NEW>");
  EXPECT_TRUE(station.files.FileExists(textjob::kRecoveryFile));
}

}  // namespace
}  // namespace morvane::test
