// The machine's serial line: a pseudo-terminal, under a name of its own when one is wanted.
#pragma once

#include <string>

namespace morvane::controller {

class Terminal {
 public:
  Terminal() = default;
  ~Terminal();
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  // `link` becomes a symbolic link to the host's end; only another link is replaced for it. False with
  // `error` when it cannot be had.
  bool Open(const std::string& link, std::string& error);
  bool IsOpen() const { return machine_ >= 0; }
  int Descriptor() const { return machine_; }
  const std::string& Name() const { return name_; }
  // True while a host has the line open.
  bool HostIsThere() const;
  // As if the cable's adapter were pulled out and another put in.
  bool Replace(std::string& error);

 private:
  void Close();

  std::string link_;
  std::string name_;
  int machine_ = -1;
};

}  // namespace morvane::controller
