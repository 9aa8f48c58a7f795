#include "link/Wrappers.h"

#include <algorithm>

#include "common/RunTimeError.h"
#include "common/files/FileNames.h"
#include "link/ControllerNames.h"

namespace morvane::link {
namespace {

constexpr const char* kTextJob = "TEXTJOB.JOB";
constexpr std::size_t kExtension = 4;  // characters, with the point

void Complete(const WrapperSources& sources, const char* message) {
  if (sources.comm.Open().Aborted()) return;
  sources.waitWindow.Close();
  sources.prompts.MsgBox(message);
}

// The names that the user chose from a listing; empty when there is none.
Names Listed(const WrapperSources& sources, const std::string& command, const Choose& choose) {
  const std::optional<Names> names = FetchNames(sources, command);
  return names ? choose(*names) : Names();
}

// `extension` is for names that have none.
Names FetchAll(const WrapperSources& sources, const Names& chosen, const char* extension) {
  Names fetched;
  if (chosen.empty()) return fetched;
  for (const std::string& entry : chosen) {
    const std::string name = entry.find('.') == std::string::npos ? entry + extension : entry;
    if (sources.comm.Open().Aborted()) return fetched;
    if (!AcceptName(sources.files, sources.prompts, name)) continue;
    if (FetchFile(sources, name, name)) fetched.push_back(name);
  }
  Complete(sources, "Upload Complete");
  return fetched;
}

}  // namespace

std::string PathOf(const common::ChosenFiles& chosen, const std::string& file) {
  return chosen.directory.empty() ? file : chosen.directory + '\\' + file;
}

bool SendFile(const WrapperSources& sources, const std::string& localPath, const std::string& remoteName,
              bool binary) {
  sources.waitWindow.Show(WaitText("Downloading " + common::PathFileName(localPath)));
  return binary ? sources.comm.DownloadBinaryFile("QT7250DLBIN " + remoteName, localPath)
                : sources.comm.DownloadFile("QT7250DFILE " + remoteName, localPath);
}

bool SendGraphic(const WrapperSources& sources, const std::string& localPath) {
  const std::string file = common::PathFileName(localPath);
  sources.waitWindow.Show(WaitText("Downloading " + file));
  const std::string name = file.substr(0, file.size() - std::min(file.size(), kExtension));
  return sources.comm.DownloadFile("JOB " + name, localPath);
}

bool FetchFile(const WrapperSources& sources, const std::string& remoteName, const std::string& localPath) {
  sources.waitWindow.Show(WaitText("Uploading " + remoteName));
  return sources.comm.UploadFile("QT7250FILE " + remoteName, localPath);
}

std::optional<Names> FetchNames(const WrapperSources& sources, const std::string& command) {
  if (!sources.comm.UploadFile(command, kListing)) return std::nullopt;
  try {
    return ListedNames(sources.files);
  } catch (const common::RunTimeError& error) {
    sources.prompts.MsgBox("Load(" + std::string(kListing) + ") " + error.description());
    return std::nullopt;
  }
}

bool DownloadFile(const WrapperSources& sources, const std::string& filter, const std::string& extension,
                  const std::string& remoteName, bool binary) {
  const common::ChosenFiles chosen = sources.dialogs.MultiOpenDialog(filter, extension);
  if (chosen.names.empty()) return false;
  for (const std::string& file : chosen.names) {
    if (!SendFile(sources, PathOf(chosen, file), remoteName.empty() ? file : remoteName, binary))
      return false;
  }
  Complete(sources, "Download Complete");
  return true;
}

bool DownloadGraphic(const WrapperSources& sources) {
  const std::string path = sources.dialogs.OpenFileDialog("Job Files|*.JOB|All Files|*.*", "job");
  if (path.empty() || !SendGraphic(sources, path)) return false;
  Complete(sources, "Download Complete");
  return true;
}

bool UploadNamedFile(const WrapperSources& sources, const std::string& filter, const std::string& extension,
                     const std::string& remoteName) {
  const std::string path = sources.dialogs.SaveFileDialog(filter, extension, remoteName);
  if (path.empty()) return false;
  const std::string name = remoteName.empty() ? common::PathFileName(path) : remoteName;
  const bool done = FetchFile(sources, name, path);
  Complete(sources, "Upload Complete");
  return done;
}

Names UploadFiles(const WrapperSources& sources, const std::string& pattern, const Choose& choose) {
  return FetchAll(sources, Listed(sources, "QT7250FILES " + pattern, choose), "");
}

Names UploadGraphics(const WrapperSources& sources, const Choose& choose) {
  return FetchAll(sources, Listed(sources, "QT7250JOBS", choose), ".JOB");
}

bool UploadTextJob(const WrapperSources& sources) {
  const bool done = FetchFile(sources, kTextJob, kTextJob);
  if (!sources.comm.Open().Aborted()) sources.waitWindow.Close();
  return done;
}

}  // namespace morvane::link
