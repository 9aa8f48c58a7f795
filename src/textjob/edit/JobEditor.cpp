#include "textjob/edit/JobEditor.h"

#include <algorithm>
#include <cmath>

#include "common/Attempt.h"
#include "common/RunTimeError.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "textjob/edit/BackgroundOffset.h"
#include "textjob/edit/CommitLine.h"
#include "textjob/edit/LineClipboard.h"
#include "textjob/edit/LineEdits.h"
#include "textjob/job/JobFile.h"
#include "textjob/job/Selection.h"

namespace morvane::textjob {
namespace {

using common::FormatPicture;

constexpr float kStep = 0.1F;
constexpr float kDegreeStep = 1;

bool IsAngle(std::string_view label) {
  return label == "Angle" || label == "Rotate";
}

// A pasted text may have several lines, which a file would take for lines of the job. Its words stay apart.
std::string JoinLines(std::string_view text) {
  std::string line = common::ReplaceAll(text, "\r\n", " ");
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return line;
}

}  // namespace

std::string JobEditor::Visit(std::string_view what) const {
  return std::string(what) + ' ' + std::to_string(visit_);
}

bool JobEditor::Changed(std::string_view visit, const BesideChange& beside) {
  history_.Note(parts_.job, visit, beside);
  return true;
}

void JobEditor::Loaded() {
  history_.Reset(parts_.job);
  told_.clear();
}

void JobEditor::Saved() {
  history_.Note(parts_.job);
  history_.MarkSaved(parts_.job);
}

void JobEditor::ReadRows(RowContext context) {
  const TextJob& job = parts_.job;
  context_ = std::move(context);
  try {
    rows_ = RowsOfSelection(job, context_);
    told_.clear();
  } catch (const common::RunTimeError& error) {
    rows_.clear();
    std::string lines = job.Selection;
    for (const std::size_t index : SelectedIndices(job)) lines += '\n' + job.Lines[index];
    if (lines == told_) return;
    told_ = lines;
    parts_.prompts.MsgBox("DrawLine-" + error.description());
  }
}

bool JobEditor::CommitRow(std::size_t row, const std::string& value) {
  if (row >= rows_.size()) return false;
  const std::string visit = Visit(rows_[row].label);
  CommitLine(parts_.job, rows_, row, JoinLines(value), context_, parts_.files);
  return Changed(visit);
}

bool JobEditor::StepRow(std::size_t row, int steps) {
  if (row >= rows_.size()) return false;
  const float step = IsAngle(rows_[row].label) ? kDegreeStep : kStep;
  const auto value = StepValue(rows_[row], static_cast<float>(steps) * step, context_);
  return value && CommitRow(row, *value);
}

bool JobEditor::SetComment(const std::string& comment) {
  parts_.job.Comment = JoinLines(comment);
  parts_.job.Dirty = true;
  return Changed(Visit("comment"));
}

bool JobEditor::Select(const std::string& selection) {
  parts_.job.Selection = selection;
  EnterRow();
  return Changed();
}

bool JobEditor::SelectInside(const platform::Rectangle& area, const recipes::Fixture* fixture, bool toggle) {
  std::string selection = toggle ? parts_.job.Selection : std::string();
  for (const int line : LinesInside(parts_.job, area, fixture)) selection = ToggleLine(selection, line);
  return Select(selection);
}

bool JobEditor::MoveTo(double x, double y, const recipes::Fixture* fixture) {
  if (FindRow(rows_, kXRow) == rows_.size()) return false;
  PositionTexts to;
  if (context_.sides && fixture != nullptr && fixture->Flat > 0) {
    const double side = std::trunc(y / fixture->Flat) + 1;
    y -= (side - 1) * fixture->Flat;
    to.side = FormatPicture(side, "#.###");
  }
  to.x = FormatPicture(x, context_.unitsFormat);
  to.y = FormatPicture(y, context_.unitsFormat);
  if (parts_.settings.GetSetting(common::kSettingsSection, "PromptMove", "1") == "1") {
    const bool several = SelectedIndices(parts_.job).size() > 1;
    const char* start =
        several ? "Do you wish to move these objects to " : "Do you wish to move this object to ";
    const std::string question = start + to.x + " , " + to.y + " ?";
    if (parts_.prompts.MsgBox(question, platform::Buttons::YesNo) != platform::Answer::Yes) return false;
  }
  MoveSelection(parts_.job, to, context_, parts_.files);
  return Changed();
}

bool JobEditor::NewLine() {
  return common::Attempt(parts_.prompts, "NewJobLine", [&] {
    TextJob& job = parts_.job;
    std::string line =
        NewJobLine(job, parts_.document.Name(), parts_.settings.Read(), parts_.clock, parts_.locale);
    return InsertLine(job, std::move(line)) && Changed();
  });
}

bool JobEditor::DeleteLine() {
  return textjob::DeleteLine(parts_.job) && Changed();
}

bool JobEditor::Offset(const std::string& x, const std::string& y, const std::string& depth) {
  return common::Attempt(parts_.prompts, "OffsetLines", [&] {
    TextJob& job = parts_.job;
    const LineOffset by{common::ParseSingle(x), common::ParseSingle(y), common::ParseSingle(depth)};
    BesideChange beside;
    if (SelectedIndices(job).size() < 2) {
      beside = OffsetBackground(parts_.files, parts_.settings, parts_.document.Name(), by.x, by.y);
    }
    ApplyBeside(parts_.files, parts_.settings, beside.after);
    OffsetLines(job, by, context_.unitsFormat);
    return Changed({}, beside);
  });
}

void JobEditor::Reordered() {
  Changed();
}

bool JobEditor::Undo() {
  return Back(history_.Undo(parts_.job));
}

bool JobEditor::Redo() {
  return Back(history_.Redo(parts_.job));
}

bool JobEditor::ToClipboard() {
  const std::string text = CopyLines(parts_.job);
  if (!text.empty()) parts_.clipboard.SetText(text);
  return !text.empty();
}

bool JobEditor::Copy() {
  ToClipboard();
  return false;
}

bool JobEditor::Cut() {
  if (!ToClipboard()) return false;
  CutLines(parts_.job);
  return Changed();
}

bool JobEditor::Paste() {
  return common::Attempt(parts_.prompts, "PasteLines",
                         [&] { return PasteLines(parts_.job, parts_.clipboard.Text()) > 0 && Changed(); });
}

bool JobEditor::Duplicate() {
  return common::Attempt(parts_.prompts, "DuplicateLines",
                         [&] { return DuplicateLines(parts_.job) > 0 && Changed(); });
}

// The job is back; what could not be written beside it is told.
bool JobEditor::Back(const std::optional<BesideValues>& beside) {
  EnterRow();
  if (!beside) return false;
  common::Attempt(parts_.prompts, "OffsetLines",
                  [&] { ApplyBeside(parts_.files, parts_.settings, *beside); });
  return true;
}

}  // namespace morvane::textjob
