#include "datamatrix/modDataMatrix.h"

#include <algorithm>

#include "common/text/Numbers.h"
#include "common/text/OneLine.h"

namespace morvane::datamatrix {
namespace {

constexpr std::string_view kEndMarker = "@ENDDM@";
constexpr int kReservedLines = 5;
constexpr SymbolSize kAutomaticSize{20, 20};

// The next line, without any carriage return; False at the end of the bytes.
bool TakeLine(std::string_view& rest, std::string& line) {
  if (rest.empty()) return false;
  const std::size_t end = std::min(rest.find('\n'), rest.size());
  line = common::OneLine(rest.substr(0, end));
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return true;
}

}  // namespace

DataMatrixFile ParseDataMatrix(std::string_view bytes, MissingMarker missing) {
  DataMatrixFile file;
  std::string line;
  TakeLine(bytes, file.Density);
  if (TakeLine(bytes, line)) file.Reverse = common::ParseNumber(line) != 0;
  TakeLine(bytes, file.Spacing);
  TakeLine(bytes, file.Delay);
  for (int i = 0; i < kReservedLines; ++i) TakeLine(bytes, line);
  const std::size_t marker = bytes.find(kEndMarker);
  if (marker != std::string_view::npos || missing == MissingMarker::KeepsRest) {
    file.Content = bytes.substr(0, marker);
  }
  return file;
}

DataMatrixFile ReadDataMatrix(const common::Files& files, std::string_view name, MissingMarker missing) {
  return ParseDataMatrix(*files.ReadKeptInside(name), missing);
}

std::string FormatDataMatrix(const DataMatrixFile& file) {
  std::string bytes = common::OneLine(file.Density) + (file.Reverse ? "\r\n1\r\n" : "\r\n0\r\n");
  bytes += common::OneLine(file.Spacing) + "\r\n" + common::OneLine(file.Delay) + "\r\n";
  for (int i = 0; i < kReservedLines; ++i) bytes += "\r\n";
  return bytes.append(file.Content).append(kEndMarker);
}

void WriteDataMatrix(const common::Files& files, std::string_view name, const DataMatrixFile& file) {
  files.Save(name, FormatDataMatrix(file));
}

SymbolSize PlaceholderSize(std::string_view density) {
  const std::size_t separator = density.find('x');
  if (separator == std::string_view::npos) return kAutomaticSize;
  const SymbolSize size{common::ParseInt16(density.substr(0, separator)),
                        common::ParseInt16(density.substr(separator + 1))};
  return size.rows > 0 && size.columns > 0 ? size : kAutomaticSize;
}

float ModuleSpacing(const DataMatrixFile& file) {
  return file.Spacing.empty() ? 0.001F : common::ParseSingle(file.Spacing);
}

char DarkModule(const DataMatrixFile& file) {
  return file.Reverse ? ' ' : '*';
}

}  // namespace morvane::datamatrix
