// Binds a background image of its own, and its place, to a job.
#pragma once

#include <QDialog>
#include <array>
#include <memory>
#include <string>

class QLineEdit;

namespace morvane::context {
struct AppContext;
}

namespace Ui {
class frmLockImage;
}

namespace morvane::textjob {

class frmLockImage : public QDialog {
  Q_OBJECT

 public:
  // `job`: program name of a saved job.
  frmLockImage(const context::AppContext& context, std::string job, QWidget* parent = nullptr);
  ~frmLockImage() override;

 private:
  std::array<QLineEdit*, 4> Fields() const;
  void FillList(const std::string& selected);
  void ShowRecord();
  // Writes or removes the job's record and closes; stays open after a message.
  void Write(bool remove, const char* procedure);
  void cmbImage_Click();
  void cmdImport_Click();

  const context::AppContext& context_;
  std::unique_ptr<Ui::frmLockImage> ui_;
  std::string job_;
};

}  // namespace morvane::textjob
