// What a drawing pass reads and runs.
#pragma once

#include "common/RunAndWait.h"
#include "common/Settings.h"
#include "fonts/FontTable.h"
#include "fonts/GlyphCache.h"
#include "platform/Clock.h"
#include "platform/Locale.h"
#include "platform/Prompts.h"

namespace morvane::textjob {

struct PreviewSources {
  const common::Files& files;
  const common::Settings& settings;
  const platform::Clock& clock;
  const platform::Locale& locale;
  platform::Prompts& prompts;
  const common::ProcessRunner& runner;
  fonts::FontTable& font;
  fonts::GlyphCache& glyphs;
};

}  // namespace morvane::textjob
