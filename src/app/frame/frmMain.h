// The frame: menu bar, the area of child windows, status bar. It starts and ends the running phase.
#pragma once

#include <QMainWindow>

class QMdiArea;

namespace morvane::context {
struct AppContext;
}

namespace morvane::app {

class AppWindows;
class MdiChild;
class MenuActions;

class frmMain : public QMainWindow {
  Q_OBJECT

 public:
  frmMain(const context::AppContext& context, AppWindows& windows);
  ~frmMain() override;

  // Reads geometry and check marks, clears the scratch folder. Bad text in the settings is reported in
  // a box, and the defaults stand.
  void MDIForm_Load();
  // Caption, and the production menu's visibility.
  void SetMainCaption();
  // Takes up changed settings and redraws the active job.
  void Refresh();
  // Sets the View menu's check marks to the view options.
  void ShowViewMarks();

  QMdiArea& Area() { return *area_; }
  // Frames the form, shows it and makes it active.
  MdiChild* AddChild(QWidget* form);
  // The form inside the active child window; null when there is none.
  QWidget* ActiveForm() const;
  // The menu entry of that name.
  QAction* Entry(const char* name) const;

 signals:
  // The main window has gone; the program may end.
  void Unloaded();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void BuildRecentFiles();
  void ShowRecentFiles();
  void BuildWindowList();
  void ShowWindowList();
  void EnableEntries();
  void HoldMinimumSize();
  void ReadGeometryAndMarks();
  // False when a form refuses to go.
  bool UnloadForms();
  void WriteGeometryAndMarks();

  const context::AppContext& context_;
  AppWindows& windows_;
  std::unique_ptr<MenuActions> actions_;
  QMdiArea* area_;
};

}  // namespace morvane::app
