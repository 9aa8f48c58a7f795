// "Select File to Upload": files of the controller, several at a time, and how a fetched one is shown.
#pragma once

#include <QDialog>
#include <QStringList>
#include <memory>

namespace Ui {
class frmUploadFiles;
}

namespace morvane::widgets {

class frmUploadFiles : public QDialog {
  Q_OBJECT

 public:
  explicit frmUploadFiles(const QStringList& entries, QWidget* parent = nullptr);
  ~frmUploadFiles() override;
  // Shows the buttons that say how a fetched job is shown.
  void OfferDisplay();
  bool UseToolViewer() const;
  // In the list's order; empty when cancelled.
  QStringList Selected() const;

 private:
  std::unique_ptr<Ui::frmUploadFiles> ui_;
};

}  // namespace morvane::widgets
