// What the editor does with the controller and with the image that is locked to its job.
#include "common/FileNames.h"
#include "context/AppContext.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtText.h"
#include "textjob/LockImages.h"
#include "textjob/TextJob.h"
#include "textjob/frmEdit.h"
#include "textjob/frmLockImage.h"
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

void frmEdit::CmdLockImage_Click() {
  const platform::Operations::Scope scope(context_.operations, this);
  if (!document_.Save()) return;
  ShowJob();
  frmLockImage(context_, document_.Name(), this).exec();
  RefreshLockButton();
  context_.windows.RedrawActiveJob();
}

}  // namespace morvane::textjob
