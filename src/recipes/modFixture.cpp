#include "recipes/modFixture.h"

#include <variant>

#include "common/text/Lines.h"
#include "common/text/Numbers.h"
#include "common/text/OneLine.h"
#include "common/text/Tokenizer.h"

namespace morvane::recipes {
namespace {

using Field = std::variant<std::int16_t Fixture::*, float Fixture::*, std::string Fixture::*>;

// The lines that hold one value each, in file order.
constexpr Field kSingleLines[] = {&Fixture::Type,        &Fixture::Diameter, &Fixture::Rows,
                                  &Fixture::RowDistance, &Fixture::Columns,  &Fixture::ColumnDistance,
                                  &Fixture::Sides,       &Fixture::Flat,     &Fixture::OffsetX,
                                  &Fixture::OffsetY,     &Fixture::Skip,     &Fixture::StartCommand,
                                  &Fixture::EndCommand};

void Set(std::int16_t& value, std::string_view line) {
  value = common::ParseInt16(line);
}
void Set(float& value, std::string_view line) {
  value = common::ParseSingle(line);
}
void Set(std::string& value, std::string_view line) {
  value = line;
}

std::string Line(std::int16_t value) {
  return common::PlainNumber(value);
}
std::string Line(float value) {
  return common::PlainNumber(value);
}
std::string Line(const std::string& value) {
  return common::OneLine(value);
}

void ParseLengthLine(std::string_view line, Fixture& fixture) {
  common::TokenScan scan(line);
  fixture.Length = common::ParseSingle(scan.Next(","));
  fixture.RotaryX = common::StrictBoolean(scan.Next(""));
}

void ParseTemplateLine(std::string_view line, Fixture& fixture) {
  common::TokenScan scan(line);
  fixture.Reserved = common::ParseInt16(scan.Next(","));
  const std::string_view flag = scan.Next("@");
  if (!flag.empty()) fixture.Template = common::StrictBoolean(flag);
  fixture.StartPosition = scan.Next("@");
  fixture.EndPosition = scan.Next("");
}

}  // namespace

Fixture ParseFixture(std::string_view bytes) {
  common::Lines lines(bytes);
  Fixture fixture;
  for (const Field& field : kSingleLines) {
    const std::string_view line = lines.Take();
    std::visit([&](auto member) { Set(fixture.*member, line); }, field);
  }
  ParseLengthLine(lines.Take(), fixture);
  ParseTemplateLine(lines.Take(), fixture);
  std::string_view point;
  while (fixture.Path.size() < kFixturePathPoints && lines.Next(point) && !point.empty()) {
    fixture.Path.emplace_back(point);
  }
  return fixture;
}

Fixture ReadFixture(const common::Files& files, std::string_view name) {
  return *files.ReadAs<ParseFixture>(name);
}

std::string FormatFixture(const Fixture& fixture) {
  std::string bytes;
  for (const Field& field : kSingleLines) {
    bytes += std::visit([&](auto member) { return Line(fixture.*member); }, field) + "\r\n";
  }
  bytes += Line(fixture.Length) + (fixture.RotaryX ? ",True\r\n" : ",False\r\n");
  bytes += Line(fixture.Reserved) + (fixture.Template ? ",1@" : ",0@");
  bytes += Line(fixture.StartPosition) + '@' + Line(fixture.EndPosition) + "\r\n";
  for (std::size_t i = 0; i < fixture.Path.size() && i < kFixturePathPoints; ++i) {
    if (fixture.Path[i].empty()) break;
    bytes += Line(fixture.Path[i]) + "\r\n";
  }
  return bytes;
}

void WriteFixture(const common::Files& files, std::string_view name, const Fixture& fixture) {
  files.Save(name, FormatFixture(fixture));
}

}  // namespace morvane::recipes
