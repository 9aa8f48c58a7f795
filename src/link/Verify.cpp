#include "link/Verify.h"

#include "common/RunTimeError.h"
#include "common/files/FileNames.h"
#include "common/text/Lines.h"
#include "link/ControllerNames.h"
#include "link/wire/TcpBlocks.h"

namespace morvane::link {
namespace {

constexpr const char* kReadBack = "\\Temp\\verify.tmp";
constexpr std::size_t kShown = 60;  // characters of a line in the box
constexpr std::string_view kEndOfFile = "<end of file>";

// The next line, and whether there was one.
std::pair<std::string_view, bool> Take(common::Lines& lines) {
  std::string_view line;
  if (lines.Next(line)) return {line, true};
  return {kEndOfFile, false};
}

// What the blocks of the network make of a file: a few bytes more behind a long one.
std::string AsSent(std::string_view file) try {
  TcpBlocks blocks(file);
  std::string sent;
  std::string_view block;
  while (blocks.Next(block)) sent += block;
  return sent;
} catch (const common::RunTimeError&) {
  return std::string(file);
}

// The machine holds the file when it holds what was sent.
Difference CompareFiles(std::string_view local, std::string_view remote) {
  const Difference found = CompareLines(local, remote);
  return CompareLines(AsSent(local), remote).line == 0 ? Difference{} : found;
}

}  // namespace

Difference CompareLines(std::string_view local, std::string_view remote) {
  common::Lines localLines(local);
  common::Lines remoteLines(remote);
  for (std::size_t number = 1;; ++number) {
    const auto here = Take(localLines);
    const auto there = Take(remoteLines);
    if (here != there) return {number, std::string(here.first), std::string(there.first)};
    if (!here.second) return {};
  }
}

bool VerifyFile(const WrapperSources& sources, const std::string& localPath, const std::string& remoteName) {
  sources.waitWindow.Show(WaitText("Verifying " + remoteName));
  if (!sources.comm.UploadFile("QT7250FILE " + remoteName, kReadBack)) return false;
  sources.waitWindow.Close();
  try {
    const Difference found = CompareFiles(sources.files.Read(localPath), sources.files.Read(kReadBack));
    if (found.line == 0) {
      sources.prompts.MsgBox(remoteName + " verified");
      return true;
    }
    sources.prompts.MsgBox(remoteName + " differs in line " + std::to_string(found.line) + "\r\n\r\n" +
                           "Here: " + found.local.substr(0, kShown) + "\r\n" +
                           "Machine: " + found.remote.substr(0, kShown));
  } catch (const common::RunTimeError& error) {
    sources.prompts.MsgBox("VerifyFile-" + error.description());
  }
  return false;
}

bool VerifyFiles(const WrapperSources& sources, const std::string& filter, const std::string& extension) {
  const common::ChosenFiles chosen = sources.dialogs.MultiOpenDialog(filter, extension, "", "Verify File(s)");
  for (const std::string& file : chosen.names) {
    if (!VerifyFile(sources, PathOf(chosen, file), file)) return false;
  }
  return !chosen.names.empty();
}

}  // namespace morvane::link
