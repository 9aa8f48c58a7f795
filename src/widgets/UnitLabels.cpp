#include "widgets/UnitLabels.h"

#include <QLabel>

#include "common/OptionFields.h"
#include "common/Settings.h"
#include "platform/qt/QtText.h"

namespace morvane::widgets {

void ShowUnits(const QWidget& form, const common::Settings& settings) {
  const QString units = platform::ToQt(settings.GetSetting(common::kSettingsSection, "Units", "in"));
  for (const common::OptionField& field : common::OptionFields()) {
    auto* label = field.label == nullptr ? nullptr : form.findChild<QLabel*>(field.label);
    if (label != nullptr) label->setText(QString("%1 (%2)").arg(field.caption, units));
  }
}

}  // namespace morvane::widgets
