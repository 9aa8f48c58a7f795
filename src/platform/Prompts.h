// Everything the program asks of or tells to its user in a box. Message texts are part of the product.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace morvane::platform {

inline constexpr const char* kApplicationTitle = "Morvane";

enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };

struct FileDialogRequest {
  std::string title;
  std::string filter;            // "TJB Files|*.TJB|All Files|*.*"
  std::string defaultExtension;  // without a point
  std::string fileName;          // preset name
  std::string directory;         // native path to start in
};

// Texts are in the core's code page, line ends are "\n" or "\r\n". Paths that come back are native.
class Prompts {
 public:
  virtual ~Prompts() = default;
  virtual Answer MsgBox(const std::string& text, Buttons buttons = Buttons::Ok,
                        const std::string& title = kApplicationTitle) = 0;
  // Nothing when cancelled.
  virtual std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                              const std::string& preset) = 0;
  // Empty when cancelled.
  virtual std::string OpenFile(const FileDialogRequest& request) = 0;
  virtual std::string SaveFile(const FileDialogRequest& request) = 0;
  virtual std::vector<std::string> OpenFiles(const FileDialogRequest& request) = 0;
  virtual std::string ChooseFolder(const std::string& title, const std::string& directory) = 0;
  // Blue x 65536 + green x 256 + red.
  virtual std::optional<std::uint32_t> ChooseColor(std::uint32_t preset) = 0;
  // The chosen entry; empty when cancelled.
  virtual std::string PickOne(const std::string& title, const std::vector<std::string>& entries) = 0;
  virtual std::vector<std::string> PickMany(const std::string& title,
                                            const std::vector<std::string>& entries) = 0;
};

// The one wait window: a text and no button.
class WaitWindow {
 public:
  virtual ~WaitWindow() = default;
  // Shows the window with the text, or changes the text of the one that is shown.
  virtual void Show(const std::string& text) = 0;
  virtual void Close() = 0;
};

// How far a long operation is. `known` is 0 when the end is not known yet.
class Progress {
 public:
  virtual ~Progress() = default;
  virtual void Set(std::int64_t done, std::int64_t known) = 0;
  virtual void Clear() = 0;
};

}  // namespace morvane::platform
