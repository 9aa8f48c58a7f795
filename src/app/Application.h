// The application object: what no event procedure catches ends that event and nothing else, and the mouse
// wheel turns no value by the way.
#pragma once

#include <QApplication>
#include <functional>
#include <string>

#include "widgets/WheelGuard.h"

namespace morvane::app {

class Application : public QApplication {
 public:
  Application(int& count, char** arguments) : QApplication(count, arguments) {
    installEventFilter(&wheelGuard_);
  }

  // Gets the description of each failure that nothing else has caught, from inside the event that failed.
  void OnFailure(std::function<void(const std::string& description)> tell) { tell_ = std::move(tell); }
  bool notify(QObject* receiver, QEvent* event) override;

 private:
  widgets::WheelGuard wheelGuard_;
  std::function<void(const std::string&)> tell_;
};

}  // namespace morvane::app
