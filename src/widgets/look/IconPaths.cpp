#include "widgets/look/Icons.h"

namespace morvane::widgets {
namespace {

// Ends lie on whole units, so that the strokes fall on pixels at 24 and 48, and nearly so at 16.
constexpr IconPath kPaths[] = {
    {"new", "M6 3h8l5 5v13H6z M14 3v5h5"},
    {"open", "M3 19V5h6l2 3h9v3 M3 19l3-8h16l-3 8z"},
    {"save", "M4 4h13l3 3v13H4z M8 4v5h7V4 M7 20v-7h10v7"},
    {"saveas", "M12 20H4V4h13l3 3v3 M8 4v5h7V4 M13 21l1-4 6-6 3 3-6 6z"},
    {"close", "M6 6l12 12 M18 6L6 18"},
    {"undo", "M9 5L4 10l5 5 M4 10h10a6 6 0 0 1 0 12h-3"},
    {"redo", "M15 5l5 5-5 5 M20 10H10a6 6 0 0 0 0 12h3"},
    {"fit", "M3 8V3h5 M16 3h5v5 M21 16v5h-5 M8 21H3v-5 M8 8h8v8H8z"},
    {"zoomin", "M10 3a7 7 0 1 0 0.01 0z M15 15l6 6 M7 10h6 M10 7v6"},
    {"zoomout", "M10 3a7 7 0 1 0 0.01 0z M15 15l6 6 M7 10h6"},
    {"download", "M12 3v11 M7 9l5 5 5-5 M3 15v6h18v-6"},
    {"downloadrun", "M8 3v10 M4 9l4 4 4-4 M2 15v6h12 M15 8l7 5-7 5z"},
    {"run", "M7 4l13 8-13 8z"},
    {"stop", "M6 6h12v12H6z"},
    {"upload", "M12 14V3 M7 8l5-5 5 5 M3 15v6h18v-6"},
    {"verify", "M4 3h10l4 4v3 M4 3v18h6 M12 17l3 4 7-9"},
    {"print", "M7 8V3h10v5 M7 17H3V8h18v9h-4 M7 14h10v7H7z"},
    {"copy", "M8 8h12v13H8z M16 8V3H4v13h4"},
    {"cut", "M6 15a3 3 0 1 0 0.01 0z M18 15a3 3 0 1 0 0.01 0z M8 16L18 3 M16 16L6 3"},
    {"paste", "M9 3h6v4H9z M9 5H5v16h14V5h-4 M9 12h6 M9 16h6"},
    {"duplicate", "M8 8h13v13H8z M16 8V3H3v13h5 M14.5 11.5v6 M11.5 14.5h6"},
    {"add", "M12 4v16 M4 12h16"},
    {"remove", "M4 12h16"},
    {"delete", "M4 6h16 M9 6V3h6v3 M6 6l1 15h10l1-15 M10 10v7 M14 10v7"},
    {"edit", "M4 20l1-5L16 4l4 4L9 19z M14 6l4 4"},
    {"up", "M12 20V4 M5 11l7-7 7 7"},
    {"down", "M12 4v16 M5 13l7 7 7-7"},
    {"reorder", "M7 20V4 M3 8l4-4 4 4 M17 4v16 M13 16l4 4 4-4"},
    {"refresh", "M20 12a8 8 0 1 1-3-6.3 M20 2v6h-6"},
    {"search", "M10 3a7 7 0 1 0 0.01 0z M15 15l6 6"},
    {"lock", "M5 11h14v10H5z M8 11V7a4 4 0 0 1 8 0v4 M12 15v2"},
    {"picture", "M3 4h18v16H3z M3 17l5-6 5 6 M12 16l4-4 5 5 M15 8h0.01"},
    {"options",
     "M4 6h8 M18 6h2 M15 3.5a2.5 2.5 0 1 0 0.01 0z M4 12h2 M12 12h8 M9 9.5a2.5 2.5 0 1 0 0.01 0z "
     "M4 18h8 M18 18h2 M15 15.5a2.5 2.5 0 1 0 0.01 0z"},
    {"help", "M12 2a10 10 0 1 0 0.01 0z M9 9a3 3 0 1 1 4.5 2.6Q12 12.5 12 14 M12 17.5h0.01"},
    {"warning", "M12 3L2 21h20z M12 10v5 M12 18h0.01"},
    {"link", "M9 15l6-6 M8 10l-3 3a4.2 4.2 0 0 0 6 6l3-3 M16 14l3-3a4.2 4.2 0 0 0-6-6l-3 3"},
    {"machine", "M3 21V5h18v16 M3 9h18 M10 5v8h4V5 M12 13v4 M7 21h10"},
    {"font", "M4 20L11 4h2l7 16 M7 14h10"},
};

}  // namespace

std::span<const IconPath> IconPaths() {
  return kPaths;
}

}  // namespace morvane::widgets
