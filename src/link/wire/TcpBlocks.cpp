#include "link/wire/TcpBlocks.h"

#include <algorithm>

#include "common/RunTimeError.h"

namespace morvane::link {

bool TcpBlocks::Next(std::string_view& block) {
  if (counter_ > file_.size()) return false;
  const std::size_t read = std::min(kTcpReadSize, file_.size() - position_);
  std::copy_n(file_.begin() + static_cast<std::ptrdiff_t>(position_), read, buffer_.begin());
  position_ += read;
  const std::size_t left = file_.size() - counter_;
  if (left == 0) throw common::RunTimeError(common::kSubscriptOutOfRange);
  block = std::string_view(buffer_).substr(0, left < kTcpBlockStep ? left : kTcpReadSize);
  counter_ += kTcpBlockStep;
  return true;
}

}  // namespace morvane::link
