// Asks by how much something is to be moved: a text job, lines of one, a pallet's path, a G-code job.
#pragma once

#include <QDialog>
#include <string>

class QCheckBox;
class QLineEdit;

namespace morvane::common {
class Settings;
}

namespace morvane::widgets {

struct OffsetRequest {
  QString title;
  bool depth = false;     // asks for one
  bool byObject = false;  // offers the check box
  std::string x = "0";    // what the fields begin with
  std::string y = "0";
};

// As the user left them; a number is what their prefix parse gives.
struct OffsetTexts {
  std::string x;
  std::string y;
  std::string depth;
  bool byObject = false;
};

class frmOffset : public QDialog {
  Q_OBJECT

 public:
  // The labels carry the unit of the settings.
  frmOffset(const OffsetRequest& request, const common::Settings& settings, QWidget* parent = nullptr);
  // Of the accepted dialog.
  OffsetTexts Texts() const;

 private:
  QLineEdit* x_;
  QLineEdit* y_;
  QLineEdit* depth_;
  QCheckBox* byObject_;
};

}  // namespace morvane::widgets
