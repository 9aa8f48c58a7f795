#include "controller/Machine.h"

#include <algorithm>
#include <utility>

#include "common/files/FileNames.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "controller/Replies.h"

namespace morvane::controller {
namespace {

constexpr std::size_t kLongestLine = 4096;
constexpr std::string_view kPrefix = "QT7250";
constexpr std::string_view kSystemFile = "COMMAND.COM";  // what a host asks for to see that someone is there

}  // namespace

// A word that begins another stands behind it.
const Machine::Command Machine::kCommands[] = {
    {"QT7250DFILE", &Machine::TextFile},
    {"QT7250DLBIN", &Machine::BinaryFile},
    {"QT7250FILES", &Machine::SendNames},
    {"QT7250FILE", &Machine::SendFile},
    {"QT7250JOBS", &Machine::SendJobs},
    {"QT7250DELETE", &Machine::Delete},
    {"QT7250RUNFIX", &Machine::RunFixture},
    {"QT7250RUNWAIT", &Machine::RunWait},
    {"QT7250RUN", &Machine::Run},
    {"QT7250GCODE", &Machine::Gcode},
    {"QT7250DATE", &Machine::Date},
    {"REBOOT", &Machine::Reboot},
    {"JOB", &Machine::JobFile},
};

void Machine::Begin(const Faults& faults) {
  Abandon();
  faults_ = faults;
  out_.SetFaults(faults);
}

void Machine::Abandon() {
  if (payload_) log_.Note("dropped " + Printable(payload_->Name()) + ": it ended too early");
  payload_.reset();
  line_.clear();
}

void Machine::Receive(std::string_view bytes) {
  while (!bytes.empty()) {
    if (payload_) {
      bytes.remove_prefix(payload_->Take(bytes));
    } else {
      const std::size_t end = bytes.find('\n');
      line_ += bytes.substr(0, end);
      // What is too long for a line is noise; a command may still stand at its end.
      if (line_.size() > kLongestLine) line_.erase(0, line_.size() - kLongestLine);
      bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
      if (end != std::string_view::npos) TakeLine(std::exchange(line_, {}));
    }
    if (payload_ && payload_->Done()) {
      Keep(*payload_);
      payload_.reset();
    }
  }
}

void Machine::TakeLine(std::string_view line) {
  // The surplus of a binary file may stand before the next command.
  const std::size_t prefix = line.find(kPrefix);
  if (prefix != std::string_view::npos) line.remove_prefix(prefix);
  line = line.substr(0, line.find('\r'));
  if (line.empty()) return;
  for (const Command& command : kCommands) {
    if (!common::StartsWith(line, command.word)) continue;
    const std::string_view rest = line.substr(command.word.size());
    if (!rest.empty() && rest[0] != ' ') continue;
    return (this->*command.run)(common::TrimRightControl(common::TrimLeftControl(rest)));
  }
  log_.Note("unknown: " + Printable(line));
}

void Machine::Keep(const Payload& payload) {
  const std::string name = Printable(payload.Name());
  if (!payload.Good()) return log_.Note("dropped " + name + ": the sum is wrong");
  if (!store_.Put(payload.Name(), payload.Bytes())) return log_.Note("refused " + name);
  log_.Note("stored " + name + ", " + std::to_string(payload.Bytes().size()) + " bytes");
}

void Machine::TextFile(const std::string& name) {
  payload_.emplace(name);
}

void Machine::JobFile(const std::string& name) {
  payload_.emplace(name + ".JOB");
}

// NAME,LENGTH,SUM
void Machine::BinaryFile(const std::string& argument) {
  const std::size_t second = argument.rfind(',');
  const std::size_t first =
      second == std::string::npos || second == 0 ? second : argument.rfind(',', second - 1);
  if (first == std::string::npos || second == 0)
    return log_.Note("unknown: QT7250DLBIN " + Printable(argument));
  const double length = common::ParseNumber(argument.substr(first + 1));
  const double sum = common::ParseNumber(argument.substr(second + 1));
  payload_.emplace(argument.substr(0, first), static_cast<std::size_t>(std::clamp(length, 0.0, 1e9)),
                   static_cast<std::int64_t>(std::clamp(sum, 0.0, 1e12)));
}

void Machine::SendFile(const std::string& name) {
  const std::optional<std::string> bytes = store_.Get(name);
  log_.Note((bytes ? "sent " : "does not have ") + Printable(name));
  Reply(out_, faults_, bytes.value_or(""));
}

void Machine::SendNames(const std::string& pattern) {
  if (common::EqualIgnoringCase(pattern, kSystemFile))
    return Reply(out_, faults_, std::string(kSystemFile) + "\r\n");
  ReplyNames(out_, faults_, store_.List(pattern));
}

void Machine::SendJobs(const std::string&) {
  std::vector<std::string> names = store_.List("*.JOB");
  for (std::string& name : names) name = common::FileBaseName(name);
  ReplyNames(out_, faults_, names);
}

void Machine::Delete(const std::string& name) {
  log_.Note((store_.Remove(name) ? "deleted " : "does not have ") + Printable(name));
}

void Machine::Run(const std::string& name) {
  log_.Note((store_.Has(name) ? "ran " : "does not have ") + Printable(name));
}

// FIXTURE,JOB
void Machine::RunFixture(const std::string& argument) {
  const std::size_t comma = argument.find(',');
  const std::string fixture = argument.substr(0, comma);
  const std::string job = comma == std::string::npos ? "" : argument.substr(comma + 1);
  const bool there = store_.Has(fixture) && store_.Has(job);
  log_.Note((there ? "ran " : "does not have both ") + Printable(job) + (there ? " on " : " and ") +
            Printable(fixture));
}

void Machine::RunWait(const std::string& name) {
  Run(name);
  Reply(out_, faults_, store_.Has(name) ? "SUCCESS\r\n" : "File not found\r\n");
}

void Machine::Gcode(const std::string& text) {
  log_.Note("G-code " + Printable(text));
}

void Machine::Date(const std::string& text) {
  log_.Note("clock set to " + Printable(text));
}

void Machine::Reboot(const std::string&) {
  out_.Clear();
  log_.Note("rebooted");
}

}  // namespace morvane::controller
