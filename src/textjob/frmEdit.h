// The text job editor: job selector, list of lines, comment, and the preview of the whole job.
#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>
#include <string>

#include "textjob/JobDocument.h"

namespace morvane::context {
struct AppContext;
}

namespace morvane::platform {
class RecordingCanvas;
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
  // Asks what becomes of a changed job. False when it must stay.
  bool LeaveJob();
  void cmdSave_Click();
  void SaveJobAs();
  // The whole drawing pass; asked for in the middle of a pass, it follows that one.
  void DrawJob();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Connect();
  void MarkMissingFunctions();
  void RefreshLockButton();
  void cmbFile_Click(int index);
  void CmdLockImage_Click();
  void Transfer(bool (JobTransfer::*what)());
  void cmbLine_Click();
  void txtComments_Change(const QString& text);
  void pic_MouseDown(const QPointF& world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  void pic_MouseMove(const QPointF& world);

  // One drawing pass; `search` finds the line nearest to a click.
  void RunPass(ClickSearch* search = nullptr);
  void ShowPart(const platform::RecordingCanvas& drawing);
  void ShowJob();
  void ShowLines(const TextJob& job, const PreviewResult& result);
  void ShowLegend();

  const context::AppContext& context_;
  std::unique_ptr<Ui::frmEdit> ui_;
  JobDocument document_;
  QTimer resized_;  // one pass for a burst of sizes
  bool drawing_ = false;
  bool drawAgain_ = false;
  bool filling_ = false;  // the list is being filled, its events mean nothing
};

}  // namespace morvane::textjob
