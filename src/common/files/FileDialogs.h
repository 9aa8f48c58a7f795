// The three ways of asking for a file, in the program's own names and words.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "common/files/Files.h"
#include "platform/Prompts.h"

namespace morvane::common {

// The last folder (native) for each filter, while the program runs.
using DialogFolders = std::map<std::string, std::string>;

struct ChosenFiles {
  std::string directory;           // program name of the folder; empty for the base directory
  std::vector<std::string> names;  // bare names in it; empty when cancelled
};

// Results are program names: relative to the base directory inside it, native paths outside.
class FileDialogs {
 public:
  FileDialogs(platform::Prompts& prompts, const Files& files, DialogFolders& folders)
      : prompts_(prompts), files_(files), folders_(folders) {}

  // `filter`: "TJB Files|*.TJB|All Files|*.*"; `fileName` is the name to start with; `startFolder`
  // (native) comes before the remembered one. Empty when cancelled.
  std::string OpenFileDialog(const std::string& filter, const std::string& defaultExtension,
                             const std::string& fileName = "", const std::string& startFolder = "");
  std::string SaveFileDialog(const std::string& filter, const std::string& defaultExtension,
                             const std::string& fileName = "", const std::string& startFolder = "");
  ChosenFiles MultiOpenDialog(const std::string& filter, const std::string& defaultExtension,
                              const std::string& startFolder = "",
                              const std::string& title = "Download File(s)");

 private:
  platform::FileDialogRequest Request(const std::string& title, const std::string& filter,
                                      const std::string& defaultExtension, const std::string& fileName,
                                      const std::string& startFolder) const;
  std::string Remembered(const std::string& filter, const std::string& nativePath);

  platform::Prompts& prompts_;
  const Files& files_;
  DialogFolders& folders_;
};

}  // namespace morvane::common
