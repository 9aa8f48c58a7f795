// Makes and finds the program's windows inside the frame.
#pragma once

#include <QPointer>
#include <string>

#include "app/frame/MdiChild.h"
#include "widgets/Windows.h"

class QDialog;

namespace morvane::context {
struct AppContext;
}

namespace morvane::textjob {
class frmEdit;
}

namespace morvane::app {

class frmMain;

class AppWindows : public widgets::Windows {
 public:
  // The context may still be under construction.
  explicit AppWindows(const context::AppContext& context) : context_(context) {}
  void SetFrame(frmMain* frame) { frame_ = frame; }

  QWidget* MainWindow() override;
  void OpenGraphicViewer(const std::string& file) override;
  void Refresh() override;
  void RedrawActiveJob() override;
  void SelectJobLine(int line) override;

  // The text job editor, made on first use, in front of all others.
  textjob::frmEdit* ShowEditor();
  // Unloads it, unless it refuses.
  void CloseEditor();
  // The Font Viewer, made on first use. An empty name keeps the font it shows.
  void ShowFontView(const std::string& name = "");
  // Opens a file of a known kind (native path) in its window; tells when the kind is not known.
  void OpenFile(const std::string& path);
  // Opens a file that is taken for a G-code job, whatever its kind (native path).
  void ViewGraphic(const std::string& path);
  // Opens a job (program name) in the editor, once a changed one there is settled.
  void OpenJob(const std::string& name);
  // Offers the unsaved changes of a program that died. True when the editor shows them now.
  bool OfferRecovery();
  // A job whose redraw came while another window was active is drawn when its editor comes forward.
  void RedrawStaleJob();
  bool EditorIsActive() const;
  // Shows a dialog until it is closed.
  int ShowModal(QDialog& dialog);

 private:
  const context::AppContext& context_;
  frmMain* frame_ = nullptr;
  QPointer<MdiChild> editor_;
  QPointer<MdiChild> fontView_;
  bool jobIsStale_ = false;
};

}  // namespace morvane::app
