// The commands on the settings file.
#include <iostream>

#include "cli/Commands.h"
#include "cli/GlobalArguments.h"
#include "cli/Json.h"
#include "common/text/Text.h"

namespace morvane::cli {
namespace {

Arguments InCodePage(const Arguments& arguments) {
  Arguments texts;
  for (const std::string& argument : arguments) texts.push_back(common::FromUtf8(argument));
  return texts;
}

}  // namespace

int SettingsGet(Environment& environment, const Arguments& arguments) {
  if (arguments.size() < 2 || arguments.size() > 3) throw UsageError();
  const Arguments texts = InCodePage(arguments);
  const std::string fallback = texts.size() > 2 ? texts[2] : std::string();
  std::cout << common::ToUtf8(environment.settings.GetSetting(texts[0], texts[1], fallback)) << '\n';
  return kDone;
}

int SettingsSet(Environment& environment, const Arguments& arguments) {
  if (arguments.size() != 3) throw UsageError();
  const Arguments texts = InCodePage(arguments);
  environment.settings.SaveSetting(texts[0], texts[1], texts[2]);
  return kDone;
}

int SettingsList(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 1, 1);
  for (const auto& [key, value] : environment.settings.GetAllSettings(common::FromUtf8(arguments[0]))) {
    std::cout << JsonLine().Add("key", key).Add("value", value).Text();
  }
  return kDone;
}

}  // namespace morvane::cli
