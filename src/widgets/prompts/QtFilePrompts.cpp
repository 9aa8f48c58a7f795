// The file dialogs of QtPrompts.
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QScreen>
#include <QSplitter>
#include <QTreeView>

#include "common/text/Text.h"
#include "platform/qt/QtText.h"
#include "widgets/prompts/FileFilter.h"
#include "widgets/prompts/QtPrompts.h"
#include "widgets/prompts/StationFilter.h"

namespace morvane::widgets {

using platform::FileDialogRequest;
using platform::PathFromQt;
using platform::PathToQt;
using platform::ToQt;

namespace {

// In widths of a letter, so that larger letters get their room.
constexpr int kDialogWidth = 130;
constexpr int kDialogHeight = 30;  // lines
constexpr int kPanelWidth = 52;
constexpr int kSidebarWidth = 26;

enum Column { kName, kSize, kKind, kDate };
constexpr std::pair<Column, int> kWidths[] = {{kSize, 14}, {kDate, 30}};

// The filter says which kind of files is listed; the name takes what the other columns leave.
void WidenColumns(QFileDialog& dialog) {
  const int letter = dialog.fontMetrics().averageCharWidth();
  if (auto* list = dialog.findChild<QTreeView*>("treeView")) {
    QHeaderView& header = *list->header();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(kName, QHeaderView::Stretch);
    header.hideSection(kKind);
    for (const auto& [column, width] : kWidths) header.resizeSection(column, width * letter);
  }
  if (auto* parts = dialog.findChild<QSplitter*>("splitter")) {
    parts->setSizes({kSidebarWidth * letter, kDialogWidth * letter});
  }
}

}  // namespace

// Only the toolkit's own dialog can take a panel, leave out the scratch folder and show the station first.
void QtPrompts::Arrange(QFileDialog& dialog) const {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setViewMode(QFileDialog::Detail);
  if (!station_.isEmpty()) {
    dialog.setProxyModel(new StationFilter(station_, &dialog));
    dialog.setSidebarUrls({QUrl::fromLocalFile(station_), QUrl::fromLocalFile(QDir::homePath()),
                           QUrl::fromLocalFile(QDir::rootPath())});
  }
  const QFontMetrics letters = dialog.fontMetrics();
  dialog.resize(kDialogWidth * letters.averageCharWidth(), kDialogHeight * letters.height());
  WidenColumns(dialog);
}

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
  auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
  if (grid == nullptr) return;
  QWidget* panel = found->second(dialog);
  grid->addWidget(panel, 0, grid->columnCount(), grid->rowCount(), 1);
  const int width = kPanelWidth * dialog.fontMetrics().averageCharWidth();
  grid->setColumnStretch(1, 1);
  panel->setFixedWidth(width);
  dialog.resize(QSize(dialog.width() + width, dialog.height()).boundedTo(dialog.screen()->availableSize()));
}

std::string QtPrompts::OpenFile(const FileDialogRequest& request) {
  QFileDialog dialog(Owner());
  Arrange(dialog);
  AddSidePanel(dialog, request.defaultExtension);
  Prepare(dialog, request);
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (Exec(dialog) != QDialog::Accepted) return {};
  return PathFromQt(dialog.selectedFiles().value(0));
}

std::string QtPrompts::SaveFile(const FileDialogRequest& request) {
  QFileDialog dialog(Owner());
  Arrange(dialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  Prepare(dialog, request);
  dialog.setFileMode(QFileDialog::AnyFile);
  if (Exec(dialog) != QDialog::Accepted) return {};
  return PathFromQt(dialog.selectedFiles().value(0));
}

std::vector<std::string> QtPrompts::OpenFiles(const FileDialogRequest& request) {
  QFileDialog dialog(Owner());
  Arrange(dialog);
  Prepare(dialog, request);
  dialog.setFileMode(QFileDialog::ExistingFiles);
  std::vector<std::string> paths;
  if (Exec(dialog) != QDialog::Accepted) return paths;
  for (const QString& path : dialog.selectedFiles()) paths.push_back(PathFromQt(path));
  return paths;
}

std::string QtPrompts::ChooseFolder(const std::string& title, const std::string& directory) {
  QFileDialog dialog(Owner(), ToQt(title), PathToQt(directory));
  Arrange(dialog);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  if (Exec(dialog) != QDialog::Accepted) return {};
  return PathFromQt(dialog.selectedFiles().value(0));
}

}  // namespace morvane::widgets
