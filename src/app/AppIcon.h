// The program's icon, drawn at any size.
#pragma once

#include <QIcon>

namespace morvane::app {

QIcon AppIcon();

}  // namespace morvane::app
