#include "widgets/prompts/frmWait.h"

#include <QCloseEvent>
#include <QLabel>

#include "ui_frmWait.h"

namespace morvane::widgets {

frmWait::frmWait(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
  Ui::frmWait ui;
  ui.setupUi(this);
}

void frmWait::SetText(const QString& text) {
  findChild<QLabel*>("Label1")->setText(text);
}

void frmWait::closeEvent(QCloseEvent* event) {
  event->ignore();
}

}  // namespace morvane::widgets
