// The link while a window holds it open: a pendant, a diagnostic report, a stream of taught lines. It opens
// once, gives what arrived whenever it is asked, sends, and closes; in between it stays as it is.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "link/modComm.h"

namespace morvane::link {

class HeldLink {
 public:
  // `release` is asked when an operation wants the link. The window may still send its farewell in it;
  // after a True the link is closed. Without one the link is never given up.
  explicit HeldLink(Comm& comm, std::function<bool()> release = {});
  // Closes at once.
  ~HeldLink();
  HeldLink(const HeldLink&) = delete;
  HeldLink& operator=(const HeldLink&) = delete;

  // Takes the link, reads the settings and connects; what was received before is gone. False, for the
  // next tick to try again: in silence while someone else has the link or the port cannot be opened, after
  // the box of the time-out when nobody answers over TCP.
  bool Open();
  // False also when the machine or the port has gone meanwhile. What arrived before can still be taken.
  bool IsOpen() const;
  // The settings that Open found.
  const LinkSettings& Settings() const { return settings_; }

  // One received line with its end, or up to 1024 characters; empty when there is none.
  std::string TakeLine();
  std::string TakeChunk();
  // Waits for nothing. False when the link is not open or the machine takes nothing any more.
  bool Send(std::string_view bytes);
  // Waits the close delay; the link is free behind it.
  void Close();

 private:
  bool Yield();
  bool Connect();

  Comm& comm_;
  std::function<bool()> release_;
  LinkSettings settings_;
  bool holds_ = false;
  bool busy_ = false;  // opens or closes, with events running
};

}  // namespace morvane::link
