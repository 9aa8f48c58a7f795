#include "textjob/ui/frmEdit.h"

#include <QCloseEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "common/files/FileNames.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "fonts/FontTable.h"
#include "platform/qt/QtText.h"
#include "textjob/job/JobFile.h"
#include "textjob/job/TextJob.h"
#include "textjob/transfer/JobTransfer.h"
#include "ui_frmEdit.h"

namespace morvane::textjob {

using platform::FromQt;
using platform::ToQt;

// Heights of the list of lines and of the property grid, in proportion.
constexpr int kListShare = 100;
constexpr int kGridShare = 200;

frmEdit::frmEdit(const context::AppContext& context, QWidget* parent)
    : QWidget(parent),
      context_(context),
      ui_(std::make_unique<Ui::frmEdit>()),
      document_(context.job, context.files, context.prompts, context.fileDialogs, &context.recovery),
      editor_({context.job, document_, context.files, context.settings, context.clock, context.locale,
               context.prompts, context.clipboard}) {
  ui_->setupUi(this);
  ui_->pic->SetPictures(&context.pictures);
  ui_->splitter->setStretchFactor(1, 1);
  ui_->lines->setSizes({kListShare, kGridShare});
  Connect();
  ConnectLines();
  ConnectGrid();
  context.job = {};
  ShowJob(true);
}

frmEdit::~frmEdit() = default;

void frmEdit::Connect() {
  for (QWidget* watched : std::initializer_list<QWidget*>{ui_->cmbFile, ui_->txtComments,
                                                          &ui_->PropertyGrid->Editors().TextBox()}) {
    watched->installEventFilter(this);
  }
  connect(ui_->cmbFile, &QComboBox::activated, this, &frmEdit::cmbFile_Click);
  connect(ui_->txtComments, &QLineEdit::textEdited, this, &frmEdit::txtComments_Change);
  connect(ui_->cmdSave, &QPushButton::clicked, this, &frmEdit::cmdSave_Click);
  connect(ui_->cmdDownload, &QPushButton::clicked, this, [this] { Transfer(&JobTransfer::Download); });
  connect(ui_->cmdDownloadRun, &QPushButton::clicked, this,
          [this] { Transfer(&JobTransfer::DownloadAndRun); });
  connect(ui_->cmdUpload, &QPushButton::clicked, this, [this] { Transfer(&JobTransfer::Upload); });
  connect(ui_->CmdLockImage, &QPushButton::clicked, this, &frmEdit::CmdLockImage_Click);
  connect(ui_->pic, &widgets::CanvasView::Pressed, this, &frmEdit::pic_MouseDown);
  ui_->pic->SetRubberBand(true);
  connect(ui_->pic, &widgets::CanvasView::RubberBand, this, &frmEdit::pic_RubberBand);
  connect(ui_->pic, &widgets::CanvasView::DoubleClicked, this, &frmEdit::cmdOpenFile_Click);
  connect(ui_->pic, &widgets::CanvasView::MouseMoved, this, &frmEdit::pic_MouseMove);
  connect(ui_->pic, &widgets::CanvasView::MouseLeft, this,
          [this] { context_.statusPanels.SetText(context::Panel::Mouse, {}); });
  copyDue_.setSingleShot(true);
  connect(&copyDue_, &QTimer::timeout, this, &frmEdit::KeepChanges);
  // A pass may ask and wait, which a resize event must not.
  resized_.setSingleShot(true);
  connect(&resized_, &QTimer::timeout, this, &frmEdit::DrawJob);
  connect(ui_->pic, &widgets::CanvasView::Resized, &resized_, qOverload<>(&QTimer::start));
}

void frmEdit::OpenJob(const std::string& name) {
  document_.Open(name);
  ShowJob(true);
}

void frmEdit::OpenRecovered(const RecoveredJob& copy) {
  document_.Restore(copy);
  ShowJob(true);
}

void frmEdit::ShowJob(bool loaded) {
  if (loaded) {
    editor_.Loaded();
    ui_->PropertyGrid->CloseEditor();
    shownSelection_.clear();
    context_.font.missing.clear();
  } else if (!context_.job.Dirty) {
    editor_.Saved();
  }
  std::size_t selected = 0;
  ui_->cmbFile->clear();
  for (const std::string& name : JobList(context_.files, document_.Name(), selected)) {
    ui_->cmbFile->addItem(ToQt(name));
  }
  ui_->cmbFile->setCurrentIndex(static_cast<int>(selected));
  const QString name = ToQt(common::PathFileName(document_.Name()));
  setWindowTitle(tr("Text Job - %1").arg(name) + "[*]");
  context_.statusPanels.SetText(context::Panel::Job, name);
  RefreshLockButton();
  DrawJob();
}

bool frmEdit::LeaveJob() {
  if (!context_.job.Dirty) return true;
  const bool leave = document_.LeaveJob(true);
  // A save may have given the job a name.
  if (leave) ShowJob();
  return leave;
}

void frmEdit::cmdSave_Click() {
  if (document_.Save()) ShowJob();
}

void frmEdit::SaveJobAs() {
  if (document_.SaveAs()) ShowJob();
}

void frmEdit::cmbFile_Click(int index) {
  const std::string name = FromQt(ui_->cmbFile->itemText(index));
  if (name == document_.Name()) return;
  // A job that could not be saved stays.
  if (!LeaveJob()) return ShowJob();
  OpenJob(name);
}

void frmEdit::txtComments_Change(const QString& text) {
  editor_.SetComment(FromQt(text));
  setWindowModified(true);
  KeepChanges();
}

bool frmEdit::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    // Undo in a text box takes back a change of the job, not a letter of the box.
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool history = key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
    if (history) event->ignore();
    return history;
  }
  if (watched == ui_->txtComments && event->type() == QEvent::FocusIn) editor_.EnterRow();
  const bool focus = watched == ui_->cmbFile && event->type() == QEvent::FocusIn;
  if (!focus || !context_.job.Dirty) return QWidget::eventFilter(watched, event);
  // The focus also comes back from the list that drops down, and from the question itself.
  const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
  if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) LeaveJob();
  return QWidget::eventFilter(watched, event);
}

void frmEdit::closeEvent(QCloseEvent* event) {
  if (!document_.LeaveJob(false)) return event->ignore();
  context_.job = {};
  KeepChanges();
  context_.statusPanels.SetText(context::Panel::Job, {});
  context_.statusPanels.SetText(context::Panel::Mouse, {});
  event->accept();
}

}  // namespace morvane::textjob
