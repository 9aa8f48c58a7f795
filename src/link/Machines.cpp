#include "link/Machines.h"

#include "common/RunTimeError.h"

namespace morvane::link {
namespace {

constexpr const char* kSection = "Machines";

}  // namespace

std::vector<Machine> Machines(const common::SettingsSnapshot& settings) {
  std::vector<Machine> machines;
  for (auto& [name, address] : settings.GetAll(kSection)) machines.push_back({name, address});
  return machines;
}

std::string MachineEntry(const Machine& machine) {
  return machine.name + " (" + machine.address + ")";
}

std::string MachineName(std::string_view entry) {
  std::string_view name = entry.substr(0, entry.find('('));
  if (!name.empty() && name.back() == ' ') name.remove_suffix(1);
  return std::string(name);
}

void AddMachine(const common::Settings& settings, const Machine& machine) {
  // The list of a section is cut at these.
  if ((machine.name + machine.address).find_first_of(";=") != std::string::npos) {
    throw common::RunTimeError(common::kPathFileAccessError, "A name or address cannot hold ; or =");
  }
  settings.SaveSetting(kSection, machine.name, machine.address);
}

void DeleteMachine(const common::Settings& settings, std::string_view entry) {
  settings.DeleteSetting(kSection, MachineName(entry));
}

std::vector<common::SettingChange> SelectionChanges(const Machine& machine) {
  const std::string section(common::kSettingsSection);
  return {{section, "Machine", machine.name}, {section, "IP", machine.address}};
}

Machine FindMachine(const common::SettingsSnapshot& settings, std::string_view entry) {
  const std::string name = MachineName(entry);
  return {name, settings.Get(kSection, name, "")};
}

}  // namespace morvane::link
