// The preview of the editor: drawing passes, and what they fill.
#include <QScopedValueRollback>
#include <QTimer>

#include "common/Settings.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "platform/RecordingCanvas.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtCanvas.h"
#include "platform/qt/QtText.h"
#include "textjob/Preview.h"
#include "textjob/PreviewSettings.h"
#include "textjob/Selection.h"
#include "textjob/frmEdit.h"
#include "ui_frmEdit.h"

namespace morvane::textjob {
namespace {

constexpr int kShowPartAfter = 200;  // milliseconds

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
  const TextJob& job = context_.job;
  const std::vector<bool> selected = SelectedLines(job.Selection, result.labels.size());
  for (int row = 0; row < count; ++row) {
    const auto index = static_cast<std::size_t>(row);
    list.item(row)->setText(platform::ToQt(result.labels[index]));
    list.item(row)->setSelected(selected[index]);
  }
  if (result.current >= 0) list.setCurrentRow(result.current, QItemSelectionModel::NoUpdate);
  const QString comment = platform::ToQt(job.Comment);
  if (ui_->txtComments->text() != comment) ui_->txtComments->setText(comment);
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
