#include "gcode/ui/JobView.h"

#include "common/RunTimeError.h"
#include "common/Settings.h"
#include "common/files/Files.h"
#include "common/text/Numbers.h"
#include "context/AppContext.h"
#include "context/StatusPanels.h"
#include "platform/qt/QtCanvas.h"
#include "platform/qt/QtText.h"

namespace morvane::widgets {

JobView::JobView(QWidget* parent)
    : CanvasView(parent),
      text_(std::make_shared<const std::string>()),
      program_(std::make_shared<const gcode::GcodeProgram>()) {
  connect(this, &CanvasView::Resized, this, &JobView::ShowFile);
}

void JobView::Use(const context::AppContext& context, gcode::Viewer viewer) {
  context_ = &context;
  options_.viewer = viewer;
  SetPictures(&context.pictures);
  connect(this, &CanvasView::MouseMoved, this, &JobView::ShowPosition);
  connect(this, &CanvasView::MouseLeft, this,
          [this] { context_->statusPanels.SetText(context::Panel::Mouse, {}); });
}

void JobView::ShowPosition(const QPointF& world) {
  const std::string format = context_->settings.UnitsFormatText();
  const std::string text =
      common::FormatPicture(world.x(), format) + " , " + common::FormatPicture(world.y(), format);
  context_->statusPanels.SetText(context::Panel::Mouse, platform::ToQt(text));
}

void JobView::OpenFile(const std::string& name) {
  name_ = name;
  ShowFile();
}

void JobView::ReadFile() {
  options_.settings = gcode::ReadViewerSettings(context_->settings.Read());
  try {
    if (name_.empty()) throw common::RunTimeError(common::kFileNotFound);
    text_ = context_->files.ReadKept(name_);
    program_ = context_->files.ReadAs<gcode::ParseProgram>(name_);
  } catch (const common::RunTimeError&) {
    text_ = std::make_shared<const std::string>();
    program_ = std::make_shared<const gcode::GcodeProgram>();
  }
}

void JobView::ShowFile() {
  if (context_ == nullptr) return;
  ReadFile();
  surface_.width = static_cast<float>(std::max(width(), 1));
  surface_.height = static_cast<float>(std::max(height(), 1));
  gcode::Rescale(*program_, options_, surface_);
  DrawFile();
}

void JobView::DrawFile() {
  ReadFile();
  SetBackground(gcode::OptionsOf(options_.viewer).settingsPens ? platform::ToQt(options_.settings.background)
                                                               : QColor(Qt::white));
  SetDrawing({[program = program_, options = options_](platform::Canvas& canvas) {
                gcode::DrawFile(*program, options, canvas);
              },
              surface_.view, program_->Size()});
}

}  // namespace morvane::widgets
