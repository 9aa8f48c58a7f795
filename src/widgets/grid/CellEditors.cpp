#include "widgets/grid/CellEditors.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>
#include <algorithm>

#include "widgets/ListChoice.h"

namespace morvane::widgets {
namespace {

constexpr int kMostVisible = 20;  // entries of an open list
constexpr int kListMargin = 24;   // pixels around their texts

QComboBox* MakeList(QWidget* parent, const char* name) {
  auto* list = new QComboBox(parent);
  list->setObjectName(name);
  list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  list->setMaxVisibleItems(kMostVisible);
  list->setFocusPolicy(Qt::ClickFocus);
  list->setAccessibleName(QObject::tr("Value"));
  return list;
}

// The open list is as wide as its longest entry, however narrow the cell.
void Fill(QComboBox& list, const QStringList& choices) {
  list.clear();
  list.addItems(choices);
  QAbstractItemView& view = *list.view();
  int width = 0;
  for (const QString& choice : choices) {
    width = std::max(width, view.fontMetrics().horizontalAdvance(choice));
  }
  view.setMinimumWidth(width + view.style()->pixelMetric(QStyle::PM_ScrollBarExtent) + kListMargin);
}

}  // namespace

CellEditors::CellEditors(QWidget& viewport)
    : text_(new QLineEdit(&viewport)),
      list_(MakeList(&viewport, "cmbSelect")),
      file_(new QWidget(&viewport)),
      fileList_(MakeList(file_, "cmbSelectJob")),
      fileButton_(new QToolButton(file_)) {
  text_->setObjectName("txtSelect");
  text_->setFocusPolicy(Qt::ClickFocus);
  text_->setAccessibleName(QObject::tr("Value"));
  fileButton_->setObjectName("cmdSelectJob");
  fileButton_->setText(QString(QChar(0x2026)));
  fileButton_->setToolTip(QObject::tr("Open this file"));
  fileButton_->setAccessibleName(fileButton_->toolTip());
  fileButton_->setFocusPolicy(Qt::NoFocus);
  fileButton_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
  file_->setAutoFillBackground(true);
  auto* layout = new QHBoxLayout(file_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(fileList_, 1);
  layout->addWidget(fileButton_);
  for (QWidget* editor : {static_cast<QWidget*>(text_), static_cast<QWidget*>(list_), file_}) editor->hide();
}

QComboBox* CellEditors::ShownList() const {
  return shown_ == EditorKind::List ? list_ : shown_ == EditorKind::ListWithButton ? fileList_ : nullptr;
}

QWidget* CellEditors::Input() const {
  return shown_ == EditorKind::Text ? static_cast<QWidget*>(text_) : ShownList();
}

QWidget* CellEditors::Frame() const {
  return shown_ == EditorKind::ListWithButton ? file_ : Input();
}

bool CellEditors::HasFocus() const {
  const QWidget* input = Input();
  return input != nullptr && input->window()->focusWidget() == input;
}

void CellEditors::Show(const CellEditor& editor, const QString& text, const QString& name) {
  shown_ = editor.kind;
  if (QComboBox* list = ShownList()) {
    Fill(*list, editor.choices);
    ShowChoice(*list, text);
  } else {
    text_->setText(text);
  }
  Input()->setAccessibleName(name);
  Frame()->show();
  Frame()->raise();
}

// A hidden widget would hand the focus to whatever comes next in the window.
void CellEditors::Hide(QWidget& heir) {
  QWidget* frame = Frame();
  if (frame == nullptr) return;
  const bool focus = HasFocus();
  shown_ = EditorKind::None;
  if (focus) heir.setFocus(Qt::OtherFocusReason);
  frame->hide();
}

void CellEditors::Place(const QRect& cell) {
  if (QWidget* frame = Frame()) frame->setGeometry(cell);
}

QString CellEditors::Text() const {
  const QComboBox* list = ShownList();
  return list != nullptr ? list->currentText() : text_->text();
}

void CellEditors::SetText(const QString& text) {
  if (Text() == text) return;
  if (QComboBox* list = ShownList()) return ShowChoice(*list, text);
  const bool all = text_->hasSelectedText() && text_->selectedText() == text_->text();
  const int cursor = text_->cursorPosition();
  text_->setText(text);
  text_->setCursorPosition(cursor);
  if (all) text_->selectAll();
}

void CellEditors::SelectAll() {
  if (shown_ == EditorKind::Text) text_->selectAll();
}

}  // namespace morvane::widgets
