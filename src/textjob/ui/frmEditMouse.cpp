// The mouse on the preview of the editor: it selects and moves lines.
#include "common/Settings.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "platform/qt/Operations.h"
#include "platform/qt/QtText.h"
#include "textjob/edit/PositionText.h"
#include "textjob/job/Selection.h"
#include "textjob/preview/PreviewState.h"
#include "textjob/preview/ViewOptions.h"
#include "textjob/ui/frmEdit.h"
#include "ui_frmEdit.h"

namespace morvane::textjob {

void frmEdit::pic_MouseDown(const QPointF& world, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  if (drawing_) return;
  if (button == Qt::RightButton) return MoveTo(world);
  if (button != Qt::LeftButton) return;
  ClickSearch search{};
  // A job that changed during the search is searched anew.
  do {
    drawAgain_ = false;
    search = {static_cast<float>(world.x()), static_cast<float>(world.y())};
    RunPass(&search);
  } while (drawAgain_);
  const bool toggle = modifiers.testFlag(Qt::ControlModifier);
  if (search.line >= 0) {
    editor_.Select(toggle ? ToggleLine(context_.job.Selection, search.line) : SelectLines({search.line}));
  }
  DrawJob();
  if (!toggle && search.line >= 0) EditFirstRow();
}

void frmEdit::MoveTo(const QPointF& world) {
  ui_->PropertyGrid->CloseEditor();
  if (context_.job.LineCount() == 0) return;
  const platform::Operations::Scope scope(context_.operations, this);
  if (editor_.MoveTo(world.x(), world.y(), ShownFixture())) DrawJob();
}

void frmEdit::pic_RubberBand(const QRectF& world, Qt::KeyboardModifiers modifiers) {
  if (drawing_) return;
  const platform::Rectangle area{static_cast<float>(world.x()), static_cast<float>(world.y()),
                                 static_cast<float>(world.width()), static_cast<float>(world.height())};
  editor_.SelectInside(area, ShownFixture(), modifiers.testFlag(Qt::ControlModifier));
  DrawJob();
}

void frmEdit::pic_MouseMove(const QPointF& world) {
  const std::string text =
      PositionText(world.x(), world.y(), context_.settings.UnitsFormatText(), ShownFixture());
  context_.statusPanels.SetText(context::Panel::Mouse, platform::ToQt(text));
}

}  // namespace morvane::textjob
