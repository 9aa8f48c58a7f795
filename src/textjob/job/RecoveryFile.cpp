#include "textjob/job/RecoveryFile.h"

#include <cstdint>

#include "common/text/Numbers.h"
#include "common/text/Text.h"

namespace morvane::textjob {
namespace {

constexpr std::string_view kHead = "MORVANE RECOVERY 1 ";
constexpr std::string_view kLineEnd = "\r\n";

// 64-bit FNV-1a: tells every damage that a disk does from the copy that was written.
std::uint64_t Hash(std::string_view bytes) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211U;
  return hash;
}

std::string HeadOf(std::string_view body) {
  return std::string(kHead).append(std::to_string(Hash(body))).append(kLineEnd);
}

// Texts stand behind their length, so that they can hold anything.
void AppendText(std::string& body, std::string_view text) {
  body.append(std::to_string(text.size())).append(",").append(text).append(kLineEnd);
}

bool TakeText(std::string_view& body, std::string_view& text) {
  const std::size_t comma = body.find(',');
  if (comma == std::string_view::npos) return false;
  const std::int32_t length = common::ParseInt32(body.substr(0, comma));
  body.remove_prefix(comma + 1);
  if (length < 0 || static_cast<std::size_t>(length) > body.size()) return false;
  text = body.substr(0, static_cast<std::size_t>(length));
  body.remove_prefix(text.size());
  if (!common::StartsWith(body, kLineEnd)) return false;
  body.remove_prefix(kLineEnd.size());
  return true;
}

}  // namespace

std::string WriteRecovery(const TextJob& job, std::string_view name, std::string_view time) {
  std::string body;
  for (const std::string_view text : {name, time, std::string_view(job.Comment)}) AppendText(body, text);
  for (const std::string& line : job.Lines) AppendText(body, line);
  return HeadOf(body) + body;
}

bool ReadRecovery(std::string_view bytes, RecoveredJob& copy) {
  const std::size_t headEnd = bytes.find(kLineEnd);
  if (headEnd == std::string_view::npos) return false;
  std::string_view body = bytes.substr(headEnd + kLineEnd.size());
  if (!common::StartsWith(bytes, kHead) || !common::StartsWith(bytes, HeadOf(body))) return false;
  std::string_view name, time, comment, line;
  if (!TakeText(body, name) || !TakeText(body, time) || !TakeText(body, comment)) return false;
  copy = {std::string(name), {std::string(comment), {}, true, ""}};
  while (!body.empty()) {
    if (copy.job.LineCount() == kMaxLines || !TakeText(body, line)) return false;
    copy.job.Lines.emplace_back(line);
  }
  return true;
}

}  // namespace morvane::textjob
