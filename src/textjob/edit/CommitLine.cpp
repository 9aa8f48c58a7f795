#include "textjob/edit/CommitLine.h"

#include "common/RunTimeError.h"
#include "common/files/FileNames.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "textjob/job/Selection.h"
#include "textjob/job/modTjb.h"

namespace morvane::textjob {
namespace {

// One commit of a single line: what it was, and the grid as the user left it.
struct Edit {
  TextJobLine before;
  PropertyGrid& rows;
  const RowContext& context;
  const common::Files& files;
};

bool NamesAFile(const common::Files& files, const std::string& name) try {
  return files.FileExists(files.ResolveInside(name));
} catch (const common::RunTimeError&) {
  return false;
}

// A value that still names a file of the new kind stays; otherwise the first file of that kind takes its
// place.
std::string FileOfKind(const Edit& edit, std::string_view extension) {
  const PropertyRule* value = ValueRule(edit.before.Type);
  const std::size_t row = value != nullptr ? FindRow(edit.rows, value->label) : edit.rows.size();
  std::string kept = row < edit.rows.size() ? edit.rows[row].value : std::string();
  // A text that was a file's row before has the extension in it.
  if (const std::size_t point = kept.find('.'); point != std::string::npos) {
    if (common::EqualIgnoringCase(std::string_view(kept).substr(point), extension)) kept.resize(point);
  }
  if (!kept.empty() && NamesAFile(edit.files, kept + std::string(extension))) return kept;
  const auto found = edit.files.List("*" + std::string(extension));
  return found.empty() ? std::string() : common::ToUpper(common::FileBaseName(found.front()));
}

void ChangeType(const Edit& edit, TextJobLine& line) {
  if (line.Type == edit.before.Type) return;
  const PropertyRule* value = ValueRule(line.Type);
  if (value != nullptr && value->format == RowFormat::File) {
    SetField(line, value->label, FileOfKind(edit, value->extension));
  }
  if (line.Type == kSerial) {
    line.Text = "1";
    line.Incr = 1;
  }
  if (line.Type == kImage || line.Type == kClosedPath) {
    line.ScaleX = 1;
    line.ScaleY = 1;
    line.Rotate = 0;
  }
}

void ChangeStyle(const Edit& edit, TextJobLine& line) {
  if (line.Style == edit.before.Style) return;
  const bool onCircle = line.Style == kArcText || line.Style == kRadiusText;
  line.Angle = onCircle ? 90.F : 0.F;
  line.Radius = onCircle ? 1.F : 0.F;
}

// The other side of an image follows, in the image's own proportion.
void KeepProportion(const Edit& edit, TextJobLine& line, bool fromHeight) {
  if (line.Type != kRaster || line.KeepRatio != 1) return;
  const auto image = edit.context.imageSize(line.Text);
  if (!image) return;
  const double ratio = static_cast<double>(image->height) / image->width;
  const float other = common::ToSingle(fromHeight ? line.Height / ratio : line.Width * ratio);
  PropertyRow& row = edit.rows[FindRow(edit.rows, fromHeight ? kWidthRow : kHeightRow)];
  row.value = RowNumber(other, *FindRule(row.label), edit.context);
  SetField(line, row.label, row.value);
}

void KeepFromWidth(const Edit& edit, TextJobLine& line) {
  KeepProportion(edit, line, false);
}

void KeepFromHeight(const Edit& edit, TextJobLine& line) {
  KeepProportion(edit, line, true);
}

// What else a changed row brings with it.
constexpr struct {
  std::string_view label;
  void (*follow)(const Edit& edit, TextJobLine& line);
} kConsequences[] = {{kTypeRow, ChangeType},
                     {kStyleRow, ChangeStyle},
                     {kWidthRow, KeepFromWidth},
                     {kKeepRatioRow, KeepFromWidth},
                     {kHeightRow, KeepFromHeight}};

TextJobLine RewriteLine(const Edit& edit, const std::string& label) {
  TextJobLine line = RecordFromRows(edit.rows);
  for (const auto& [changed, follow] : kConsequences) {
    if (changed == label) follow(edit, line);
  }
  return line;
}

}  // namespace

void CommitLine(TextJob& job, PropertyGrid& rows, std::size_t current, const std::string& value,
                const RowContext& context, const common::Files& files) {
  const std::vector<std::size_t> selected = SelectedIndices(job);
  if (selected.empty() || current >= rows.size()) return;
  const PropertyRule* rule = FindRule(rows[current].label);
  if (rule == nullptr || rule->format == RowFormat::Dots) return;
  job.Dirty = true;
  rows[current].value = value;
  if (selected.size() == 1) {
    const Edit edit{ParseTjbLine(job, selected[0]), rows, context, files};
    job.Lines[selected[0]] = FormatTjbLine(RewriteLine(edit, rows[current].label), context.unitsFormat);
    return;
  }
  for (const std::size_t index : selected) {
    TextJobLine line = ParseTjbLine(job, index);
    SetField(line, rows[current].label, value);
    job.Lines[index] = FormatTjbLine(line, context.unitsFormat);
  }
}

std::optional<std::string> StepValue(const PropertyRow& row, float step, const RowContext& context) {
  const PropertyRule* rule = FindRule(row.label);
  if (rule == nullptr || !rule->steps) return std::nullopt;
  return RowNumber(common::ParseSingle(row.value) + step, *rule, context);
}

void MoveSelection(TextJob& job, const PositionTexts& position, const RowContext& context,
                   const common::Files& files) {
  const std::pair<std::string_view, const std::string&> texts[] = {
      {kXRow, position.x}, {kYRow, position.y}, {kSideRow, position.side}};
  for (const auto& [label, text] : texts) {
    PropertyGrid rows = RowsOfSelection(job, context);
    const std::size_t row = FindRow(rows, label);
    if (row < rows.size() && !text.empty()) CommitLine(job, rows, row, text, context, files);
  }
}

}  // namespace morvane::textjob
