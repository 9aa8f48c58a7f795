// What a call said when it failed.
#pragma once

#include <string>

#include "common/RunTimeError.h"

namespace morvane::test {

// The description of the run-time error that left the call; empty when none did.
template <typename Call>
std::string Failure(const Call& call) {
  try {
    call();
    return "";
  } catch (const common::RunTimeError& error) {
    return error.description();
  }
}

}  // namespace morvane::test
