#include "datamatrix/ModuleRows.h"

#include <algorithm>

#include "common/text/Lines.h"

namespace morvane::datamatrix {
namespace {

// Cuts the next field off the line. True when a comma ended it, so that another field follows.
bool TakeField(std::string_view& line, std::string_view& field) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  const bool quoted = !line.empty() && line.front() == '"';
  if (quoted) line.remove_prefix(1);
  field = line.substr(0, line.find(quoted ? '"' : ','));
  line.remove_prefix(field.size());
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos) return false;
  line.remove_prefix(comma + 1);
  return true;
}

bool IsRow(std::string_view field, const ModuleRows& rows) {
  const bool fits = rows.empty() ? !field.empty() && field.size() <= kMaxModules
                                 : rows.size() < kMaxModules && field.size() == rows.front().size();
  return fits && field.find_first_not_of("* ") == std::string_view::npos;
}

std::string_view WithoutTrailingLineEnds(std::string_view bytes) {
  return bytes.substr(0, bytes.find_last_not_of("\r\n") + 1);
}

}  // namespace

ModuleRows ParseModuleRows(std::string_view bytes) {
  ModuleRows rows;
  common::Lines lines(WithoutTrailingLineEnds(bytes));
  std::string_view line;
  while (lines.Next(line)) {
    bool more = true;
    while (more) {
      std::string_view field;
      more = TakeField(line, field);
      if (!IsRow(field, rows)) return {};
      rows.emplace_back(field);
    }
  }
  return rows;
}

}  // namespace morvane::datamatrix
