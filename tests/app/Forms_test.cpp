// What holds of every form: the Tab key goes the way that the eye goes, no caption is cut off at the least
// size, no two letters of a form are the same, a dialog has its default button and obeys Escape, and the
// wheel turns no value without the focus.
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMetaProperty>
#include <QTabWidget>
#include <QWheelEvent>
#include <set>

#include "app/frmAbout.h"
#include "app/options/frmAddMachine.h"
#include "app/options/frmOptions.h"
#include "fonts/ui/frmFontView.h"
#include "gcode/ui/frmGraphic.h"
#include "support/qt_WindowStation.h"
#include "textjob/ui/frmEdit.h"
#include "textjob/ui/frmLockImage.h"
#include "textjob/ui/frmReorder.h"
#include "widgets/frmOffset.h"
#include "widgets/prompts/frmSelect.h"
#include "widgets/prompts/frmUploadFiles.h"

namespace morvane::test {
namespace {

QRect Place(const QWidget& control, const QWidget& form) {
  return {control.mapTo(&form, QPoint()), control.size()};
}

void CheckTabOrder(QWidget& form) {
  std::vector<const QWidget*> order;
  for (QWidget* next = form.nextInFocusChain(); next != &form; next = next->nextInFocusChain()) {
    if (next->isVisibleTo(&form) && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus) != 0 &&
        next->focusProxy() == nullptr && !next->objectName().startsWith("qt_")) {
      order.push_back(next);
    }
  }
  ASSERT_FALSE(order.empty());
  for (std::size_t i = 1; i < order.size(); ++i) {
    const QRect from = Place(*order[i - 1], form);
    const QRect to = Place(*order[i], form);
    EXPECT_TRUE(to.left() >= from.right() || to.top() >= from.bottom())
        << order[i - 1]->objectName().toStdString() << " to " << order[i]->objectName().toStdString();
  }
}

void CheckNames(const QWidget& form) {
  std::set<const QWidget*> named;
  for (const QLabel* label : form.findChildren<QLabel*>()) named.insert(label->buddy());
  for (const QWidget* control : form.findChildren<QWidget*>()) {
    const bool wantsName = qobject_cast<const QLineEdit*>(control) != nullptr ||
                           qobject_cast<const QComboBox*>(control) != nullptr ||
                           qobject_cast<const QListWidget*>(control) != nullptr;
    if (!wantsName || control->focusProxy() != nullptr || control->objectName().startsWith("qt_")) continue;
    EXPECT_TRUE(named.count(control) != 0 || !control->accessibleName().isEmpty())
        << control->objectName().toStdString() << " is read out without a name";
  }
}

void CheckCaptions(const QWidget& form) {
  std::map<QKeySequence, std::string> letters;
  const auto letter = [&letters](const QString& text) {
    const QKeySequence key = QKeySequence::mnemonic(text);
    if (key.isEmpty()) return;
    EXPECT_TRUE(letters.emplace(key, text.toStdString()).second)
        << letters[key] << ", " << text.toStdString();
  };
  for (const QWidget* control : form.findChildren<QWidget*>()) {
    if (!control->isVisibleTo(&form)) continue;
    const auto* label = qobject_cast<const QLabel*>(control);
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    if (label == nullptr && button == nullptr) continue;
    const QString text = label != nullptr ? label->text() : button->text();
    letter(text);
    const bool fits = text.isEmpty() || (label != nullptr && label->wordWrap()) ||
                      (control->width() >= control->sizeHint().width() &&
                       control->height() >= control->minimumSizeHint().height());
    EXPECT_TRUE(fits) << control->objectName().toStdString() << " is cut off: " << text.toStdString();
  }
  for (const QTabWidget* tabs : form.findChildren<QTabWidget*>()) {
    for (int page = 0; page < tabs->count(); ++page) letter(tabs->tabText(page));
  }
}

void CheckWheel(QWidget& form) {
  for (QWidget* control : form.findChildren<QWidget*>()) {
    const QMetaProperty value = control->metaObject()->userProperty();
    if (!value.isValid() || control->hasFocus()) continue;
    const QVariant before = value.read(control);
    for (const int turn : {-120, 120}) {
      QWheelEvent wheel({5, 5}, control->mapToGlobal(QPointF(5, 5)), {}, {0, turn}, {}, {}, {}, false);
      QApplication::sendEvent(control, &wheel);
      EXPECT_EQ(value.read(control), before) << control->objectName().toStdString();
    }
  }
}

void CheckForm(QWidget& form) {
  form.show();
  form.resize(form.minimumSizeHint().expandedTo(form.minimumSize()));
  WindowStation::Pump();
  CheckTabOrder(form);
  CheckNames(form);
  CheckCaptions(form);
  CheckWheel(form);
}

void CheckDialog(QDialog& dialog) {
  SCOPED_TRACE(dialog.objectName().toStdString());
  auto* tabs = dialog.findChild<QTabWidget*>();
  for (int page = 0; tabs != nullptr && page < tabs->count(); ++page) {
    tabs->setCurrentIndex(page);
    CheckForm(dialog);
  }
  CheckForm(dialog);
  const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
  const auto count = [&buttons](bool (QPushButton::*is)() const) {
    return std::count_if(buttons.begin(), buttons.end(),
                         [is](QPushButton* button) { return (button->*is)(); });
  };
  // A dialog without one says so of all its buttons: Enter is for its list.
  EXPECT_EQ(count(&QPushButton::isDefault), count(&QPushButton::autoDefault) > 0 ? 1 : 0);
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
}

TEST(Forms, AreWellMade) {
  const QFont usual = QApplication::font();
  for (const double scale : {1.0, 1.6}) {
    SCOPED_TRACE(scale);
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * scale);
    QApplication::setFont(font);
    WindowStation station;
    station.folder.Write("A.JOB", "G0 X1\r\n");
    station.settings.SaveSetting("Machines", "Laser", "10.0.0.1");
    station.Load();
    widgets::frmUploadFiles upload({"A.TJB"});
    upload.OfferDisplay();
    widgets::frmSelect select({"A.TJB"});
    app::frmOptions options(station.context);
    app::frmAddMachine machine(station.context);
    textjob::frmLockImage lock(station.context, "A.TJB");
    textjob::frmReorder reorder(station.context, [] {});
    widgets::frmOffset offset({}, station.settings);
    app::frmAbout about(nullptr);
    for (QDialog* dialog : std::initializer_list<QDialog*>{&upload, &select, &options, &machine, &lock,
                                                           &reorder, &offset, &about}) {
      CheckDialog(*dialog);
    }
    fonts::frmFontView fontView(station.context);
    gcode::frmGraphic graphic(station.context, "A.JOB");
    textjob::frmEdit editor(station.context);
    for (QWidget* form : std::initializer_list<QWidget*>{&fontView, &graphic, &editor}) {
      SCOPED_TRACE(form->objectName().toStdString());
      CheckForm(*form);
    }
  }
  QApplication::setFont(usual);
}

}  // namespace
}  // namespace morvane::test
