// The open link: both transports behind the few steps that every operation is made of.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "link/wire/CommBuffer.h"
#include "link/wire/LinkSources.h"

namespace morvane::link {

inline constexpr int kTcpPort = 2000;
inline constexpr int kConnectSeconds = 10;
inline constexpr int kCheckSeconds = 5;
inline constexpr int kReplySeconds = 10;
inline constexpr int kCloseDelay = 1000;  // milliseconds, before a line is closed
inline constexpr int kDrainRounds = 10;   // of 1000 ms
inline constexpr int kPoll = 1;           // milliseconds between two looks at what arrived
inline constexpr const char* kSerialSettings = "38400,n,8,1";

class Link {
 public:
  // Takes the events of both transports.
  explicit Link(const LinkSources& sources);
  ~Link();
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;

  // Throws the port's failure as a run-time error.
  void OpenSerial(int comPort);
  // Waits the close delay and closes, if the port is open. Throws when the port failed meanwhile.
  void CloseSerial();
  // True when connected. A time-out is told when `showMessage` is set; a closing program is not.
  bool ConnectTcp(const std::string& address, bool showMessage);
  // Waits 1000 ms and closes.
  void CloseTcp();
  // Closes whatever is open, at once.
  void Drop();

  // Sends on a port that is held up to 4 KB at a time: the sender waits for room, so that no more than that
  // is at stake when the port closes. False when the line takes nothing any more or the program closes.
  bool SendSerial(std::string_view bytes);
  void SendTcp(std::string_view bytes);
  // For a held link: sends and waits for nothing. False, with nothing sent, when too much is queued already.
  bool Post(bool tcp, std::string_view bytes);
  bool Connected(bool tcp) const;
  // Waits the close delay and closes, whatever became of the port meanwhile.
  void CloseHeld(bool tcp);
  // Up to 10 rounds of 1000 ms until nothing is queued; then tells what is stuck.
  void DrainSerial();
  void DrainTcp();

  // True when a controller answers on the serial line. The line is closed afterwards.
  bool RS232ComCheck(int comPort);

  CommBuffer& Buffer() { return buffer_; }
  std::string TakeLine();
  std::string TakeChunk();

  // Whole seconds: time-outs are accurate to one.
  std::int64_t Now() const;
  bool Aborted() const { return sources_.abort; }
  void CheckSerial() const;
  const LinkSources& Sources() const { return sources_; }

 private:
  void Receive();
  void Drain(bool tcp);
  std::size_t Queued(bool tcp) const;

  LinkSources sources_;
  CommBuffer buffer_;
  std::size_t bytesRemaining_ = 0;  // TCP: not yet handed to the network
};

}  // namespace morvane::link
