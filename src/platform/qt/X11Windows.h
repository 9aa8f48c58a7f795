// Other programs' windows on an X11 display, kept apart because it talks to the display directly.
#pragma once

#include <QString>

namespace morvane::platform {

// Sends the close message of the window manager to each window with this title that belongs to another
// process. False without an X11 display, or when there is none.
bool CloseX11Windows(const QString& title);

}  // namespace morvane::platform
