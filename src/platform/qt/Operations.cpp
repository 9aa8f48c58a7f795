#include "platform/qt/Operations.h"

#include <algorithm>
#include <utility>

namespace morvane::platform {
namespace {

bool BelongsTo(const QObject* part, const QObject* window) {
  while (part != nullptr && part != window) part = part->parent();
  return part != nullptr;
}

}  // namespace

Operations::Operations(bool& abort, QObject* parent) : QObject(parent), abort_(abort) {}

Operations::~Operations() {
  for (const QPointer<QObject>& window : closed_) delete window.data();
}

Operations::Scope::Scope(Operations& operations, const QObject* owner) : operations_(operations) {
  operations_.owners_.push_back(owner);
}

Operations::Scope::~Scope() {
  operations_.Leave();
}

void Operations::Leave() {
  owners_.pop_back();
  if (!Running()) Queue();
}

// An operation may go on after a wait, so nothing is deleted where a Scope ends: the queued call comes
// when the event loop has control again, and is put off once more when that loop is a nested one.
void Operations::Queue() {
  QMetaObject::invokeMethod(this, &Operations::RunWaiting, Qt::QueuedConnection);
}

void Operations::RunWaiting() {
  if (Running()) return;
  if (!quitting_) abort_ = false;
  for (const QPointer<QObject>& window : std::exchange(closed_, {})) delete window.data();
  for (const std::function<void()>& action : std::exchange(actions_, {})) action();
}

void Operations::WhenIdle(std::function<void()> action) {
  actions_.push_back(std::move(action));
  Queue();
}

void Operations::DeleteWhenIdle(QObject* window) {
  const bool own = std::any_of(owners_.begin(), owners_.end(),
                               [window](const QObject* owner) { return BelongsTo(owner, window); });
  if (own) abort_ = true;
  closed_.emplace_back(window);
  Queue();
}

void Operations::Quit() {
  quitting_ = true;
  abort_ = true;
}

void Operations::CancelQuit() {
  quitting_ = false;
  abort_ = false;
}

}  // namespace morvane::platform
