// The picture that stands while the program starts.
#pragma once

#include <QWidget>

namespace morvane::app {

inline constexpr int kSplashTime = 5000;  // milliseconds

class frmSplash : public QWidget {
  Q_OBJECT

 public:
  frmSplash();

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace morvane::app
