#include "cli/DrawOptions.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <iostream>

#include "cli/GlobalArguments.h"
#include "cli/Trace.h"
#include "common/RunTimeError.h"
#include "common/SettingDefaults.h"
#include "common/SvgCanvas.h"
#include "common/files/FileNames.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "common/text/Tokenizer.h"
#include "platform/qt/PictureStore.h"
#include "platform/qt/QtCanvas.h"
#include "textjob/preview/ViewSettings.h"

namespace morvane::cli {
namespace {

constexpr int kLargestPicture = 20000;

textjob::ViewOptions ReadView(const std::string& text) {
  textjob::ViewOptions view;
  for (const std::string& word : common::SplitText(text, ",")) {
    bool known = false;
    for (const textjob::ViewMark& entry : textjob::kViewMarks) {
      if (word != entry.word) continue;
      view.*entry.mark = true;
      known = true;
    }
    if (!known) throw UsageError();
  }
  return view;
}

int ReadLength(std::string_view text) {
  const double value = common::IsNumeric(text) ? common::ParseNumber(text) : 0;
  if (value < 1 || value > kLargestPicture) throw UsageError();
  return common::ToInt32(value);
}

// The same background as the windows: the colour that the settings give it.
platform::Color Background(const Environment& environment) {
  constexpr int kBackground = 4;
  return common::ReadColor(environment.settings.Read(), kBackground);
}

std::string Svg(Environment& environment, const DrawOptions& options,
                const platform::RecordingCanvas& drawing) {
  const auto pictures = [&](const std::string& name) {
    try {
      return environment.files.Read(name);
    } catch (const common::RunTimeError&) {
      return std::string();
    }
  };
  common::SvgCanvas canvas(options.width, options.height, Background(environment), pictures);
  drawing.Replay(canvas);
  return canvas.Document();
}

// The toolkit's hints about a desktop that is not there are nobody's business on a command line.
void DropHints(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << message.toStdString() << std::endl;
}

std::string Png(Environment& environment, const DrawOptions& options,
                const platform::RecordingCanvas& drawing) {
  // Text needs the toolkit's fonts, but never a display.
  qInstallMessageHandler(DropHints);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int count = 1;
  std::string name = "morvane-cli";
  char* arguments[] = {name.data(), nullptr};
  const QGuiApplication application(count, arguments);

  QImage image(options.width, options.height, QImage::Format_RGB32);
  if (image.isNull()) throw common::RunTimeError(common::kOverflow);
  const QColor background = platform::ToQt(Background(environment));
  image.fill(background);
  {
    QPainter painter(&image);
    platform::PictureStore pictures(environment.files);
    platform::QtCanvas canvas(
        painter, {image.size(), 1, background, platform::SmoothLines(drawing.Segments().size())}, pictures);
    drawing.Replay(canvas);
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!image.save(&buffer, "PNG")) throw common::RunTimeError(common::kDeviceIoError);
  return bytes.toStdString();
}

}  // namespace

DrawOptions TakeDrawOptions(Environment& environment, Arguments& arguments) {
  DrawOptions options;
  options.out = TakeValue(arguments, "--out", "");
  const std::string size = TakeValue(arguments, "--size", "1200x800");
  const std::size_t cross = size.find('x');
  if (cross == std::string::npos) throw UsageError();
  options.width = ReadLength(size.substr(0, cross));
  options.height = ReadLength(size.substr(cross + 1));
  options.trace = TakeFlag(arguments, "--trace");
  options.select = TakeValue(arguments, "--select", "");
  constexpr std::string_view kAsSettings = "*";
  const std::string view = TakeValue(arguments, "--view", kAsSettings);
  options.view = view == kAsSettings ? textjob::ReadViewOptions(environment.settings.Read()) : ReadView(view);
  if (!options.trace && options.out.empty()) throw UsageError();
  return options;
}

void Deliver(Environment& environment, const DrawOptions& options, const platform::RecordingCanvas& drawing) {
  if (!options.out.empty()) {
    const bool svg =
        common::EqualIgnoringCase(common::FileExtension(common::PathFileName(options.out)), "svg");
    environment.files.WriteStraight(
        environment.OutputArgument(options.out, "/"),
        svg ? Svg(environment, options, drawing) : Png(environment, options, drawing));
  }
  if (!options.trace) return;
  TraceCanvas trace;
  drawing.Replay(trace);
  std::cout << trace.Text();
}

}  // namespace morvane::cli
