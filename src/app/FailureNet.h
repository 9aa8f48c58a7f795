// Tells the failures that no operation caught, without getting into the way of the events they come from.
#pragma once

#include <QObject>
#include <set>
#include <string>

namespace morvane::context {
class StatusPanels;
}
namespace morvane::platform {
class Prompts;
}

namespace morvane::app {

class FailureNet : public QObject {
 public:
  FailureNet(platform::Prompts& prompts, context::StatusPanels& panels)
      : prompts_(prompts), panels_(panels) {}

  // A box once the event is over; for a failure that comes again, as at each repaint, a line in the status
  // bar.
  void Tell(const std::string& description);

 private:
  platform::Prompts& prompts_;
  context::StatusPanels& panels_;
  std::set<std::string> told_;
};

}  // namespace morvane::app
