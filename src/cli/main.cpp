// The command line: the core without windows, for scripts, plants and checks.
#include <filesystem>
#include <iostream>

#include "cli/Commands.h"
#include "cli/GlobalArguments.h"
#include "common/RunTimeError.h"
#include "common/text/Text.h"

namespace {

using namespace morvane;

int Run(std::vector<std::string> arguments, const std::string& programDirectory) {
  const cli::GlobalOptions options = cli::TakeGlobalOptions(arguments);
  const cli::Command* command = cli::TakeCommand(arguments);
  if (!command) throw cli::UsageError();
  cli::Environment environment(options, programDirectory);
  try {
    return command->run(environment, arguments);
  } catch (const common::RunTimeError& error) {
    environment.prompts.MsgBox(error.description(), platform::Buttons::Ok, platform::kApplicationTitle);
    return cli::kFailed;
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::error_code ignored;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", ignored);
  try {
    return Run({argv + 1, argv + argc}, program.parent_path().string());
  } catch (const cli::UsageError&) {
    std::cerr << cli::UsageText();
    return cli::kWrongUsage;
  }
}
