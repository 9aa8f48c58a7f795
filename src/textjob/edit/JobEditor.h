// What the editor does to its job: each function is what a control or a key asks for. The form shows the
// result and forwards events.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "common/Settings.h"
#include "common/files/Files.h"
#include "platform/Canvas.h"
#include "platform/Clipboard.h"
#include "platform/Clock.h"
#include "platform/Locale.h"
#include "platform/Prompts.h"
#include "recipes/Fixture.h"
#include "textjob/edit/PropertyRows.h"
#include "textjob/job/JobDocument.h"
#include "textjob/job/JobHistory.h"

namespace morvane::textjob {

struct JobEditorParts {
  TextJob& job;
  const JobDocument& document;
  const common::Files& files;
  const common::Settings& settings;
  const platform::Clock& clock;
  const platform::Locale& locale;
  platform::Prompts& prompts;
  platform::Clipboard& clipboard;
};

// Functions that return a flag tell whether anything changed and the job is to be drawn. Failures are told in
// a box, and the job is as it was.
class JobEditor {
 public:
  explicit JobEditor(const JobEditorParts& parts) : parts_(parts) {}

  // Another job stands in the editor: there is nothing to undo.
  void Loaded();
  // The job lies in its file.
  void Saved();

  // The rows of the selection, to be read anew after each change. Rows that cannot be shown are none, which
  // is told once for each line.
  void ReadRows(RowContext context);
  const PropertyGrid& Rows() const { return rows_; }
  // The current row, or what it belongs to, is another one: what comes is a step of its own for Undo.
  void EnterRow() { ++visit_; }
  bool CommitRow(std::size_t row, const std::string& value);
  // Steps of a tenth, of angles one degree.
  bool StepRow(std::size_t row, int steps);
  bool SetComment(const std::string& comment);

  bool Select(const std::string& selection);
  // Selects the lines whose position lies in a rectangle; with `toggle` each of them changes its state.
  bool SelectInside(const platform::Rectangle& area, const recipes::Fixture* fixture, bool toggle);
  // Moves the selected lines to a point, when the user wants it. `fixture`: the one that is shown, if any.
  bool MoveTo(double x, double y, const recipes::Fixture* fixture);

  bool NewLine();
  bool DeleteLine();
  // The texts of the Offset dialog. The background image goes along with a whole job.
  bool Offset(const std::string& x, const std::string& y, const std::string& depth);
  // The lines were changed from outside.
  void Reordered();

  // The selected lines as text; never changes the job.
  bool Copy();
  bool Cut();
  bool Paste();
  bool Duplicate();

  bool CanUndo() const { return history_.CanUndo(); }
  bool CanRedo() const { return history_.CanRedo(); }
  bool Undo();
  bool Redo();

 private:
  std::string Visit(std::string_view what) const;
  bool Changed(std::string_view visit = {}, const BesideChange& beside = {});
  bool ToClipboard();
  bool Back(const std::optional<BesideValues>& beside);

  JobEditorParts parts_;
  JobHistory history_;
  RowContext context_;
  PropertyGrid rows_;
  std::string told_;  // the line whose rows could not be shown
  int visit_ = 0;
};

}  // namespace morvane::textjob
