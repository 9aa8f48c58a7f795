#include "link/modComm.h"

#include "common/RunTimeError.h"
#include "link/wire/LineEnds.h"
#include "link/wire/SerialTransfer.h"
#include "link/wire/TcpTransfer.h"

namespace morvane::link {
namespace {

// Outside the base directory: the one file that the controller's tools look for as well.
constexpr const char* kRunReply = "C:\\run.ret";

}  // namespace

// One operation from its claim on the link to its end. A run-time error closes the link and is told behind
// the operation's name.
template <typename Work>
bool Comm::Run(const char* serialName, const char* tcpName, Work&& work) {
  if (sources_.abort || !owner_.Begin()) {
    // Nobody else takes the window away, but for an operation that runs.
    if (owner_.Now() != LinkOwner::State::Operation) sources_.waitWindow.Close();
    return false;
  }
  const LinkSettings settings = ReadLinkSettings(sources_.settings);
  bool done = false;
  std::string failure;
  try {
    done = work(settings);
  } catch (const common::RunTimeError& error) {
    failure = std::string(settings.IsTcp() ? tcpName : serialName) + '-' + error.description();
  }
  link_.Drop();
  owner_.End();
  sources_.progress.Clear();
  // Over TCP the operation itself takes the wait window away; on the serial line its caller does, unless
  // the operation broke off.
  if (settings.IsTcp() || !failure.empty() || sources_.abort) sources_.waitWindow.Close();
  if (!failure.empty() && !sources_.abort) sources_.prompts.MsgBox(failure);
  return done;
}

bool Comm::DownloadFile(const std::string& command, const std::string& localPath) {
  return Run("DownloadFile", "DownloadFileTcp", [&](const LinkSettings& settings) {
    return settings.IsTcp() ? DownloadTcp(link_, settings.ip, command, localPath)
                            : DownloadSerial(link_, settings.comPort, command, localPath);
  });
}

bool Comm::DownloadBinaryFile(const std::string& command, const std::string& localPath) {
  return Run("DownloadBinaryFile", "DownloadBinaryFileTcp", [&](const LinkSettings& settings) {
    return settings.IsTcp() ? DownloadBinaryTcp(link_, settings.ip, command, localPath)
                            : DownloadBinarySerial(link_, settings.comPort, command, localPath);
  });
}

bool Comm::UploadFile(const std::string& command, const std::string& localPath) {
  return Run("UploadFile", "UploadFileTcp", [&](const LinkSettings& settings) {
    return settings.IsTcp() ? UploadTcp(link_, settings.ip, command, localPath, kReplySeconds)
                            : UploadSerial(link_, settings.comPort, command, localPath, {});
  });
}

bool Comm::UploadFileTimed(const std::string& command, const std::string& localPath, int& timeout) {
  if (timeout == 0) timeout = kReplySeconds;
  return Run("UploadFile", "UploadFileTcp", [&](const LinkSettings& settings) {
    return settings.IsTcp()
               ? UploadTcp(link_, settings.ip, command, localPath, timeout)
               : UploadSerial(link_, settings.comPort, command, localPath, {timeout, false, false});
  });
}

bool Comm::Check() {
  return Run("RS232ComCheck", "ConnectTcp", [&](const LinkSettings& settings) {
    if (!settings.IsTcp()) return RequireAnswer(link_, settings.comPort);
    const bool connected = link_.ConnectTcp(settings.ip, true);
    if (connected) link_.CloseTcp();
    return connected && !link_.Aborted();
  });
}

bool Comm::SendCommand(const std::string& command) {
  return Run("SendCommand", "SendCommandTcp", [&](const LinkSettings& settings) {
    return settings.IsTcp() ? SendCommandTcp(link_, settings.ip, command)
                            : SendCommandSerial(link_, settings.comPort, command);
  });
}

bool Comm::RunWait(const std::string& name, int timeout) {
  if (!UploadFileTimed("QT7250RUNWAIT " + name, kRunReply, timeout)) return false;
  try {
    const std::vector<std::string> lines = ReadLines(sources_.files, kRunReply);
    return !lines.empty() && lines[0] == "SUCCESS";
  } catch (const common::RunTimeError&) {
    return false;
  }
}

}  // namespace morvane::link
