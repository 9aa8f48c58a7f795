#include "textjob/edit/PropertyRows.h"

#include <algorithm>
#include <set>
#include <utility>

#include "common/files/FileNames.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "textjob/job/Selection.h"
#include "textjob/job/modTjb.h"

namespace morvane::textjob {
namespace {

using common::FormatPicture;

bool HasStyle(const TextJobLine& line, std::initializer_list<TextStyle> styles) {
  WordAt(StyleWords(), line.Style);
  return std::find(styles.begin(), styles.end(), line.Style) != styles.end();
}

bool Needed(RowNeed need, const TextJobLine& line, const RowContext& context) {
  switch (need) {
    case RowNeed::ProFonts:
      return context.proFonts;
    case RowNeed::Sides:
      return context.sides;
    case RowNeed::Regular:
      return HasStyle(line, {kRegular});
    case RowNeed::Turned:
      return HasStyle(line, {kArcText, kAngular, kRadiusText});
    case RowNeed::Round:
      return HasStyle(line, {kArcText, kRadiusText});
    case RowNeed::OnRadius:
      return HasStyle(line, {kRadiusText});
    default:
      return true;
  }
}

// A number of any type of field; a text is none.
struct ToNumber {
  const TextJobLine& line;

  float operator()(std::string TextJobLine::*) const { return 0; }
  template <typename T>
  float operator()(T TextJobLine::*field) const {
    return static_cast<float>(line.*field);
  }
};

// Dots of the image on one unit of length.
std::string Dots(const TextJobLine& line, const PropertyRule& rule, const RowContext& context) {
  const bool wide = rule.label == kDotsWideRow;
  const float length = wide ? line.Width : line.Height;
  const auto size = context.imageSize(line.Text);
  if (length == 0 || !size) return "0";
  return common::PlainNumber(
      common::ToInt32(static_cast<double>(wide ? size->width : size->height) / length));
}

std::string ValueOf(const TextJobLine& line, const PropertyRule& rule, const RowContext& context) {
  switch (rule.format) {
    case RowFormat::File:
    case RowFormat::Font:
      return common::ToUpper(common::FileBaseName(MemberText(line, rule.member)));
    case RowFormat::Word:
      return std::string(WordAt(rule.words(), common::ParseInt32(MemberText(line, rule.member))));
    case RowFormat::Depth:
      return DepthText(line, context.unitsFormat);
    case RowFormat::Dots:
      return Dots(line, rule, context);
    case RowFormat::Text:
      return MemberText(line, rule.member);
    default:
      return RowNumber(std::visit(ToNumber{line}, rule.member), rule, context);
  }
}

bool IsShown(const PropertyRule& rule, const TextJobLine& line, const RowContext& context) {
  return rule.types.Holds(line.Type) && Needed(rule.need, line, context);
}

void KeepCommonRows(PropertyGrid& rows, const TextJobLine& line, std::int32_t type,
                    const RowContext& context) {
  std::erase_if(rows, [&](const PropertyRow& row) {
    if (row.label == kTypeRow) return line.Type != type;
    const auto rules = PropertyRules();
    return std::none_of(rules.begin(), rules.end(), [&](const PropertyRule& rule) {
      return rule.label == row.label && IsShown(rule, line, context);
    });
  });
}

}  // namespace

std::string RowNumber(float value, const PropertyRule& rule, const RowContext& context) {
  switch (rule.format) {
    case RowFormat::Length:
      return FormatPicture(value, context.unitsFormat);
    case RowFormat::Count:
      return FormatPicture(value, "0");
    case RowFormat::Ratio:
      return FormatPicture(value, "0.###");
    default:
      return common::PlainNumber(value);
  }
}

PropertyGrid RowsOfLine(const TextJobLine& line, const RowContext& context) {
  WordAt(LineTypeWords(), line.Type);
  PropertyGrid rows;
  for (const PropertyRule& rule : PropertyRules()) {
    if (!IsShown(rule, line, context)) continue;
    rows.push_back({std::string(rule.label), ValueOf(line, rule, context)});
  }
  return rows;
}

PropertyGrid RowsOfSelection(const TextJob& job, const RowContext& context) {
  const std::vector<std::size_t> selected = SelectedIndices(job);
  if (selected.empty()) return {};
  const TextJobLine first = ParseTjbLine(job, selected[0]);
  PropertyGrid rows = RowsOfLine(first, context);
  // Lines of one type and style have the same rows.
  std::set<std::pair<std::int32_t, std::int32_t>> seen = {{first.Type, first.Style}};
  for (const std::size_t index : selected) {
    const TextJobLine line = ParseTjbLine(job, index);
    if (seen.insert({line.Type, line.Style}).second) KeepCommonRows(rows, line, first.Type, context);
  }
  return rows;
}

TextJobLine RecordFromRows(const PropertyGrid& rows) {
  TextJobLine line;
  line.Compress = 0;
  line.Side = 0;
  line.Tool = 0;
  line.ScaleX = 0;
  line.ScaleY = 0;
  line.KeepRatio = 0;
  line.Font = ".fnt";
  for (const PropertyRow& row : rows) SetField(line, row.label, row.value);
  return line;
}

void SetField(TextJobLine& line, std::string_view label, std::string_view value) {
  const PropertyRule* rule = FindRule(label);
  if (rule == nullptr || rule->format == RowFormat::Dots) return;
  std::string text(value);
  switch (rule->format) {
    case RowFormat::Depth:
      return ReadDepth(value, line);
    case RowFormat::Word:
      text = common::PlainNumber(WordIndex(rule->words(), value));
      break;
    case RowFormat::File:
      // No file is chosen: a bare extension would be sought and sent as one.
      if (!text.empty()) text += rule->extension;
      break;
    case RowFormat::Font:
      text += rule->extension;
      break;
    default:
      break;
  }
  SetMember(line, rule->member, text);
}

std::size_t FindRow(const PropertyGrid& rows, std::string_view label) {
  const auto row = std::find_if(rows.begin(), rows.end(), [&](const auto& r) { return r.label == label; });
  return static_cast<std::size_t>(row - rows.begin());
}

}  // namespace morvane::textjob
