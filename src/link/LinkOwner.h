// Who uses the controller link: nobody, one operation, or a window that holds it open.
#pragma once

#include <functional>

#include "platform/Prompts.h"

namespace morvane::link {

inline constexpr const char* kLinkInUse = "The link to the machine is in use. Please wait until it is free.";

class LinkOwner {
 public:
  explicit LinkOwner(platform::Prompts& prompts) : prompts_(prompts) {}

  enum class State { Idle, Operation, Held };
  State Now() const { return state_; }

  // Takes the link for one operation. A holder is asked to release it; otherwise, and during another
  // operation, this says kLinkInUse and returns false.
  bool Begin();
  // False after kLinkInUse, while an operation runs: for commands that would ask their user first.
  bool Free();
  void End() { state_ = State::Idle; }

  // Takes an idle link for a window; false when it is in use. `release` is asked when an operation wants
  // it: it closes the window's connection and answers true, or answers false.
  bool Hold(std::function<bool()> release);
  void Release();

 private:
  platform::Prompts& prompts_;
  State state_ = State::Idle;
  std::function<bool()> release_;
};

}  // namespace morvane::link
