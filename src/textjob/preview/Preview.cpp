#include "textjob/preview/Preview.h"

#include <algorithm>

#include "common/RunTimeError.h"
#include "common/text/Numbers.h"
#include "recipes/modFixture.h"
#include "textjob/job/LockImages.h"
#include "textjob/job/Selection.h"
#include "textjob/preview/PreviewLine.h"

namespace morvane::textjob {
namespace {

// Lines of a grid, in each direction.
constexpr int kMaxGridLines = 1000;
constexpr float kGridMargin = 0.001F;

void ApplyLockRecord(const PreviewSources& sources, const std::string& jobName,
                     BackgroundPicture& background) {
  LockRecord record;
  record.Job = jobName;
  if (!FindLockRecord(sources.files, record)) return;
  background = {record.Image, {record.X, record.Y, record.Width, record.Height}};
}

// Null when no fixture is to be shown.
const recipes::Fixture* ShownFixture(const PreviewSources& sources, const PreviewSettings& settings,
                                     const ViewOptions& options, PreviewState& state) {
  if (!options.Fixture || settings.fixture.empty()) return nullptr;
  try {
    state.fixture = recipes::ReadFixture(sources.files, settings.fixture);
  } catch (const common::RunTimeError&) {
    // The record of the last fixture stays in force.
  }
  return state.fixture ? &*state.fixture : nullptr;
}

void DrawBackground(const PreviewSources& sources, const PreviewSettings& settings,
                    const ViewOptions& options, const platform::CanvasView& view, platform::Canvas& canvas) {
  canvas.Box({view.Left, view.Top, view.Width - view.Left, view.Height - view.Top},
             settings.colors[kBackgroundColor], true);
  const BackgroundPicture& picture = settings.background;
  if (!options.BackgroundImage || picture.name.empty()) return;
  try {
    if (sources.files.FileExists(sources.files.ResolveInside(picture.name))) {
      canvas.Image(picture.name, picture.place);
    }
  } catch (const common::RunTimeError&) {
    // A name that leads out of the base directory shows nothing.
  }
}

void DrawClone(const recipes::Fixture& fixture, const platform::Pen& pen, PreviewPen& out) {
  const float right = static_cast<float>(fixture.Columns) * fixture.ColumnDistance;
  const float bottom = static_cast<float>(fixture.Rows) * fixture.RowDistance;
  for (int column = 0; column < std::min<int>(fixture.Columns, kMaxGridLines); ++column) {
    const float x = static_cast<float>(column) * fixture.ColumnDistance;
    out.Add(pen, {x, 0, x, bottom});
  }
  for (int row = 0; row < std::min<int>(fixture.Rows, kMaxGridLines); ++row) {
    const float y = static_cast<float>(row) * fixture.RowDistance;
    out.Add(pen, {0, y, right, y});
  }
}

void DrawFixture(const recipes::Fixture& fixture, const platform::CanvasView& view, const platform::Pen& pen,
                 PreviewPen& out) {
  if (fixture.Type == recipes::kFixtureClone) DrawClone(fixture, pen, out);
  if (fixture.Type != recipes::kFixtureIndex) return;
  for (int side = 0; side < std::min<int>(fixture.Sides, kMaxGridLines); ++side) {
    const float y = static_cast<float>(side) * fixture.Flat;
    out.Add(pen, {view.Left, y, view.Left + view.Width, y});
  }
}

void DrawGrid(float spacing, const platform::CanvasView& view, const platform::Pen& pen, PreviewPen& out) {
  if (!(spacing > 0)) return;
  const auto at = [&](int n) { return static_cast<float>(n) * spacing; };
  for (int n = 1; n <= kMaxGridLines && at(n) <= view.Width - kGridMargin; ++n) {
    out.Add(pen, {at(n), 0, at(n), view.Height});
  }
  for (int n = 1; n <= kMaxGridLines && at(n) <= view.Height - kGridMargin; ++n) {
    out.Add(pen, {0, at(n), view.Width, at(n)});
  }
}

PenOptions PenOptionsOf(const PreviewSettings& settings, const PreviewRequest& request,
                        const recipes::Fixture* fixture) {
  PenOptions options;
  options.toolPath = {settings.colors[kToolPathColor], 1};
  options.showToolPath = request.options.ToolPath;
  options.lineWidth = settings.lineWidth;
  options.copyColor = settings.colors[kGridColor];
  options.grid = fixture && fixture->Type == recipes::kFixtureClone ? fixture : nullptr;
  options.search = request.search;
  return options;
}

void DrawLines(PassContext& pass, const TextJob& job, ParsedLines& lines, PreviewResult& result) {
  const std::vector<bool> selected = SelectedLines(job.Selection, job.LineCount());
  result.labels.reserve(job.LineCount());
  for (std::size_t i = 0; i < job.LineCount(); ++i) {
    const TextJobLine& line = lines.Get(i, job.Lines[i]);
    const auto index = static_cast<int>(i);
    result.labels.push_back("Line " + common::PlainNumber(std::int32_t{index + 1}) + ": " + LineLabel(line));
    if (selected[i]) result.current = index;
    DrawLine(pass, index, line, selected[i]);
  }
}

}  // namespace

PreviewResult DrawJob(const PreviewSources& sources, const PreviewRequest& request, PreviewState& state,
                      platform::Canvas& canvas) {
  PreviewSettings settings = ReadPreviewSettings(sources.settings.Read());
  ApplyLockRecord(sources, request.jobName, settings.background);
  const recipes::Fixture* fixture = ShownFixture(sources, settings, request.options, state);

  PreviewResult result;
  result.view = SetUpView(settings, request.options, fixture, request.picture);
  canvas.Clear();
  canvas.SetScale(result.view);
  DrawBackground(sources, settings, request.options, result.view, canvas);

  PreviewPen pen(canvas, state, PenOptionsOf(settings, request, fixture));
  const platform::Pen gridPen{settings.colors[kGridColor], 1};
  if (fixture) DrawFixture(*fixture, result.view, gridPen, pen);
  if (request.options.GridLines) DrawGrid(settings.gridSpacing, result.view, gridPen, pen);

  PassContext pass{sources, settings, request.options, fixture, pen};
  DrawLines(pass, request.job, state.lines, result);
  if (request.options.ToolPath) pen.PenMove(0, 0, settings.colors[kDrawColor], false);
  return result;
}

}  // namespace morvane::textjob
