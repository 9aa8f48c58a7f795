// "Select File": a plain chooser over a list.
#pragma once

#include <QDialog>
#include <QStringList>

class QListWidget;
class QPushButton;

namespace morvane::widgets {

class frmSelect : public QDialog {
  Q_OBJECT

 public:
  explicit frmSelect(const QStringList& entries, QWidget* parent = nullptr);
  // Empty when cancelled.
  QStringList Selected() const;

 private:
  QListWidget* list_;
  QPushButton* select_;
};

}  // namespace morvane::widgets
