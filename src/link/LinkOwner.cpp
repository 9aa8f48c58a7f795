#include "link/LinkOwner.h"

#include <utility>

namespace morvane::link {

bool LinkOwner::Begin() {
  if (state_ == State::Held) {
    // The holder may drop its callback while it runs.
    const std::function<bool()> release = release_;
    if (release && release()) Release();
  }
  if (state_ != State::Idle) {
    prompts_.MsgBox(kLinkInUse);
    return false;
  }
  state_ = State::Operation;
  return true;
}

bool LinkOwner::Free() {
  if (state_ != State::Operation) return true;
  prompts_.MsgBox(kLinkInUse);
  return false;
}

bool LinkOwner::Hold(std::function<bool()> release) {
  if (state_ != State::Idle) return false;
  state_ = State::Held;
  release_ = std::move(release);
  return true;
}

void LinkOwner::Release() {
  if (state_ != State::Held) return;
  state_ = State::Idle;
  release_ = nullptr;
}

}  // namespace morvane::link
