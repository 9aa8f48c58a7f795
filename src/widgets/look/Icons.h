// The program's own icons: plain strokes, drawn in the text's colour of the palette that is in force when
// they are painted, sharp at any size from 16 pixels on.
#pragma once

#include <QIcon>
#include <span>

namespace morvane::widgets {

struct IconPath {
  const char* name;
  const char* path;  // SVG path data on a field of 24 units, stroked 2 units wide
};

// All icons, for whoever shows or checks the whole set.
std::span<const IconPath> IconPaths();
// The icon of that name; a null icon when there is none.
QIcon Icon(const char* name);

}  // namespace morvane::widgets
