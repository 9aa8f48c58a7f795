// The network machines that the user has entered: section `Machines` of the settings.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/Settings.h"

namespace morvane::link {

struct Machine {
  std::string name;
  std::string address;
};

std::vector<Machine> Machines(const common::SettingsSnapshot& settings);
// "<name> (<address>)", as lists show it.
std::string MachineEntry(const Machine& machine);
// The name in such an entry: what stands before the first "(". So a name that holds one loses its end.
std::string MachineName(std::string_view entry);

// Throws the run-time error of the failure, also for a name or address that the settings cannot hold.
void AddMachine(const common::Settings& settings, const Machine& machine);
void DeleteMachine(const common::Settings& settings, std::string_view entry);
// What makes a machine the selected one.
std::vector<common::SettingChange> SelectionChanges(const Machine& machine);
// The machine of a list's entry with the address that the settings hold for its name.
Machine FindMachine(const common::SettingsSnapshot& settings, std::string_view entry);

}  // namespace morvane::link
