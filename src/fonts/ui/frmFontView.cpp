#include "fonts/ui/frmFontView.h"

#include <QShortcut>
#include <algorithm>

#include "common/files/FileDialogs.h"
#include "context/AppContext.h"
#include "fonts/modFont.h"
#include "platform/RecordingCanvas.h"
#include "platform/qt/QtText.h"
#include "ui_frmFontView.h"
#include "widgets/canvas/FitView.h"

namespace morvane::fonts {
namespace {

constexpr int kFirstShown = 65;
constexpr int kLastCode = 255;
constexpr platform::CanvasView kCell = {-0.05F, -0.05F, 1.1F, 1.6F};
constexpr platform::Color kRed = 255;
constexpr platform::Color kBlack = 0;
constexpr const char* kFilter = "Font Files|*.fnt|All Files|*.*";

void DrawCell(platform::Canvas& canvas) {
  canvas.Box({0, 0, 1, 1.5F}, kRed, false);
  canvas.Line({kRed, 1}, {0, 1, 1, 1});
}

}  // namespace

frmFontView::frmFontView(const context::AppContext& context, QWidget* parent)
    : QWidget(parent), context_(context), ui_(std::make_unique<Ui::frmFontView>()), code_(kFirstShown) {
  ui_->setupUi(this);
  ui_->pic->SetPictures(&context.pictures);
  ui_->pic->SetBackground(Qt::white);
  // Room for any count, so that nothing beside it moves from character to character.
  ui_->lblSegments->setMinimumWidth(fontMetrics().horizontalAdvance("Line Segments: 00000"));
  connect(ui_->cmdOpen, &QPushButton::clicked, this, &frmFontView::cmdOpen_Click);
  connect(ui_->txtJob, &QLineEdit::editingFinished, this, &frmFontView::txtJob_Change);
  connect(ui_->cmdNext, &QPushButton::clicked, this, [this] { Step(1); });
  connect(ui_->cmdPrev, &QPushButton::clicked, this, [this] { Step(-1); });
  connect(ui_->HScroll1, &QScrollBar::valueChanged, this, &frmFontView::DrawCharacter);
  connect(ui_->pic, &widgets::CanvasView::Resized, this, &frmFontView::DrawCharacter);
  const auto key = [this](Qt::Key code, int step) {
    auto* shortcut = new QShortcut(code, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, step] { Step(step); });
  };
  key(Qt::Key_PageDown, 1);
  key(Qt::Key_PageUp, -1);
  DrawCharacter();
}

frmFontView::~frmFontView() = default;

void frmFontView::OpenFont(const std::string& name) {
  ui_->txtJob->setText(platform::ToQt(name));
  table_ = {};
  code_ = kFirstShown;
  LoadFont(table_, name, FontOrigin::Operator, context_.files, context_.prompts);
  DrawCharacter();
}

void frmFontView::cmdOpen_Click() {
  const std::string name = context_.fileDialogs.OpenFileDialog(kFilter, "fnt");
  if (!name.empty()) OpenFont(name);
}

void frmFontView::txtJob_Change() {
  const std::string name = platform::FromQt(ui_->txtJob->text());
  if (!name.empty() && name != table_.FontName) OpenFont(name);
}

void frmFontView::Step(int codes) {
  code_ = std::clamp(code_ + codes, 1, kLastCode);
  DrawCharacter();
}

void frmFontView::DrawCharacter() {
  const std::string character(1, static_cast<char>(code_));
  ui_->txtChar->setText(QString("%1 (%2)").arg(platform::ToQt(character)).arg(code_));
  platform::RecordingCanvas drawing;
  std::vector<FontSegment> segments;
  const bool loaded = !table_.FontName.empty();
  const bool good = ReadFontLine(table_.FontChars[static_cast<std::size_t>(code_)], code_, segments);
  ui_->lblError->setText(loaded && !good ? "Character Number Error" : QString());
  if (!good) segments.clear();
  if (good || !loaded) DrawCell(drawing);
  const platform::Pen pen{kBlack, ui_->HScroll1->value()};
  for (const FontSegment& stroke : segments) drawing.Line(pen, {stroke.X1, stroke.Y1, stroke.X2, stroke.Y2});
  ui_->lblSegments->setText(QString("Line Segments: %1").arg(segments.size()));
  ui_->pic->SetDrawing({[drawing](platform::Canvas& canvas) { drawing.Replay(canvas); },
                        widgets::Centered(kCell, ui_->pic->size()), segments.size()});
}

}  // namespace morvane::fonts
