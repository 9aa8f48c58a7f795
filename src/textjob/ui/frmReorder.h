// "Reorder": moves lines of the job up and down in their order.
#pragma once

#include <QDialog>
#include <cstddef>
#include <functional>

class QListWidget;

namespace morvane::context {
struct AppContext;
}

namespace morvane::textjob {

class frmReorder : public QDialog {
  Q_OBJECT

 public:
  // Works on the context's job, whose lines nobody else may change meanwhile. `changed` is called after each
  // swap, before the moved line is selected in the editor.
  frmReorder(const context::AppContext& context, std::function<void()> changed, QWidget* parent = nullptr);

 private:
  void FillList();
  void List1_Click(int row);
  // `way`: -1 for up, 1 for down.
  void Move(int way);

  const context::AppContext& context_;
  std::function<void()> changed_;
  QListWidget* list_;
  bool filling_ = false;
};

}  // namespace morvane::textjob
