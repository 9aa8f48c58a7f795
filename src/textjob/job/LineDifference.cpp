#include "textjob/job/LineDifference.h"

#include <algorithm>

namespace morvane::textjob {
namespace {

using Lines = std::vector<std::string>;

template <typename Sequence>
std::size_t CommonStart(const Sequence& a, const Sequence& b) {
  const std::size_t most = std::min(a.size(), b.size());
  std::size_t count = 0;
  while (count < most && a[count] == b[count]) ++count;
  return count;
}

// What both end in, without what they start in.
template <typename Sequence>
std::size_t CommonEnd(const Sequence& a, const Sequence& b, std::size_t start) {
  const std::size_t most = std::min(a.size(), b.size()) - start;
  std::size_t count = 0;
  while (count < most && a[a.size() - 1 - count] == b[b.size() - 1 - count]) ++count;
  return count;
}

template <typename Sequence>
auto Place(Sequence& lines, std::size_t index) {
  return lines.begin() + static_cast<std::ptrdiff_t>(index);
}

void ReplaceLines(Lines& lines, std::size_t from, std::size_t count, const Lines& by) {
  lines.erase(Place(lines, from), Place(lines, from + count));
  lines.insert(Place(lines, from), by.begin(), by.end());
}

std::size_t HeapBytes(const std::string& text) {
  return text.capacity() >= sizeof(std::string) / 2 ? text.capacity() : 0;
}

}  // namespace

LineDifference::LineDifference(const Lines& before, const Lines& after) {
  const std::size_t start = CommonStart(before, after);
  const std::size_t end = CommonEnd(before, after, start);
  if (before.size() != after.size()) {
    range_.from = start;
    range_.before.assign(Place(before, start), Place(before, before.size() - end));
    range_.after.assign(Place(after, start), Place(after, after.size() - end));
    return;
  }
  for (std::size_t i = start; i < before.size() - end; ++i) {
    const std::string& old = before[i];
    const std::string& now = after[i];
    if (old == now) continue;
    const std::size_t at = CommonStart(old, now);
    const std::size_t tail = CommonEnd(old, now, at);
    pieces_.push_back({static_cast<std::uint32_t>(i), static_cast<std::uint32_t>(at),
                       old.substr(at, old.size() - tail - at), now.substr(at, now.size() - tail - at)});
  }
}

void LineDifference::Redo(Lines& lines) const {
  for (const Piece& piece : pieces_) lines[piece.line].replace(piece.at, piece.before.size(), piece.after);
  if (pieces_.empty()) ReplaceLines(lines, range_.from, range_.before.size(), range_.after);
}

void LineDifference::Undo(Lines& lines) const {
  for (const Piece& piece : pieces_) lines[piece.line].replace(piece.at, piece.after.size(), piece.before);
  if (pieces_.empty()) ReplaceLines(lines, range_.from, range_.after.size(), range_.before);
}

std::size_t LineDifference::Bytes() const {
  std::size_t bytes = pieces_.capacity() * sizeof(Piece);
  for (const Piece& piece : pieces_) bytes += HeapBytes(piece.before) + HeapBytes(piece.after);
  for (const Lines* lines : {&range_.before, &range_.after}) {
    bytes += lines->capacity() * sizeof(std::string);
    for (const std::string& line : *lines) bytes += HeapBytes(line);
  }
  return bytes;
}

}  // namespace morvane::textjob
