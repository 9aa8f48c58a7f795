#include "controller/Faults.h"

#include <algorithm>
#include <charconv>

namespace morvane::controller {
namespace {

struct Named {
  std::string_view name;
  Fault fault;
  std::optional<long> preset;  // none: a value must be told
};

constexpr Named kNamed[] = {{"silent-after", Fault::SilentAfter, std::nullopt},
                            {"drop-after", Fault::DropAfter, std::nullopt},
                            {"reset-after", Fault::ResetAfter, std::nullopt},
                            {"stop-reading", Fault::StopReading, 0},
                            {"split", Fault::Split, std::nullopt},
                            {"slow", Fault::Slow, std::nullopt},
                            {"double-cr", Fault::DoubleCr, 1},
                            {"no-marker", Fault::NoMarker, 1},
                            {"garbage", Fault::Garbage, 4096},
                            {"flood", Fault::Flood, 0},
                            {"names", Fault::HostileNames, std::nullopt},
                            {"busy", Fault::Busy, 1},
                            {"times", Fault::Times, std::nullopt}};

}  // namespace

bool Faults::Add(std::string_view argument) {
  const std::size_t equals = argument.find('=');
  const auto* known = std::find_if(std::begin(kNamed), std::end(kNamed), [&](const Named& named) {
    return named.name == argument.substr(0, equals);
  });
  if (known == std::end(kNamed)) return false;
  std::optional<long> value = known->preset;
  if (equals != std::string_view::npos) {
    const std::string_view text = argument.substr(equals + 1);
    if (known->fault == Fault::HostileNames) {
      if (text == "hostile") value = 1;
    } else {
      long number = 0;
      const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
      if (error != std::errc() || end != text.data() + text.size() || number < 0) return false;
      value = number;
    }
  }
  if (!value || (known->fault == Fault::Split && *value == 0)) return false;
  values_[known->fault] = *value;
  return true;
}

std::string Faults::Names() {
  std::string names;
  for (const Named& named : kNamed) names.append(names.empty() ? "" : " ").append(named.name);
  return names;
}

std::optional<long> Faults::Get(Fault fault) const {
  const auto found = values_.find(fault);
  return found == values_.end() ? std::nullopt : std::optional(found->second);
}

Faults Faults::ForNextConnection() {
  const auto times = values_.find(Fault::Times);
  if (times == values_.end()) return *this;
  if (times->second == 0) return {};
  --times->second;
  return *this;
}

}  // namespace morvane::controller
