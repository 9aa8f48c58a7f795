#include "textjob/job/TjbFields.h"

#include "common/text/Numbers.h"

namespace morvane::textjob {

constexpr std::array<TjbField, kTjbFieldCount> kFields = {{
    {"Type", &TextJobLine::Type, 0},          {"XPos", &TextJobLine::XPos, 1},
    {"YPos", &TextJobLine::YPos, 2},          {"Height", &TextJobLine::Height, 3},
    {"Compress", &TextJobLine::Compress, 10}, {"Font", &TextJobLine::Font, 4},
    {"Text", &TextJobLine::Text, 9},          {"Style", &TextJobLine::Style, 5},
    {"Angle", &TextJobLine::Angle, 7},        {"Radius", &TextJobLine::Radius, 8},
    {"Incr", &TextJobLine::Incr, 6},          {"Side", &TextJobLine::Side, 11},
    {"Tool", &TextJobLine::Tool, 12},         {"Depth", &TextJobLine::Depth, 13},
    {"Depth2", &TextJobLine::Depth2, 13},     {"Justify", &TextJobLine::Justify, 14},
    {"Prompt", &TextJobLine::Prompt, 15},     {"ScaleX", &TextJobLine::ScaleX, 16},
    {"ScaleY", &TextJobLine::ScaleY, 17},     {"Rotate", &TextJobLine::Rotate, 18},
    {"Location", &TextJobLine::Location, 19}, {"LateStart", &TextJobLine::LateStart, 20},
    {"LateEnd", &TextJobLine::LateEnd, 21},   {"EarlyShut", &TextJobLine::EarlyShut, 22},
    {"Overlap", &TextJobLine::Overlap, 23},   {"OverlapHt", &TextJobLine::OverlapHt, 24},
    {"Width", &TextJobLine::Width, 26},       {"KeepRatio", &TextJobLine::KeepRatio, 25},
    {"Margin", &TextJobLine::Margin, 27},     {"Backlash", &TextJobLine::Backlash, 28},
    {"Spacing", &TextJobLine::Spacing, 29},
}};

const std::array<TjbField, kTjbFieldCount> kTjbFields = kFields;

namespace {

// One conversion for each type of field.
struct Convert {
  TextJobLine& line;
  std::string_view token;

  void operator()(std::int32_t TextJobLine::*member) const { line.*member = common::ParseInt32(token); }
  void operator()(std::int16_t TextJobLine::*member) const { line.*member = common::ParseInt16(token); }
  void operator()(float TextJobLine::*member) const { line.*member = common::ParseSingle(token); }
  void operator()(std::string TextJobLine::*member) const { line.*member = token; }
};

struct Write {
  const TextJobLine& line;

  std::string operator()(std::int32_t TextJobLine::*member) const {
    return common::PlainNumber(line.*member);
  }
  std::string operator()(std::int16_t TextJobLine::*member) const {
    return common::PlainNumber(std::int32_t{line.*member});
  }
  std::string operator()(float TextJobLine::*member) const { return common::PlainNumber(line.*member); }
  std::string operator()(std::string TextJobLine::*member) const { return line.*member; }
};

constexpr std::array<const TjbField*, kTjbTokenCount> ByPlace() {
  std::array<const TjbField*, kTjbTokenCount> tokens = {};
  for (const TjbField& field : kFields) {
    if (field.name != "Depth2") tokens[static_cast<std::size_t>(field.place)] = &field;
  }
  return tokens;
}

}  // namespace

const std::array<const TjbField*, kTjbTokenCount> kTjbTokens = ByPlace();

std::string MemberText(const TextJobLine& line, const TjbMember& member) {
  return std::visit(Write{line}, member);
}

void SetMember(TextJobLine& line, const TjbMember& member, std::string_view text) {
  std::visit(Convert{line, text}, member);
}

}  // namespace morvane::textjob
