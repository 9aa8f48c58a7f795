// The preview of the editor: drawing passes, and what they fill.
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>

#include "common/Settings.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "platform/RecordingCanvas.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtCanvas.h"
#include "platform/qt/QtText.h"
#include "textjob/job/Selection.h"
#include "textjob/preview/Preview.h"
#include "textjob/preview/PreviewSettings.h"
#include "textjob/ui/frmEdit.h"
#include "ui_frmEdit.h"

namespace morvane::textjob {
namespace {

constexpr int kShowPartAfter = 200;  // milliseconds

// All at once: row by row would take seconds in a full job.
void SelectRows(QListWidget& list, const std::vector<bool>& selected) {
  std::vector<bool> shown(selected.size(), false);
  for (const QItemSelectionRange& range : list.selectionModel()->selection()) {
    std::fill(shown.begin() + range.top(), shown.begin() + range.bottom() + 1, true);
  }
  if (shown == selected) return;
  QItemSelection runs;
  for (auto from = std::find(selected.begin(), selected.end(), true); from != selected.end();) {
    const auto to = std::find(from, selected.end(), false);
    const auto index = [&](auto row) {
      return list.model()->index(static_cast<int>(row - selected.begin()), 0);
    };
    runs.append(QItemSelectionRange(index(from), index(std::prev(to))));
    from = std::find(to, selected.end(), true);
  }
  list.selectionModel()->select(runs, QItemSelectionModel::ClearAndSelect);
}

}  // namespace

void frmEdit::DrawJob() {
  const platform::Operations::Scope scope(context_.operations, this);
  // A pass may wait for side programs: what is typed until it ends must meet the rows of the present lines.
  ShowRows();
  if (drawing_) {
    drawAgain_ = true;
    return;
  }
  do {
    drawAgain_ = false;
    RunPass();
  } while (drawAgain_);
}

void frmEdit::RunPass(ClickSearch* search) {
  const QScopedValueRollback<bool> guard(drawing_, true);
  const platform::Operations::Scope scope(context_.operations, this);
  // Side programs of the pass keep the window alive, and another job may come in meanwhile.
  const TextJob job = context_.job;
  auto drawing = std::make_shared<platform::RecordingCanvas>();
  const PreviewSources sources{context_.files,   context_.settings,  context_.clock, context_.locale,
                               context_.prompts, context_.processes, context_.font,  context_.glyphs};
  const PictureSize picture{static_cast<float>(std::max(ui_->pic->width(), 1)),
                            static_cast<float>(std::max(ui_->pic->height(), 1))};
  const PreviewRequest request{job, document_.Name(), context_.viewOptions, picture, search};
  QTimer waiting;
  connect(&waiting, &QTimer::timeout, this, [&] { ShowPart(*drawing); });
  waiting.start(kShowPartAfter);
  const PreviewResult result = textjob::DrawJob(sources, request, context_.previewState, *drawing);
  ui_->pic->SetDrawing({[drawing](platform::Canvas& canvas) { drawing->Replay(canvas); }, result.view,
                        drawing->Segments().size()});
  context_.progress.Clear();
  ShowLegend();
  ShowLines(result);
  if (search == nullptr) ShowRows();
}

// A pass that waits for a side program shows what it has so far.
void frmEdit::ShowPart(const platform::RecordingCanvas& drawing) {
  if (!drawing.View()) return;
  const auto part = std::make_shared<platform::RecordingCanvas>(drawing);
  ui_->pic->SetDrawing(
      {[part](platform::Canvas& canvas) { part->Replay(canvas); }, *part->View(), part->Segments().size()});
  context_.progress.Set(0, 0);
}

// The labels are those of the pass; all else may have changed meanwhile.
void frmEdit::ShowLines(const PreviewResult& result) {
  const QScopedValueRollback<bool> guard(filling_, true);
  QListWidget& list = *ui_->cmbLine;
  const int count = static_cast<int>(result.labels.size());
  while (list.count() > count) delete list.takeItem(list.count() - 1);
  while (list.count() < count) list.addItem(QString());
  for (int row = 0; row < count; ++row) {
    list.item(row)->setText(platform::ToQt(result.labels[static_cast<std::size_t>(row)]));
  }
  const TextJob& job = context_.job;
  SelectRows(list, SelectedLines(job.Selection, result.labels.size()));
  if (result.current >= 0) list.setCurrentRow(result.current, QItemSelectionModel::NoUpdate);
  const QString comment = platform::ToQt(job.Comment);
  if (ui_->txtComments->text() != comment) {
    ui_->txtComments->setText(comment);
    ui_->txtComments->home(false);
  }
  setWindowModified(job.Dirty);
}

void frmEdit::ShowLegend() {
  const PreviewSettings settings = ReadPreviewSettings(context_.settings.Read());
  const std::pair<QLabel*, PreviewColor> entries[] = {{ui_->labDrawColor, kDrawColor},
                                                      {ui_->labSelColor, kSelectedColor},
                                                      {ui_->labToolColor, kToolPathColor},
                                                      {ui_->labGridColor, kGridColor},
                                                      {ui_->labRefColor, kReferenceColor}};
  for (const auto& [label, color] : entries) {
    // As a background: a picture would lose its colour while the form is disabled.
    QPalette palette;
    palette.setColor(QPalette::Window, platform::ToQt(settings.colors[color]));
    label->setAutoFillBackground(true);
    label->setPalette(palette);
  }
}

}  // namespace morvane::textjob
