// The commands on the controller link. Like the windows, they use the machine that the settings name.
#include <iostream>

#include "cli/Commands.h"
#include "cli/GlobalArguments.h"
#include "cli/LinkSession.h"
#include "common/files/FileNames.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "link/ControllerNames.h"
#include "link/MachineClock.h"

namespace morvane::cli {
namespace {

int Status(bool done) {
  return done ? kDone : kFailed;
}

// Text of a command, which is one line on the wire.
std::string LineOf(std::string_view argument) {
  if (argument.empty() || argument.find_first_of("\r\n") != std::string_view::npos) throw UsageError();
  return common::FromUtf8(argument);
}

int Send(Environment& environment, const Arguments& arguments, const char* command) {
  Expect(arguments, 1, 1);
  const std::string line = command + LineOf(arguments[0]);
  return Status(LinkSession(environment).Comm().SendCommand(line));
}

int PrintNames(Environment& environment, const std::string& command) {
  LinkSession session(environment);
  const auto names = link::FetchNames(session.Wrappers(), command);
  for (const std::string& name : names.value_or(link::Names())) {
    std::cout << common::ToUtf8(link::PrintableName(name)) << '\n';
  }
  return Status(names.has_value());
}

int Put(Environment& environment, const Arguments& arguments, bool binary) {
  Expect(arguments, 1, 2);
  const std::string local = environment.FileArgument(arguments[0]);
  const std::string name = LineOf(arguments.size() > 1 ? arguments[1] : common::PathFileName(arguments[0]));
  LinkSession session(environment);
  return Status(link::SendFile(session.Wrappers(), local, name, binary));
}

}  // namespace

int LinkFiles(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 1, 1);
  return PrintNames(environment, "QT7250FILES " + LineOf(arguments[0]));
}

int LinkJobs(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 0, 0);
  return PrintNames(environment, "QT7250JOBS");
}

int LinkGet(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 1, 2);
  const std::string name = LineOf(arguments[0]);
  const bool elsewhere = arguments.size() > 1;
  if (!elsewhere && !link::AcceptName(environment.files, environment.prompts, name)) return kFailed;
  const std::string local = elsewhere ? environment.OutputArgument(arguments[1], arguments[0]) : name;
  LinkSession session(environment);
  return Status(link::FetchFile(session.Wrappers(), name, local));
}

int LinkPut(Environment& environment, const Arguments& arguments) {
  return Put(environment, arguments, false);
}

int LinkPutBinary(Environment& environment, const Arguments& arguments) {
  return Put(environment, arguments, true);
}

int LinkPutJob(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 1, 1);
  const std::string local = environment.FileArgument(arguments[0]);
  LinkSession session(environment);
  return Status(link::SendGraphic(session.Wrappers(), local));
}

int LinkDelete(Environment& environment, const Arguments& arguments) {
  return Send(environment, arguments, "QT7250DELETE ");
}

int LinkRun(Environment& environment, const Arguments& arguments) {
  return Send(environment, arguments, "QT7250RUN ");
}

int LinkRunWait(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 1, 2);
  const std::string name = LineOf(arguments[0]);
  int seconds = 0;
  if (arguments.size() > 1) {
    if (!common::IsNumeric(arguments[1])) throw UsageError();
    seconds = common::ParseInt32(arguments[1]);
    if (seconds < 1) throw UsageError();
  }
  LinkSession session(environment);
  if (session.Comm().RunWait(name, seconds)) return kDone;
  environment.prompts.MsgBox("The run did not end well: " + link::PrintableName(name), platform::Buttons::Ok,
                             platform::kApplicationTitle);
  return kFailed;
}

int LinkGcode(Environment& environment, const Arguments& arguments) {
  return Send(environment, arguments, "QT7250GCODE ");
}

int LinkDate(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 0, 0);
  LinkSession session(environment);
  return Status(link::DownloadDateTime(session.Wrappers(), session.Clock()));
}

int LinkCheck(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 0, 0);
  return Status(LinkSession(environment).Comm().Check());
}

}  // namespace morvane::cli
