// The commands on expansions and fonts.
#include <iostream>

#include "cli/Commands.h"
#include "cli/GlobalArguments.h"
#include "cli/Json.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "fonts/modFont.h"
#include "textjob/job/modDateCode.h"

namespace morvane::cli {

int ExpandCommand(Environment& environment, const Arguments& arguments) {
  if (arguments.size() != 2) throw UsageError();
  const textjob::ExpansionSources sources{environment.clock, environment.locale, environment.files};
  const std::string text = common::FromUtf8(arguments[1]);
  std::string expanded;
  if (arguments[0] == "text") {
    expanded = textjob::ExpandText(text, sources);
  } else if (arguments[0] == "date") {
    expanded = textjob::ExpandDateCode(text, sources);
  } else if (arguments[0] == "escapes") {
    expanded = textjob::ExpandEscapes(text, environment.prompts);
  } else {
    throw UsageError();
  }
  std::cout << common::ToUtf8(expanded);
  return kDone;
}

int FontShow(Environment& environment, const Arguments& given) {
  Arguments arguments = given;
  const bool backward = TakeFlag(arguments, "--backward");
  const bool wide = TakeFlag(arguments, "--width");
  Expect(arguments, 2, 2);
  if (!common::IsNumeric(arguments[1])) throw UsageError();
  fonts::FontTable font;
  const std::string name = environment.FileArgument(arguments[0]);
  if (!fonts::LoadFont(font, name, fonts::FontOrigin::Operator, environment.files, environment.prompts)) {
    return kFailed;
  }
  std::vector<fonts::FontSegment> segments;
  fonts::loadFontChar(font, common::ParseInt32(arguments[1]), segments, !backward, wide ? 1.0F : 0.0F);
  for (const fonts::FontSegment& s : segments) {
    std::cout << JsonLine().Add("X1", s.X1).Add("Y1", s.Y1).Add("X2", s.X2).Add("Y2", s.Y2).Text();
  }
  return kDone;
}

}  // namespace morvane::cli
