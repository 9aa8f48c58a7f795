// What the editor does with the controller and with the image that is locked to its job.
#include <QPointer>

#include "common/files/FileNames.h"
#include "context/AppContext.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtText.h"
#include "textjob/job/LockImages.h"
#include "textjob/job/TextJob.h"
#include "textjob/preview/ViewOptions.h"
#include "textjob/transfer/JobTransfer.h"
#include "textjob/ui/frmEdit.h"
#include "textjob/ui/frmLockImage.h"
#include "ui_frmEdit.h"
#include "widgets/Windows.h"

namespace morvane::textjob {

void frmEdit::RefreshLockButton() {
  LockRecord record;
  record.Job = document_.Name();
  const bool isNew = record.Job == kNewJob;
  QString caption = "&Lock Image";
  if (!isNew && FindLockRecord(context_.files, record)) {
    caption = record.Image.empty() ? "&Empty Image" : platform::ToQt(record.Image).replace("&", "&&");
  }
  ui_->CmdLockImage->setText(caption);
  ui_->CmdLockImage->setEnabled(!isNew);
}

// Nobody edits the job while it is under way.
void frmEdit::Transfer(bool (JobTransfer::*what)()) {
  if (!context_.comm.Owner().Free()) return;
  const platform::Operations::Scope scope(context_.operations, this);
  const QPointer<QWidget> focus = focusWidget();
  setEnabled(false);
  JobTransfer transfer({context_.files, context_.settings, context_.prompts, context_.waitWindow,
                        context_.comm, context_.job, document_, context_.viewOptions.Fixture});
  (transfer.*what)();
  setEnabled(true);
  // Another window may have it by now.
  if (focus && window()->focusWidget() == nullptr) focus->setFocus();
  if (!context_.abortTransfers) ShowJob();
}

void frmEdit::CmdLockImage_Click() {
  const platform::Operations::Scope scope(context_.operations, this);
  if (!document_.Save()) return;
  ShowJob();
  frmLockImage(context_, document_.Name(), this).exec();
  RefreshLockButton();
  context_.windows.RedrawActiveJob();
}

}  // namespace morvane::textjob
