// How the machine puts a reply together, with the faults that spoil it.
#pragma once

#include <string>
#include <vector>

#include "controller/Outbox.h"

namespace morvane::controller {

// The body and the end marker.
void Reply(Outbox& out, const Faults& faults, std::string body);
void ReplyNames(Outbox& out, const Faults& faults, const std::vector<std::string>& names);

}  // namespace morvane::controller
