// The file dialogs of QtPrompts.
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>

#include "common/text/Text.h"
#include "platform/qt/QtText.h"
#include "widgets/prompts/FileFilter.h"
#include "widgets/prompts/QtPrompts.h"

namespace morvane::widgets {

using platform::FileDialogRequest;
using platform::PathFromQt;
using platform::PathToQt;
using platform::ToQt;

namespace {

constexpr QSize kPanelDialog(860, 480);

}  // namespace

void QtPrompts::Prepare(QFileDialog& dialog, const FileDialogRequest& request) const {
  dialog.setWindowTitle(ToQt(request.title));
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(NameFilters(ToQt(request.filter)));
  dialog.setDefaultSuffix(ToQt(request.defaultExtension));
  if (!request.directory.empty()) dialog.setDirectory(PathToQt(request.directory));
  if (!request.fileName.empty()) dialog.selectFile(ToQt(request.fileName));
}

void QtPrompts::AddSidePanel(QFileDialog& dialog, const std::string& extension) const {
  const auto found = panels_.find(common::ToLower(extension));
  if (found == panels_.end()) return;
  // Only the toolkit's own dialog can take a panel.
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
  if (grid == nullptr) return;
  QWidget* panel = found->second(dialog);
  grid->addWidget(panel, 0, grid->columnCount(), grid->rowCount(), 1);
  dialog.resize(kPanelDialog);
}

std::string QtPrompts::OpenFile(const FileDialogRequest& request) {
  QFileDialog dialog(Owner());
  AddSidePanel(dialog, request.defaultExtension);
  Prepare(dialog, request);
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (Exec(dialog) != QDialog::Accepted) return {};
  return PathFromQt(dialog.selectedFiles().value(0));
}

std::string QtPrompts::SaveFile(const FileDialogRequest& request) {
  QFileDialog dialog(Owner());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  Prepare(dialog, request);
  dialog.setFileMode(QFileDialog::AnyFile);
  if (Exec(dialog) != QDialog::Accepted) return {};
  return PathFromQt(dialog.selectedFiles().value(0));
}

std::vector<std::string> QtPrompts::OpenFiles(const FileDialogRequest& request) {
  QFileDialog dialog(Owner());
  Prepare(dialog, request);
  dialog.setFileMode(QFileDialog::ExistingFiles);
  std::vector<std::string> paths;
  if (Exec(dialog) != QDialog::Accepted) return paths;
  for (const QString& path : dialog.selectedFiles()) paths.push_back(PathFromQt(path));
  return paths;
}

std::string QtPrompts::ChooseFolder(const std::string& title, const std::string& directory) {
  QFileDialog dialog(Owner(), ToQt(title), PathToQt(directory));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  if (Exec(dialog) != QDialog::Accepted) return {};
  return PathFromQt(dialog.selectedFiles().value(0));
}

}  // namespace morvane::widgets
