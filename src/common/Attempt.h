// The one way in which a run-time error of an operation becomes a box, or is let go.
#pragma once

#include <string>
#include <type_traits>
#include <utility>

#include "common/RunTimeError.h"
#include "platform/Prompts.h"

namespace morvane::common {

// Runs `work` and gives back its answer; work without an answer counts as done. A run-time error is told as
// `lead` and its description, and the answer is false.
template <typename Work>
bool AttemptTold(platform::Prompts& prompts, const std::string& lead, Work&& work) try {
  if constexpr (std::is_void_v<std::invoke_result_t<Work>>) {
    std::forward<Work>(work)();
    return true;
  } else {
    return std::forward<Work>(work)();
  }
} catch (const RunTimeError& error) {
  prompts.MsgBox(lead + error.description());
  return false;
}

// The same for an event procedure, which is told as "<procedure>-<description>".
template <typename Work>
bool Attempt(platform::Prompts& prompts, const std::string& procedure, Work&& work) {
  return AttemptTold(prompts, procedure + '-', std::forward<Work>(work));
}

// For work whose failure changes nothing for anybody. False when it failed.
template <typename Work>
bool Quietly(Work&& work) try {
  std::forward<Work>(work)();
  return true;
} catch (const RunTimeError&) {
  return false;
}

}  // namespace morvane::common
