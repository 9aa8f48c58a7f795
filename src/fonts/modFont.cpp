#include "fonts/modFont.h"

#include <algorithm>

#include "common/Attempt.h"
#include "common/RunTimeError.h"
#include "common/files/FileNames.h"
#include "common/text/Lines.h"
#include "common/text/Numbers.h"
#include "common/text/Tokenizer.h"

namespace morvane::fonts {
namespace {

using common::RunTimeError;

constexpr std::string_view kExtension = ".FNT";
// Marks an extreme that no coordinate has set yet.
constexpr float kNotSet = -1.0F;

// Native path of the font's file. Throws for a document's name that leads out of the base directory.
std::string FontFile(const std::string& name, FontOrigin origin, const common::Files& files) {
  const auto resolved = [&](const std::string& file) {
    return origin == FontOrigin::Document ? files.ResolveInside(file) : files.Resolve(file);
  };
  std::string path = resolved(name);
  return files.FileExists(path) ? path : resolved(common::FileBaseName(name) + std::string(kExtension));
}

void StretchToCell(std::vector<FontSegment>& segments) {
  float largest = kNotSet;
  float smallest = kNotSet;
  for (const FontSegment& segment : segments) {
    for (const float x : {segment.X1, segment.X2}) {
      if (largest == kNotSet || x > largest) largest = x;
      if (smallest == kNotSet || x < smallest) smallest = x;
    }
  }
  // In double: the difference of two floats may exceed a float.
  const double span = double{largest} - smallest;
  for (FontSegment& segment : segments) {
    for (float* x : {&segment.X1, &segment.X2})
      *x = span == 0 ? 0.5F : static_cast<float>((double{*x} - smallest) / span);
  }
}

}  // namespace

FontLines ParseFont(std::string_view bytes) {
  FontLines file;
  file.lines.emplace_back();
  common::Lines lines(bytes);
  std::string_view line;
  while (file.lines.size() < kFontCodes && lines.Next(line)) file.lines.emplace_back(line);
  return file;
}

void ReadFont(std::shared_ptr<const FontLines> file, FontTable& table) {
  if (table.content == file) return;
  std::copy(file->lines.begin() + 1, file->lines.end(), table.FontChars.begin() + 1);
  // Behind a short file stand entries of an earlier one: such a table is like no other.
  const bool whole = file->lines.size() == kFontCodes;
  table.content = whole ? std::move(file) : std::make_shared<const FontLines>();
}

bool LoadFont(FontTable& table, const std::string& name, FontOrigin origin, const common::Files& files,
              platform::Prompts& prompts) {
  table.FontName = name;
  std::string file;
  try {
    file = FontFile(name, origin, files);
  } catch (const RunTimeError&) {
    return false;
  }
  try {
    ReadFont(files.ReadAs<ParseFont>(file), table);
    table.missing.erase(name);
    return true;
  } catch (const RunTimeError& error) {
    const bool first = table.missing.insert(name).second;
    if (first || origin == FontOrigin::Operator) {
      prompts.MsgBox("Font File Error: " + error.description());
    }
    return false;
  }
}

std::string WriteFont(const FontTable& table) {
  std::string bytes;
  for (std::size_t code = 1; code < kFontCodes; ++code) bytes += table.FontChars[code] + "\r\n";
  return bytes;
}

bool SaveFont(const FontTable& table, const std::string& name, const common::Files& files,
              platform::Prompts& prompts) {
  return common::AttemptTold(prompts, "", [&] { files.Save(name, WriteFont(table)); });
}

void loadFontChar(const FontTable& table, int code, std::vector<FontSegment>& segments, bool forward,
                  float width) {
  segments.clear();
  if (code < 0 || code >= kFontCodes) throw RunTimeError(common::kSubscriptOutOfRange);
  const std::string& line = table.FontChars[static_cast<std::size_t>(code)];
  if (line.empty()) return;
  common::TokenScan scan(line);
  common::StrictNumber(scan.Next(":"));
  while (segments.size() < kMaxSegments) {
    const std::string_view first = scan.Next(",");
    if (first.empty()) break;
    const float x1 = common::ParseSingle(first);
    const float y1 = common::ParseSingle(scan.Next(","));
    const float x2 = common::ParseSingle(scan.Next(","));
    const float y2 = common::ParseSingle(scan.Next(";"));
    segments.push_back(forward ? FontSegment{x1, y1, x2, y2} : FontSegment{x2, y2, x1, y1});
  }
  if (!forward) std::reverse(segments.begin(), segments.end());
  if (width != 0) StretchToCell(segments);
}

void getToken(std::string_view source, std::size_t& position, std::size_t& endPosition,
              std::string_view delimiter, std::string& result) {
  const std::size_t from = std::min(position, source.size());
  endPosition = source.find(delimiter, from);
  const bool found = endPosition != std::string_view::npos;
  result = found ? source.substr(from, endPosition - from) : source.substr(from);
  position = found ? endPosition + delimiter.size() : endPosition;
}

bool ReadFontLine(std::string_view line, int code, std::vector<FontSegment>& segments) {
  segments.clear();
  std::size_t position = 0;
  std::size_t end = 0;
  std::string token;
  getToken(line, position, end, ":", token);
  if (common::ParseInt32(token) != code) return false;
  while (position < line.size() && segments.size() < kMaxSegments) {
    FontSegment segment;
    for (float* number : {&segment.X1, &segment.Y1, &segment.X2}) {
      getToken(line, position, end, ",", token);
      if (position == std::string_view::npos) return true;
      *number = common::ParseSingle(token);
    }
    getToken(line, position, end, ";", token);
    segment.Y2 = common::ParseSingle(token);
    segments.push_back(segment);
  }
  return true;
}

}  // namespace morvane::fonts
