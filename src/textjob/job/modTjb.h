// The text job's file and its lines: reader, writer, parser.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "textjob/job/TextJob.h"
#include "textjob/job/TextJobLine.h"

namespace morvane::textjob {

// A line of the file into its record. Never fails: a bad token is the number 0, and numbers beyond a
// field are held at its limit.
TextJobLine ParseTjbLine(std::string_view line);
// Line `index` of the job. Throws "Subscript out of range".
TextJobLine ParseTjbLine(const TextJob& job, std::size_t index);

// The record as one line of 30 fields. The font is written as it stands; depths go by the picture
// `unitsFormat`.
std::string FormatTjbLine(const TextJobLine& record, std::string_view unitsFormat);
// The font token of a full rewrite: the name's capitals up to its first point, and ".fnt".
std::string FontToken(std::string_view font);

// Both depths as one text, `Depth2` behind an "M" when there is one; and back again: text that begins with
// "M" has no first depth.
std::string DepthText(const TextJobLine& line, std::string_view unitsFormat);
void ReadDepth(std::string_view text, TextJobLine& line);

// Adds a file's lines to an empty job. Throws "Subscript out of range" at the 1002nd line; the first
// 1001 are kept.
void ReadTjb(std::string_view bytes, TextJob& job);
// The file's bytes: the comment line first, always, then the lines as they stand.
std::string WriteTjb(const TextJob& job);

}  // namespace morvane::textjob
