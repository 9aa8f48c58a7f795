#include "link/wire/LinkSources.h"

#include "common/text/Numbers.h"

namespace morvane::link {

LinkSettings ReadLinkSettings(const common::Settings& settings) {
  const common::SettingsSnapshot read = settings.Read();
  return {common::ParseInt32(read.Get(common::kSettingsSection, "ComPort", "1")),
          read.Get(common::kSettingsSection, "IP", "")};
}

}  // namespace morvane::link
