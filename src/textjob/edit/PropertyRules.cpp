#include "textjob/edit/PropertyRules.h"

namespace morvane::textjob {
namespace {

using L = TextJobLine;
using F = RowFormat;
using N = RowNeed;
using C = RowChoice;

constexpr TypeSet kTexts = {kNormal, kSerial, kDateCode, kVariable};
constexpr TypeSet kPaths = {kImage, kClosedPath};
constexpr TypeSet kAll = TypeSet::AllBut({});
constexpr TypeSet kPlaced = TypeSet::AllBut({kParkPath});
constexpr TypeSet kTooled = TypeSet::AllBut({kStartPosition, kParkPath});
constexpr bool kBlank = true;

// A row that is typed.
constexpr PropertyRule Typed(std::string_view label, TypeSet types, TjbMember member, F format,
                             N need = N::Nothing) {
  return {.label = label, .types = types, .member = member, .format = format, .need = need};
}

// A number that is typed or stepped.
constexpr PropertyRule Stepped(std::string_view label, TypeSet types, TjbMember member, F format,
                               N need = N::Nothing) {
  PropertyRule rule = Typed(label, types, member, format, need);
  rule.steps = true;
  return rule;
}

constexpr PropertyRule Word(std::string_view label, TypeSet types, TjbMember member, Words (*words)(),
                            N need = N::Nothing) {
  PropertyRule rule = Typed(label, types, member, F::Word, need);
  rule.choice = C::Word;
  rule.words = words;
  return rule;
}

constexpr PropertyRule File(std::string_view label, LineType type, std::string_view extension,
                            bool blank = false) {
  PropertyRule rule = Typed(label, {type}, &L::Text, F::File);
  rule.choice = extension == ".job" ? C::GcodeFiles : C::Files;
  rule.extension = extension;
  rule.blank = blank;
  return rule;
}

// A name out of a recipe table.
constexpr PropertyRule Record(std::string_view label, LineType type, C choice) {
  PropertyRule rule = Typed(label, {type}, &L::Text, F::Text);
  rule.choice = choice;
  rule.blank = true;
  return rule;
}

constexpr PropertyRule Font() {
  PropertyRule rule = Typed("Font", kTexts, &L::Font, F::Font);
  rule.choice = C::Files;
  rule.extension = ".fnt";
  return rule;
}

// clang-format off
constexpr PropertyRule kRules[] = {
    Typed("Text", {kNormal, kVariable}, &L::Text, F::Text),
    Typed("Serial", {kSerial}, &L::Text, F::Text),
    File("Graphic", kGraphic, ".job"),
    Typed("DateCode", {kDateCode}, &L::Text, F::Text),
    File("Panel", kPanel, ".pan", kBlank),
    File("Data Matrix", kDataMatrix, ".dm", kBlank),
    File("Fill", kFill, ".fil", kBlank),
    File("Image", kImage, ".job"),
    Record("Cap", kCap, C::Caps),
    Record("Scale", kScale, C::Scales),
    File("Closed Path", kClosedPath, ".job"),
    File("Pressure", kPressure, ".pre", kBlank),
    File("Park Path", kParkPath, ".job"),
    File("Raster", kRaster, ".ras"),
    Typed("Prompt", {kVariable}, &L::Prompt, F::Text),
    Typed("Incr", {kSerial}, &L::Incr, F::Plain),
    Word(kTypeRow, kAll, &L::Type, LineTypeWords),
    Font(),
    Stepped(kHeightRow, kTexts, &L::Height, F::Length),
    Stepped("Compress", kTexts, &L::Compress, F::Ratio),
    Word(kStyleRow, kTexts, &L::Style, StyleWords),
    Word("Justify", kTexts, &L::Justify, JustifyWords, N::Regular),
    Stepped("Angle", kTexts, &L::Angle, F::Ratio, N::Turned),
    Stepped("Radius", kTexts, &L::Radius, F::Length, N::Round),
    Word("Location", kTexts, &L::Location, LocationWords, N::OnRadius),
    Stepped("Compress", {kGraphic}, &L::Compress, F::Ratio),
    Stepped("Scale X", kPaths, &L::ScaleX, F::Ratio),
    Stepped("Scale Y", kPaths, &L::ScaleY, F::Ratio),
    Stepped("Rotate", kPaths, &L::Rotate, F::Ratio),
    Stepped(kXRow, kPlaced, &L::XPos, F::Length),
    Stepped(kYRow, kPlaced, &L::YPos, F::Length),
    Typed(kSideRow, kAll, &L::Side, F::Ratio, N::Sides),
    Word(kKeepRatioRow, {kRaster}, &L::KeepRatio, KeepRatioWords),
    Typed(kWidthRow, {kRaster}, &L::Width, F::Length),
    Stepped(kHeightRow, {kRaster}, &L::Height, F::Length),
    Typed(kDotsWideRow, {kRaster}, &L::Width, F::Dots),
    Typed("DPI Height", {kRaster}, &L::Height, F::Dots),
    Typed("Margin", {kRaster}, &L::Margin, F::Length),
    Typed("Backlash", {kRaster}, &L::Backlash, F::Length),
    Typed(kWidthRow, kTexts, &L::Width, F::Length, N::ProFonts),
    Typed("Spacing", kTexts, &L::Spacing, F::Length, N::ProFonts),
    Typed("Tool #", kTooled, &L::Tool, F::Count),
    Typed("Depth", kPlaced, &L::Depth, F::Depth),
    Stepped("Late Start", {kClosedPath}, &L::LateStart, F::Ratio),
    Stepped("Late End", {kClosedPath}, &L::LateEnd, F::Ratio),
    Stepped("Early Shut", {kClosedPath}, &L::EarlyShut, F::Ratio),
    Stepped("Overlap", {kClosedPath}, &L::Overlap, F::Ratio),
    Stepped("Overlap Ht", {kClosedPath}, &L::OverlapHt, F::Ratio),
};
// clang-format on

}  // namespace

std::span<const PropertyRule> PropertyRules() {
  return kRules;
}

const PropertyRule* FindRule(std::string_view label) {
  for (const PropertyRule& rule : kRules) {
    if (rule.label == label) return &rule;
  }
  return nullptr;
}

const PropertyRule* ValueRule(std::int32_t type) {
  for (const PropertyRule& rule : kRules) {
    if (rule.label == kTypeRow) break;
    if (rule.types.Holds(type) && rule.member == TjbMember(&TextJobLine::Text)) return &rule;
  }
  return nullptr;
}

}  // namespace morvane::textjob
