#include "link/wire/ReplyFile.h"

#include "common/RunTimeError.h"

namespace morvane::link {

ReplyFile::ReplyFile(const LinkSources& sources, const std::string& localPath) : sources_(sources) {
  platform::Error error = platform::Error::None;
  file_ = sources.files.System().Create(sources.files.Resolve(localPath), error);
  common::ThrowIf(error);
}

void ReplyFile::Write(std::string_view bytes) {
  common::ThrowIf(file_->Write(bytes));
  done_ += static_cast<std::int64_t>(bytes.size());
  sources_.progress.Set(done_, 0);
}

void ReplyFile::Close() {
  common::ThrowIf(file_->Close());
}

void TellTimeout(const LinkSources& sources, const std::string& localPath) {
  sources.waitWindow.Close();
  sources.prompts.MsgBox(localPath + "\r\n\r\n" + "Timeout waiting for controller", platform::Buttons::Ok,
                         "Upload");
}

}  // namespace morvane::link
