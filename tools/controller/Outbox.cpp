#include "controller/Outbox.h"

#include <algorithm>
#include <utility>

namespace morvane::controller {
namespace {

constexpr std::size_t kBlock = 4096;
constexpr long kSplitGap = 5;  // so that each piece arrives on its own

}  // namespace

void Outbox::SetFaults(const Faults& faults) {
  pieces_.clear();
  at_ = 0;
  ready_.reset();
  left_ = faults.Get(Fault::SilentAfter);
  most_ = static_cast<std::size_t>(faults.Get(Fault::Split).value_or(kBlock));
  gap_ = faults.Get(Fault::Slow).value_or(faults.Has(Fault::Split) ? kSplitGap : 0);
}

void Outbox::Add(std::string bytes, long pause, long repeats) {
  if (!bytes.empty()) pieces_.push_back({std::move(bytes), pause, repeats});
}

std::string_view Outbox::Due(long now) {
  if (left_ == std::size_t{0}) pieces_.clear();
  if (pieces_.empty()) {
    at_ = 0;
    ready_.reset();
    return {};
  }
  if (!ready_) ready_ = now + gap_ + (at_ == 0 ? pieces_.front().pause : 0);
  if (now < *ready_) return {};
  return std::string_view(pieces_.front().bytes).substr(at_, std::min(most_, left_.value_or(most_)));
}

void Outbox::Sent(std::size_t count) {
  ready_.reset();
  if (left_) *left_ -= count;
  at_ += count;
  Piece& piece = pieces_.front();
  if (at_ < piece.bytes.size()) return;
  at_ = 0;
  if (piece.repeats == 0) {
    pieces_.pop_front();
  } else if (piece.repeats > 0) {
    --piece.repeats;
  }
}

}  // namespace morvane::controller
