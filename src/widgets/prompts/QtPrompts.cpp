#include "widgets/prompts/QtPrompts.h"

#include <QApplication>
#include <QColorDialog>
#include <QInputDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <algorithm>

#include "platform/qt/Operations.h"
#include "platform/qt/QtText.h"
#include "widgets/prompts/frmSelect.h"
#include "widgets/prompts/frmUploadFiles.h"
#include "widgets/prompts/frmWait.h"

namespace morvane::widgets {

using platform::Answer;
using platform::Buttons;
using platform::FromQt;
using platform::ToQt;

namespace {

QMessageBox::StandardButtons ToButtons(Buttons buttons) {
  switch (buttons) {
    case Buttons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

Answer ToAnswer(int button) {
  switch (button) {
    case QMessageBox::Ok:
      return Answer::Ok;
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    default:
      return Answer::Cancel;
  }
}

}  // namespace

// The wait window goes while a box may still stand, and takes with it whatever it owns; where it has just
// gone, no window is active.
QWidget* QtPrompts::Owner() {
  QWidget* active = QApplication::activeWindow();
  if (active != nullptr && qobject_cast<frmWait*>(active) == nullptr) return active;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto frame = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && qobject_cast<const QMainWindow*>(window) != nullptr;
  });
  return frame == windows.end() ? nullptr : *frame;
}

int QtPrompts::Exec(QDialog& dialog) {
  const platform::Operations::Scope scope(operations_);
  return dialog.exec();
}

Answer QtPrompts::MsgBox(const std::string& text, Buttons buttons, const std::string& title) {
  QMessageBox box(Owner());
  box.setWindowTitle(ToQt(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(text));
  box.setIcon(buttons == Buttons::Ok ? QMessageBox::Information : QMessageBox::Question);
  box.setStandardButtons(ToButtons(buttons));
  Exec(box);
  const QAbstractButton* clicked = box.clickedButton();
  if (clicked != nullptr) return ToAnswer(box.standardButton(box.clickedButton()));
  // Taken away without an answer, as when the session ends: the answer that does nothing.
  return buttons == Buttons::YesNo ? Answer::No : (buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel);
}

std::optional<std::string> QtPrompts::InputBox(const std::string& prompt, const std::string& title,
                                               const std::string& preset) {
  QInputDialog dialog(Owner());
  dialog.setWindowTitle(ToQt(title));
  dialog.setLabelText(ToQt(prompt));
  dialog.setTextValue(ToQt(preset));
  if (Exec(dialog) != QDialog::Accepted) return std::nullopt;
  return FromQt(dialog.textValue());
}

std::optional<std::uint32_t> QtPrompts::ChooseColor(std::uint32_t preset) {
  QColorDialog dialog(QColor(preset & 255, preset >> 8 & 255, preset >> 16 & 255), Owner());
  if (Exec(dialog) != QDialog::Accepted) return std::nullopt;
  const QColor color = dialog.selectedColor();
  return static_cast<std::uint32_t>(color.red() | color.green() << 8 | color.blue() << 16);
}

template <typename Form>
std::vector<std::string> QtPrompts::Pick(const std::string& title, const std::vector<std::string>& entries) {
  QStringList texts;
  for (const std::string& entry : entries) texts.push_back(ToQt(entry));
  Form dialog(texts, Owner());
  if (!title.empty()) dialog.setWindowTitle(ToQt(title));
  Exec(dialog);
  std::vector<std::string> chosen;
  for (const QString& text : dialog.Selected()) chosen.push_back(FromQt(text));
  return chosen;
}

std::string QtPrompts::PickOne(const std::string& title, const std::vector<std::string>& entries) {
  const std::vector<std::string> chosen = Pick<frmSelect>(title, entries);
  return chosen.empty() ? std::string() : chosen.front();
}

std::vector<std::string> QtPrompts::PickMany(const std::string& title,
                                             const std::vector<std::string>& entries) {
  return Pick<frmUploadFiles>(title, entries);
}

}  // namespace morvane::widgets
