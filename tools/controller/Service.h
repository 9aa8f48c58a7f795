// Serves both transports until the program is told to end.
#pragma once

#include "controller/Channel.h"
#include "controller/Options.h"
#include "controller/TcpPort.h"
#include "controller/Terminal.h"

namespace morvane::controller {

class Service {
 public:
  Service(const Options& options, const Store& store, WireLog& log);

  // False with `error` when a transport cannot be had.
  bool Open(std::string& error);
  // Returns when `stop`, a descriptor, becomes readable.
  void Run(int stop);

 private:
  void ServeTcp(short events, bool waiting, long now);
  void ServeTerminal(short events, long now);

  const Options& options_;
  WireLog& log_;
  Faults faults_;
  TcpPort port_;
  Terminal terminal_;
  Channel tcp_;
  Channel serial_;
};

}  // namespace morvane::controller
