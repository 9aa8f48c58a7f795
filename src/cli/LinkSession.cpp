#include "cli/LinkSession.h"

namespace morvane::cli {

LinkSession::LinkSession(Environment& environment)
    : environment_(environment),
      operations_(environment.abort),
      clock_(operations_, environment.now),
      dialogs_(environment.prompts, environment.files, folders_),
      serial_(environment.settings),
      comm_({environment.files, environment.settings, clock_, environment.prompts, wait_, progress_, serial_,
             tcp_, environment.abort}) {
  environment.files.EnsureTemp();
}

link::WrapperSources LinkSession::Wrappers() {
  return {environment_.files, dialogs_, environment_.prompts, wait_, comm_};
}

}  // namespace morvane::cli
