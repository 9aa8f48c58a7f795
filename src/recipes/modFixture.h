// Reads and writes fixture files (.FIX) for the fixture editor and the job preview.
#pragma once

#include <string>
#include <string_view>

#include "common/files/Files.h"
#include "recipes/Fixture.h"

namespace morvane::recipes {

// Numbers are read by prefix, a bad one counts as 0. Throws "Input past end of file" when one of the
// first 15 lines is missing and "Type mismatch" for a flag that is none. The path ends at an empty line,
// at the end of the file, or when it is full.
Fixture ParseFixture(std::string_view bytes);
// The same from a file by program name. Throws also when the file cannot be opened; a caller then keeps
// the record that it had.
Fixture ReadFixture(const common::Files& files, std::string_view name);

// The bytes of the file. Line ends inside a text are dropped, since a text is one line.
std::string FormatFixture(const Fixture& fixture);
// Checked save: throws the run-time error of the failure and leaves the old file whole.
void WriteFixture(const common::Files& files, std::string_view name, const Fixture& fixture);

}  // namespace morvane::recipes
