// The text job editor: job selector, list of lines, their properties, comment, and the preview of the whole
// job. It shows what JobEditor does, and forwards events to it.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <string>

#include "textjob/edit/JobEditor.h"
#include "textjob/job/JobDocument.h"

namespace morvane::context {
struct AppContext;
}

namespace morvane::platform {
class RecordingCanvas;
}

namespace morvane::widgets {
struct CellEditor;
}

namespace Ui {
class frmEdit;
}

namespace morvane::textjob {

struct ClickSearch;
class JobTransfer;
struct PreviewResult;

class frmEdit : public QWidget {
  Q_OBJECT

 public:
  explicit frmEdit(const context::AppContext& context, QWidget* parent = nullptr);
  ~frmEdit() override;

  // Loads a job by its program name and draws it. A changed job is dropped: LeaveJob first.
  void OpenJob(const std::string& name);
  // Shows the unsaved changes of a program that died.
  void OpenRecovered(const RecoveredJob& copy);
  // Asks what becomes of a changed job. False when it must stay.
  bool LeaveJob();
  void cmdSave_Click();
  void SaveJobAs();
  // The Offset entry of the File menu.
  void OffsetJob();
  // Selects one line, as a click in the list does.
  void SelectLine(int index);
  // The whole drawing pass; asked for in the middle of a pass, it follows that one.
  void DrawJob();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Connect();
  void ConnectLines();
  void ConnectGrid();
  void AddAction(const char* name, const QString& caption, const QList<QKeySequence>& keys,
                 bool (JobEditor::*what)());
  void RefreshLockButton();
  void cmbFile_Click(int index);
  void CmdLockImage_Click();
  void Transfer(bool (JobTransfer::*what)());
  void cmbLine_Click();
  void cmdReorder_Click();
  void cmdOpenFile_Click();
  // Runs a function of the editor and shows what it changed.
  void Do(bool (JobEditor::*what)());
  void txtComments_Change(const QString& text);
  void pic_MouseDown(const QPointF& world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  void MoveTo(const QPointF& world);
  void pic_MouseMove(const QPointF& world);
  void pic_RubberBand(const QRectF& world, Qt::KeyboardModifiers modifiers);
  const recipes::Fixture* ShownFixture() const;

  // The property grid.
  void PropertyGrid_Edited(int row, const QString& text);
  widgets::CellEditor ChooseEditor(int row) const;
  RowContext RowsContext();
  void ShowRows();
  // The buttons of Undo and Redo, and the copy of unsaved changes.
  void KeepChanges();
  void EditFirstRow();

  // One drawing pass; `search` finds the line nearest to a click.
  void RunPass(ClickSearch* search = nullptr);
  void ShowPart(const platform::RecordingCanvas& drawing);
  // What stands around the drawing of a job. `loaded`: it is another job than the one shown so far.
  void ShowJob(bool loaded = false);
  void ShowLines(const PreviewResult& result);
  void ShowLegend();

  const context::AppContext& context_;
  std::unique_ptr<Ui::frmEdit> ui_;
  JobDocument document_;
  JobEditor editor_;
  std::string shownSelection_;  // the lines that the grid shows
  QTimer copyDue_;
  QTimer resized_;  // one pass for a burst of sizes
  bool drawing_ = false;
  bool drawAgain_ = false;
  bool filling_ = false;  // the list is being filled, its events mean nothing
};

}  // namespace morvane::textjob
