#include "controller/Payload.h"

#include <algorithm>

#include "common/text/Text.h"

namespace morvane::controller {
namespace {

constexpr std::size_t kMostBytes = 64 * 1024 * 1024;  // the machine's memory
constexpr std::size_t kSenderBlock = 2900;
constexpr std::string_view kMarkers[] = {"ENDFILE", "ENDJOB"};

std::string_view WithoutLineEnd(std::string_view line) {
  while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

Payload::Payload(std::string name, std::size_t length, std::int64_t sum)
    : name_(std::move(name)), binary_(true), length_(length), surplus_(length / kSenderBlock), told_(sum) {
  Check();
}

std::size_t Payload::Take(std::string_view bytes) {
  return binary_ ? TakeBinary(bytes) : TakeText(bytes);
}

std::size_t Payload::TakeText(std::string_view bytes) {
  const std::size_t newLine = bytes.find('\n');
  const std::string_view piece = bytes.substr(0, newLine == std::string_view::npos ? newLine : newLine + 1);
  if (bytes_.size() + piece.size() <= kMostBytes) bytes_ += piece;
  if (newLine == std::string_view::npos) return piece.size();
  const std::string_view line =
      WithoutLineEnd(std::string_view(bytes_).substr(std::min(lineStart_, bytes_.size())));
  for (const std::string_view marker : kMarkers) {
    if (line.size() < marker.size() || line.substr(line.size() - marker.size()) != marker) continue;
    bytes_.resize(lineStart_ + line.size() - marker.size());
    done_ = true;
    break;
  }
  lineStart_ = bytes_.size();
  return piece.size();
}

std::size_t Payload::TakeBinary(std::string_view bytes) {
  std::size_t taken = 0;
  for (; taken < bytes.size() && !done_; ++taken) {
    sum_ += static_cast<unsigned char>(bytes[taken]);
    if (bytes_.size() < length_) {
      bytes_ += bytes[taken];
    } else {
      --surplus_;
    }
    Check();
  }
  return taken;
}

void Payload::Check() {
  if (bytes_.size() < length_) return;
  good_ = sum_ == told_;
  done_ = good_ || surplus_ == 0;
}

}  // namespace morvane::controller
