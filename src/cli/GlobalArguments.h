// What stands before the command, and which command it is.
#pragma once

#include "cli/Commands.h"

namespace morvane::cli {

// Takes the global options off the front. Throws UsageError.
GlobalOptions TakeGlobalOptions(Arguments& arguments);
// Takes the words of a command off the front; null when there is none of that name.
const Command* TakeCommand(Arguments& arguments);

// Takes `name` out of the arguments; false when it is not there.
bool TakeFlag(Arguments& arguments, std::string_view name);
// Takes `name` and the value behind it out; `fallback` when it is not there. Throws UsageError.
std::string TakeValue(Arguments& arguments, std::string_view name, std::string_view fallback);
// The arguments that are left must be this many. Throws UsageError.
void Expect(const Arguments& arguments, std::size_t least, std::size_t most);

}  // namespace morvane::cli
