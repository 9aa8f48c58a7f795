// The three editors of a cell grid. They are made once and shown over its cells, at most one at a time.
#pragma once

#include <QString>

#include "widgets/grid/CellEditor.h"

class QComboBox;
class QLineEdit;
class QRect;
class QToolButton;
class QWidget;

namespace morvane::widgets {

class CellEditors {
 public:
  // The widgets belong to `viewport`.
  explicit CellEditors(QWidget& viewport);

  QLineEdit& TextBox() const { return *text_; }
  QComboBox& List() const { return *list_; }
  QComboBox& FileList() const { return *fileList_; }
  QToolButton& FileButton() const { return *fileButton_; }

  EditorKind Shown() const { return shown_; }
  // That which has the keyboard; null while none is shown.
  QWidget* Input() const;
  bool HasFocus() const;
  void Show(const CellEditor& editor, const QString& text, const QString& name);
  // A focus in it goes to `heir`.
  void Hide(QWidget& heir);
  void Place(const QRect& cell);

  QString Text() const;
  // Keeps the place of the cursor; a text that is selected as a whole stays so.
  void SetText(const QString& text);
  void SelectAll();

 private:
  QComboBox* ShownList() const;
  QWidget* Frame() const;

  QLineEdit* text_;
  QComboBox* list_;
  QWidget* file_;  // around the list and its button
  QComboBox* fileList_;
  QToolButton* fileButton_;
  EditorKind shown_ = EditorKind::None;
};

}  // namespace morvane::widgets
