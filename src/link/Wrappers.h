// What the Download and Upload entries of the menus do: ask for files, send or fetch them one by one, and
// say when it is done.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "common/files/FileDialogs.h"
#include "link/modComm.h"

namespace morvane::link {

struct WrapperSources {
  const common::Files& files;
  common::FileDialogs& dialogs;
  platform::Prompts& prompts;
  platform::WaitWindow& waitWindow;
  Comm& comm;
};

using Names = std::vector<std::string>;
// Lets the user choose from the controller's list; empty when cancelled.
using Choose = std::function<Names(const Names&)>;

// Program name of a file of the multi-select dialog.
std::string PathOf(const common::ChosenFiles& chosen, const std::string& file);

// One file, or one list of names, without a dialog. The wait window is shown and left to the caller.
// Local paths are program names.
bool SendFile(const WrapperSources& sources, const std::string& localPath, const std::string& remoteName,
              bool binary);
// A G-code job: it has no extension on the controller.
bool SendGraphic(const WrapperSources& sources, const std::string& localPath);
bool FetchFile(const WrapperSources& sources, const std::string& remoteName, const std::string& localPath);
// The reply to "QT7250FILES <pattern>" or "QT7250JOBS"; nothing after a failure, which was told.
std::optional<Names> FetchNames(const WrapperSources& sources, const std::string& command);

// Sends the files that the user chooses, each as `remoteName` or, when that is empty, under its own name.
// Stops at the first failure.
bool DownloadFile(const WrapperSources& sources, const std::string& filter, const std::string& extension,
                  const std::string& remoteName, bool binary);
// The same for one G-code job.
bool DownloadGraphic(const WrapperSources& sources);

// Fetches the file `remoteName`, or the one of the chosen name when that is empty. "Upload Complete" is
// said in any case.
bool UploadNamedFile(const WrapperSources& sources, const std::string& filter, const std::string& extension,
                     const std::string& remoteName);
// Lists the controller's files and fetches those that are chosen, each whether or not another one failed.
// The names of those that came.
Names UploadFiles(const WrapperSources& sources, const std::string& pattern, const Choose& choose);
// The same for the controller's G-code jobs. The list has them without extension; here they get ".JOB".
Names UploadGraphics(const WrapperSources& sources, const Choose& choose);
// Fetches the job that the controller made last.
bool UploadTextJob(const WrapperSources& sources);

}  // namespace morvane::link
