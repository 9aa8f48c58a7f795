#include "cli/Environment.h"

#include <cstdlib>
#include <filesystem>

#include "common/text/Text.h"

namespace morvane::cli {
namespace {

std::string BaseDirectory(const GlobalOptions& options, const std::string& programDirectory) {
  std::string base = options.base;
  const char* variable = std::getenv("MORVANE_BASE");
  if (base.empty() && variable) base = variable;
  if (base.empty()) base = programDirectory;
  std::error_code ignored;
  const std::filesystem::path path = std::filesystem::absolute(base, ignored);
  return ignored ? base : path.lexically_normal().string();
}

}  // namespace

Environment::Environment(const GlobalOptions& options, const std::string& programDirectory)
    : yes(options.yes),
      now(options.now),
      files(fileSystem, BaseDirectory(options, programDirectory)),
      settings(files),
      clock(options.now),
      prompts(options.yes),
      runner{processes, clock, files, programDirectory, abort},
      workingDirectory_(std::filesystem::current_path().string()) {}

std::string Environment::FileArgument(std::string_view argument) const {
  const std::string name = common::FromUtf8(argument);
  const bool bare = argument.find('/') == std::string_view::npos;
  if (bare && files.FileExists(name)) return name;
  const std::string here = workingDirectory_ + '/' + std::string(argument);
  if (!common::StartsWith(argument, "/") && fileSystem.Status(here).kind != platform::EntryKind::Missing) {
    return common::FromUtf8(here);
  }
  return name;
}

std::string Environment::OutputArgument(std::string_view argument, std::string_view input) const {
  const bool bare = argument.find('/') == std::string_view::npos;
  const bool inputInBase = input.find('/') == std::string_view::npos;
  if (common::StartsWith(argument, "/") || (bare && inputInBase)) return common::FromUtf8(argument);
  return common::FromUtf8(workingDirectory_ + '/' + std::string(argument));
}

}  // namespace morvane::cli
