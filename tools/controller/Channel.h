// Bytes between one descriptor and the machine, with the faults of the wire.
#pragma once

#include <string>

#include "controller/Machine.h"

namespace morvane::controller {

enum class End { None, Left, Drop, Reset };  // Left: by the host; the others by a fault

class Channel {
 public:
  Channel(std::string name, const Store& store, WireLog& log)
      : name_(std::move(name)), log_(log), machine_(store, log) {}

  // A host is there. The descriptor does not block; it stays its owner's.
  void Attach(int descriptor, const Faults& faults, long now);
  void Detach();
  bool Attached() const { return descriptor_ >= 0; }
  int Descriptor() const { return descriptor_; }
  // What comes from now on is thrown away, and nothing more is sent.
  void Discard() { discarding_ = true; }

  // What to poll for.
  short Events() const;
  bool Sending() { return Attached() && !machine_.Out().Empty(); }
  // Moves what can be moved. `events` is what the poll told, `now` milliseconds.
  End Move(short events, long now);

 private:
  bool Read(short events, long now);
  bool Write(long now);
  std::size_t Allowed(std::size_t most) const;

  std::string name_;
  WireLog& log_;
  Machine machine_;
  Faults faults_;
  int descriptor_ = -1;
  bool discarding_ = false;
  std::size_t moved_ = 0;  // bytes both ways
  std::size_t taken_ = 0;
  long heard_ = 0;
};

}  // namespace morvane::controller
