// Reads and writes stroke fonts, and turns a character's line into strokes.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/files/Files.h"
#include "fonts/FontTable.h"
#include "platform/Prompts.h"

namespace morvane::fonts {

// Who named the font: a job line's font must lie inside the base directory.
enum class FontOrigin { Operator, Document };

// Sets `FontName` first, then reads the file over the entries: a file shorter than the last one leaves
// old entries behind. A name without an extension, or with another, means NAME.fnt. On failure shows
// "Font File Error: " and returns false; a document's name that leads outside is refused silently, and one
// that failed before too: lines of other fonts make each drawing pass try it again.
bool LoadFont(FontTable& table, const std::string& name, FontOrigin origin, const common::Files& files,
              platform::Prompts& prompts);
// Puts a file's lines into the table from entry 1 on.
void ReadFont(std::shared_ptr<const FontLines> file, FontTable& table);
// Lines behind the 255th are ignored.
FontLines ParseFont(std::string_view bytes);

// Writes entries 1 to 255 as they stand, checked. On failure shows the error's description.
bool SaveFont(const FontTable& table, const std::string& name, const common::Files& files,
              platform::Prompts& prompts);
std::string WriteFont(const FontTable& table);

// The strokes of a character, `code` 0 to 255. With `forward` clear they are those of the same path run
// backward. `width` other than 0 stretches the character to the whole cell. Throws "Subscript out of
// range" for another code and "Type mismatch" when the line's code number is not numeric.
void loadFontChar(const FontTable& table, int code, std::vector<FontSegment>& segments, bool forward,
                  float width);

// The scanner of the viewer and the editor. Found: the text between `position` and the delimiter,
// `endPosition` the place found, `position` behind it. Not found: the rest, and both positions are
// npos, which tells the caller to stop.
void getToken(std::string_view source, std::size_t& position, std::size_t& endPosition,
              std::string_view delimiter, std::string& result);

// A line's code number and strokes as the viewer and the editor read them, up to kMaxSegments. False
// when the line carries another number than `code`.
bool ReadFontLine(std::string_view line, int code, std::vector<FontSegment>& segments);

}  // namespace morvane::fonts
