// The commands on text jobs.
#include <iostream>

#include "cli/Commands.h"
#include "cli/DrawOptions.h"
#include "cli/GlobalArguments.h"
#include "cli/Json.h"
#include "textjob/job/JobFile.h"
#include "textjob/job/TjbFields.h"
#include "textjob/job/modTjb.h"
#include "textjob/preview/Preview.h"

namespace morvane::cli {
namespace {

using textjob::TextJob;
using textjob::TextJobLine;

void PrintLine(std::int64_t index, const TextJobLine& line) {
  JsonLine json;
  json.Add("index", index);
  for (const textjob::TjbField& field : textjob::kTjbFields) {
    std::visit(
        [&](auto member) {
          using Value = std::decay_t<decltype(line.*member)>;
          if constexpr (std::is_integral_v<Value>) {
            json.Add(field.name, std::int64_t{line.*member});
          } else {
            json.Add(field.name, line.*member);
          }
        },
        field.member);
  }
  std::cout << json.Text();
}

bool Load(Environment& environment, const std::string& name, TextJob& job) {
  return textjob::LoadTjbFile(job, name, environment.files, environment.prompts);
}

}  // namespace

int JobShow(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 1, 1);
  TextJob job;
  const bool loaded = Load(environment, environment.FileArgument(arguments[0]), job);
  if (!loaded && job.Lines.empty()) return kFailed;
  std::cout << JsonLine().Add("comment", job.Comment).Text();
  for (std::size_t i = 0; i < job.LineCount(); ++i) {
    PrintLine(static_cast<std::int64_t>(i), textjob::ParseTjbLine(job.Lines[i]));
  }
  return loaded ? kDone : kFailed;
}

int JobRewrite(Environment& environment, const Arguments& arguments) {
  Expect(arguments, 2, 2);
  TextJob job;
  const std::string input = environment.FileArgument(arguments[0]);
  if (!Load(environment, input, job)) return kFailed;
  const std::string unitsFormat = environment.settings.UnitsFormatText();
  for (std::string& line : job.Lines) {
    TextJobLine record = textjob::ParseTjbLine(line);
    record.Font = textjob::FontToken(record.Font);
    line = textjob::FormatTjbLine(record, unitsFormat);
  }
  const std::string output = environment.OutputArgument(arguments[1], input);
  return textjob::SaveTjbFile(job, output, environment.files, environment.prompts) ? kDone : kFailed;
}

int JobDraw(Environment& environment, const Arguments& given) {
  Arguments arguments = given;
  const DrawOptions options = TakeDrawOptions(environment, arguments);
  Expect(arguments, 1, 1);
  TextJob job;
  const std::string name = environment.FileArgument(arguments[0]);
  const bool loaded = Load(environment, name, job);
  if (!loaded && job.Lines.empty()) return kFailed;
  job.Selection = options.select;

  fonts::FontTable font;
  fonts::GlyphCache glyphs(font);
  environment.files.EnsureTemp();
  const textjob::PreviewSources sources{environment.files,
                                        environment.settings,
                                        environment.clock,
                                        environment.locale,
                                        environment.prompts,
                                        environment.runner,
                                        font,
                                        glyphs};
  textjob::PreviewState state;
  platform::RecordingCanvas drawing;
  const textjob::PictureSize picture{static_cast<float>(options.width), static_cast<float>(options.height)};
  textjob::DrawJob(sources, {job, name, options.view, picture}, state, drawing);
  Deliver(environment, options, drawing);
  return loaded ? kDone : kFailed;
}

}  // namespace morvane::cli
