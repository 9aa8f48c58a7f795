#include "context/StatusPanels.h"

namespace morvane::context {

void StatusPanels::SetText(Panel panel, const QString& text) {
  QString& held = texts_[static_cast<std::size_t>(panel)];
  if (held == text) return;
  held = text;
  emit Changed(panel, text);
}

}  // namespace morvane::context
