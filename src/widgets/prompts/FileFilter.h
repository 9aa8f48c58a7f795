// The core's form of a file filter ("A|*.a|B|*.b;*.c") for the toolkit's dialogs.
#pragma once

#include <QString>
#include <QStringList>

namespace morvane::widgets {

// One name filter for each pair: "A (*.a *.A)". Patterns stand in both cases, since some desktops'
// dialogs tell capitals apart; the caption's own list of patterns goes.
QStringList NameFilters(const QString& filter);

}  // namespace morvane::widgets
