// The machine behind one connection: takes the host's bytes, keeps files, answers.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "controller/Outbox.h"
#include "controller/Payload.h"
#include "controller/Store.h"
#include "controller/WireLog.h"

namespace morvane::controller {

class Machine {
 public:
  Machine(const Store& store, WireLog& log) : store_(store), log_(log) {}

  // A new connection; whatever was begun on the last one is gone.
  void Begin(const Faults& faults);
  void Receive(std::string_view bytes);
  // The host fell silent in the middle of a file: what came of it is dropped.
  void Abandon();
  bool Waiting() const { return payload_.has_value() || !line_.empty(); }
  Outbox& Out() { return out_; }

 private:
  struct Command {
    std::string_view word;
    void (Machine::*run)(const std::string& argument);
  };
  static const Command kCommands[];

  void TakeLine(std::string_view line);
  void Keep(const Payload& payload);

  void TextFile(const std::string& name);
  void JobFile(const std::string& name);
  void BinaryFile(const std::string& argument);
  void SendFile(const std::string& name);
  void SendNames(const std::string& pattern);
  void SendJobs(const std::string&);
  void Delete(const std::string& name);
  void Run(const std::string& name);
  void RunFixture(const std::string& argument);
  void RunWait(const std::string& name);
  void Gcode(const std::string& text);
  void Date(const std::string& text);
  void Reboot(const std::string&);

  const Store& store_;
  WireLog& log_;
  Faults faults_;
  Outbox out_;
  std::string line_;
  std::optional<Payload> payload_;
};

}  // namespace morvane::controller
