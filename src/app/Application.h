// The application object: what no event procedure catches ends that event and nothing else.
#pragma once

#include <QApplication>
#include <functional>
#include <string>

namespace morvane::app {

class Application : public QApplication {
 public:
  using QApplication::QApplication;

  // Gets the description of each failure that nothing else has caught, from inside the event that failed.
  void OnFailure(std::function<void(const std::string& description)> tell) { tell_ = std::move(tell); }
  bool notify(QObject* receiver, QEvent* event) override;

 private:
  std::function<void(const std::string&)> tell_;
};

}  // namespace morvane::app
