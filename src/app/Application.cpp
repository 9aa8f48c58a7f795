#include "app/Application.h"

#include <exception>
#include <new>

namespace morvane::app {

bool Application::notify(QObject* receiver, QEvent* event) {
  std::string description;
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::bad_alloc&) {
    description = "Out of memory";
  } catch (const std::exception& error) {
    description = error.what();
  }
  if (tell_) tell_(description);
  return true;
}

}  // namespace morvane::app
