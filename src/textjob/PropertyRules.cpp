#include "textjob/PropertyRules.h"

namespace morvane::textjob {
namespace {

using L = TextJobLine;
using F = RowFormat;
using N = RowNeed;
using C = RowChoice;

constexpr TypeSet kTexts = {kNormal, kSerial, kDateCode, kVariable};
constexpr TypeSet kPaths = {kImage, kClosedPath};
constexpr TypeSet kPlaced = {kNormal,     kSerial,   kGraphic,  kDateCode,     kMove, kPanel,
                             kDataMatrix, kFill,     kVariable, kImage,        kCap,  kScale,
                             kClosedPath, kPressure, kRaster,   kStartPosition};
constexpr TypeSet kTooled = {kNormal, kSerial,     kGraphic,    kDateCode, kMove,
                             kPanel,  kDataMatrix, kFill,       kVariable, kImage,
                             kCap,    kScale,      kClosedPath, kPressure, kRaster};
constexpr TypeSet kAll = {kNormal,        kSerial,     kGraphic,  kDateCode, kMove,  kPanel,
                          kDataMatrix,    kFill,       kVariable, kImage,    kCap,   kScale,
                          kStartPosition, kClosedPath, kPressure, kParkPath, kRaster};
constexpr bool kSteps = true;
constexpr bool kBlank = true;

// clang-format off
const PropertyRule kRules[] = {
    {"Text",        {kNormal, kVariable}, &L::Text, F::Text},
    {"Serial",      {kSerial},     &L::Text, F::Text},
    {"Graphic",     {kGraphic},    &L::Text, F::File, N::Nothing, C::GcodeFiles, ".job"},
    {"DateCode",    {kDateCode},   &L::Text, F::Text},
    {"Panel",       {kPanel},      &L::Text, F::File, N::Nothing, C::Files, ".pan", nullptr, false, kBlank},
    {"Data Matrix", {kDataMatrix}, &L::Text, F::File, N::Nothing, C::Files, ".dm", nullptr, false, kBlank},
    {"Fill",        {kFill},       &L::Text, F::File, N::Nothing, C::Files, ".fil", nullptr, false, kBlank},
    {"Image",       {kImage},      &L::Text, F::File, N::Nothing, C::GcodeFiles, ".job"},
    {"Cap",         {kCap},        &L::Text, F::Text, N::Nothing, C::Caps, "", nullptr, false, kBlank},
    {"Scale",       {kScale},      &L::Text, F::Text, N::Nothing, C::Scales, "", nullptr, false, kBlank},
    {"Closed Path", {kClosedPath}, &L::Text, F::File, N::Nothing, C::GcodeFiles, ".job"},
    {"Pressure",    {kPressure},   &L::Text, F::File, N::Nothing, C::Files, ".pre", nullptr, false, kBlank},
    {"Park Path",   {kParkPath},   &L::Text, F::File, N::Nothing, C::GcodeFiles, ".job"},
    {"Raster",      {kRaster},     &L::Text, F::File, N::Nothing, C::Files, ".ras"},
    {"Prompt",      {kVariable},   &L::Prompt, F::Text},
    {"Incr",        {kSerial},     &L::Incr, F::Plain},
    {kTypeRow,      kAll,          &L::Type, F::Word, N::Nothing, C::Word, "", LineTypeWords},
    {"Font",        kTexts,        &L::Font, F::Font, N::Nothing, C::Files, ".fnt"},
    {kHeightRow,    kTexts,        &L::Height, F::Length, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {"Compress",    kTexts,        &L::Compress, F::Ratio, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {kStyleRow,     kTexts,        &L::Style, F::Word, N::Nothing, C::Word, "", StyleWords},
    {"Justify",     kTexts,        &L::Justify, F::Word, N::Regular, C::Word, "", JustifyWords},
    {"Angle",       kTexts,        &L::Angle, F::Ratio, N::Turned, C::Nothing, "", nullptr, kSteps},
    {"Radius",      kTexts,        &L::Radius, F::Length, N::Round, C::Nothing, "", nullptr, kSteps},
    {"Location",    kTexts,        &L::Location, F::Word, N::OnRadius, C::Word, "", LocationWords},
    {"Compress",    {kGraphic},    &L::Compress, F::Ratio, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {"Scale X",     kPaths,        &L::ScaleX, F::Ratio, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {"Scale Y",     kPaths,        &L::ScaleY, F::Ratio, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {"Rotate",      kPaths,        &L::Rotate, F::Ratio, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {kXRow,         kPlaced,       &L::XPos, F::Length, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {kYRow,         kPlaced,       &L::YPos, F::Length, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {kSideRow,      kAll,          &L::Side, F::Ratio, N::Sides},
    {kKeepRatioRow, {kRaster},     &L::KeepRatio, F::Word, N::Nothing, C::Word, "", KeepRatioWords},
    {kWidthRow,     {kRaster},     &L::Width, F::Length},
    {kHeightRow,    {kRaster},     &L::Height, F::Length, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {kDotsWideRow,  {kRaster},     &L::Width, F::Dots},
    {"DPI Height",  {kRaster},     &L::Height, F::Dots},
    {"Margin",      {kRaster},     &L::Margin, F::Length},
    {"Backlash",    {kRaster},     &L::Backlash, F::Length},
    {kWidthRow,     kTexts,        &L::Width, F::Length, N::ProFonts},
    {"Spacing",     kTexts,        &L::Spacing, F::Length, N::ProFonts},
    {"Tool #",      kTooled,       &L::Tool, F::Count},
    {"Depth",       kPlaced,       &L::Depth, F::Depth},
    {"Late Start",  {kClosedPath}, &L::LateStart, F::Ratio, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {"Late End",    {kClosedPath}, &L::LateEnd, F::Ratio, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {"Early Shut",  {kClosedPath}, &L::EarlyShut, F::Ratio, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {"Overlap",     {kClosedPath}, &L::Overlap, F::Ratio, N::Nothing, C::Nothing, "", nullptr, kSteps},
    {"Overlap Ht",  {kClosedPath}, &L::OverlapHt, F::Ratio, N::Nothing, C::Nothing, "", nullptr, kSteps},
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
