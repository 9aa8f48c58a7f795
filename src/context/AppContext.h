// What the process has one of. Forms take it; core functions take only what they need out of it.
#pragma once

namespace morvane::common {
class FileDialogs;
class Files;
class Settings;
struct ProcessRunner;
}  // namespace morvane::common

namespace morvane::platform {
class Clipboard;
class Clock;
class Locale;
class Operations;
class PictureStore;
class Progress;
class Prompts;
class SystemInfo;
class WaitWindow;
}  // namespace morvane::platform

namespace morvane::fonts {
class GlyphCache;
struct FontTable;
}  // namespace morvane::fonts

namespace morvane::link {
class Comm;
}

namespace morvane::textjob {
struct PreviewState;
class RecoveryCopy;
struct TextJob;
struct ViewOptions;
}  // namespace morvane::textjob

namespace morvane::widgets {
class Windows;
}

namespace morvane::context {

class StatusPanels;

struct AppContext {
  const common::Files& files;
  const common::Settings& settings;
  const common::ProcessRunner& processes;
  platform::Clock& clock;
  platform::Locale& locale;
  platform::SystemInfo& systemInfo;
  platform::Prompts& prompts;
  common::FileDialogs& fileDialogs;
  platform::Clipboard& clipboard;
  platform::WaitWindow& waitWindow;
  platform::Progress& progress;
  platform::Operations& operations;
  link::Comm& comm;
  platform::PictureStore& pictures;
  StatusPanels& statusPanels;
  textjob::ViewOptions& viewOptions;
  // The one job of the process, and what its preview keeps.
  textjob::TextJob& job;
  textjob::PreviewState& previewState;
  textjob::RecoveryCopy& recovery;
  fonts::FontTable& font;
  fonts::GlyphCache& glyphs;
  widgets::Windows& windows;
  // Ends every wait and transfer; set while the program closes.
  const bool& abortTransfers;
  // Engineering mode.
  const bool& developerMode;
};

}  // namespace morvane::context
