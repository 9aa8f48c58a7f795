// What the machine still has to send: pieces with pauses between them, as the faults want it.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "controller/Faults.h"

namespace morvane::controller {

// Times are milliseconds from an arbitrary start.
class Outbox {
 public:
  void SetFaults(const Faults& faults);
  // Sends `bytes` after a pause, `repeats` times more than once; negative: without end.
  void Add(std::string bytes, long pause = 0, long repeats = 0);
  void Clear() { pieces_.clear(); }

  bool Empty() const { return pieces_.empty(); }
  // What may be sent now; empty when nothing is due.
  std::string_view Due(long now);
  void Sent(std::size_t count);

 private:
  struct Piece {
    std::string bytes;
    long pause = 0;
    long repeats = 0;
  };

  std::deque<Piece> pieces_;
  std::size_t at_ = 0;               // in the first piece
  std::optional<long> ready_;        // when the next bytes are due
  std::optional<std::size_t> left_;  // bytes until the machine falls silent
  std::size_t most_ = 4096;          // bytes at a time
  long gap_ = 0;                     // before each of them
};

}  // namespace morvane::controller
