#include "textjob/job/modTjb.h"

#include "common/RunTimeError.h"
#include "common/files/FileNames.h"
#include "common/text/Lines.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "common/text/Tokenizer.h"
#include "textjob/job/TjbFields.h"

namespace morvane::textjob {
namespace {

using common::FormatPicture;
using common::RunTimeError;

constexpr std::string_view kCommentPrefix = "COMMENT,";
constexpr char kDepthSeparator = 'M';

bool IsDepth(const TjbField& field) {
  return field.name == "Depth";
}

}  // namespace

TextJobLine ParseTjbLine(std::string_view text) {
  TextJobLine line;
  common::TokenScan scan(text);
  for (const TjbField* field : kTjbTokens) {
    bool atEnd = false;
    const std::string_view token = scan.Next(TjbDelimiter(field->place), atEnd);
    if (!token.empty()) {
      if (IsDepth(*field)) {
        ReadDepth(token, line);
      } else {
        SetMember(line, field->member, token);
      }
    }
    if (atEnd) break;
  }
  line.Font = common::ToUpper(line.Font);
  if (ReadInCapitals(line.Type)) line.Text = common::ToUpper(line.Text);
  // A full rewrite writes 0 for a field that the type doesn't have.
  if (line.Compress == 0) line.Compress = 1;
  if (line.Side == 0) line.Side = 1;
  if (line.Tool == 0) line.Tool = 1;
  return line;
}

TextJobLine ParseTjbLine(const TextJob& job, std::size_t index) {
  if (index >= job.Lines.size()) throw RunTimeError(common::kSubscriptOutOfRange);
  return ParseTjbLine(job.Lines[index]);
}

std::string FormatTjbLine(const TextJobLine& record, std::string_view unitsFormat) {
  std::string line;
  for (const TjbField* field : kTjbTokens) {
    line += IsDepth(*field) ? DepthText(record, unitsFormat) : MemberText(record, field->member);
    if (field->place + 1 < kTjbTokenCount) line += TjbDelimiter(field->place);
  }
  return line;
}

void ReadDepth(std::string_view text, TextJobLine& line) {
  const std::size_t separator = text.find(kDepthSeparator);
  line.Depth = common::ParseSingle(text.substr(0, separator));
  line.Depth2 = 0;
  if (separator == std::string_view::npos) return;
  const std::string_view rest = text.substr(separator + 1);
  line.Depth2 = common::ParseSingle(rest.substr(0, rest.find(kDepthSeparator)));
}

std::string DepthText(const TextJobLine& line, std::string_view unitsFormat) {
  std::string depth = FormatPicture(line.Depth, unitsFormat);
  if (line.Depth2 != 0) depth += kDepthSeparator + FormatPicture(line.Depth2, unitsFormat);
  return depth;
}

std::string FontToken(std::string_view font) {
  return common::ToUpper(common::FileBaseName(font)) + ".fnt";
}

void ReadTjb(std::string_view bytes, TextJob& job) {
  common::Lines lines(bytes);
  std::string_view line;
  while (lines.Next(line)) {
    if (common::StartsWith(line, kCommentPrefix)) {
      job.Comment = line.substr(kCommentPrefix.size());
    } else if (!line.empty()) {
      if (job.Lines.size() == kMaxLines) throw RunTimeError(common::kSubscriptOutOfRange);
      job.Lines.emplace_back(line);
    }
  }
}

std::string WriteTjb(const TextJob& job) {
  std::string bytes(kCommentPrefix);
  bytes += job.Comment + "\r\n";
  for (const std::string& line : job.Lines) bytes += line + "\r\n";
  return bytes;
}

}  // namespace morvane::textjob
