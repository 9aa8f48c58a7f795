// Shows and unloads the wait window for the core.
#pragma once

#include <QPointer>
#include <memory>

#include "platform/Prompts.h"

namespace morvane::widgets {

class Windows;
class frmWait;

class QtWaitWindow : public platform::WaitWindow {
 public:
  explicit QtWaitWindow(Windows& windows);
  ~QtWaitWindow() override;
  void Show(const std::string& text) override;
  void Close() override;

 private:
  Windows& windows_;
  QPointer<frmWait> form_;
};

}  // namespace morvane::widgets
