// The local file that a reply is stored in while it arrives. What arrived stays when the link fails.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "link/wire/LinkSources.h"

namespace morvane::link {

inline constexpr std::string_view kReplyEnd = "ENDFILE";

class ReplyFile {
 public:
  // Replaces what was there. Throws.
  ReplyFile(const LinkSources& sources, const std::string& localPath);
  // Throws, "Disk full" among others; also shows the progress.
  void Write(std::string_view bytes);
  void Close();

 private:
  const LinkSources& sources_;
  std::unique_ptr<platform::OutputFile> file_;
  std::int64_t done_ = 0;
};

// The box of a reply that did not come, with the wait window out of its way.
void TellTimeout(const LinkSources& sources, const std::string& localPath);

}  // namespace morvane::link
