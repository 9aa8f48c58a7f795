// The faults of a machine that can be switched on by name, so that a host can be seen to survive them.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace morvane::controller {

enum class Fault {
  SilentAfter,   // bytes of a reply, then nothing more
  DropAfter,     // bytes both ways, then the connection closes in good order; a terminal is pulled out
  ResetAfter,    // bytes both ways, then the connection is reset
  StopReading,   // bytes that are taken, then no more
  Split,         // replies go out in pieces of so many bytes
  Slow,          // milliseconds before each piece of a reply
  DoubleCr,      // line ends of replies are CR CR LF
  NoMarker,      // replies lack their end
  Garbage,       // so many bytes of noise in place of a reply
  Flood,         // so many megabytes before the end of a reply; 0: no end
  HostileNames,  // listings hold names that lead elsewhere
  Busy,          // a connection is closed as soon as it stands
  Times          // only the first connections meet the faults
};

class Faults {
 public:
  // "NAME" or "NAME=VALUE"; false when there is no such fault or the value is none.
  bool Add(std::string_view argument);
  static std::string Names();

  std::optional<long> Get(Fault fault) const;
  bool Has(Fault fault) const { return Get(fault).has_value(); }
  // The faults that a new connection meets.
  Faults ForNextConnection();

 private:
  std::map<Fault, long> values_;
};

}  // namespace morvane::controller
