#include "app/FailureNet.h"

#include "context/StatusPanels.h"
#include "platform/Prompts.h"
#include "platform/qt/QtText.h"

namespace morvane::app {

void FailureNet::Tell(const std::string& description) {
  if (!told_.insert(description).second) return panels_.Tell(platform::ToQt(description));
  QMetaObject::invokeMethod(
      this,
      [this, description] {
        prompts_.MsgBox("Something went wrong: " + description +
                        ". The program goes on, and your work is still here.");
      },
      Qt::QueuedConnection);
}

}  // namespace morvane::app
