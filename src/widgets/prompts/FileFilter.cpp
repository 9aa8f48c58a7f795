#include "widgets/prompts/FileFilter.h"

#include <QRegularExpression>

namespace morvane::widgets {
namespace {

QString BothCases(const QString& patterns) {
  QStringList all;
  for (const QString& pattern : patterns.split(';', Qt::SkipEmptyParts)) {
    all << pattern.trimmed();
    for (const QString& other : {pattern.trimmed().toLower(), pattern.trimmed().toUpper()}) {
      if (!all.contains(other)) all << other;
    }
  }
  return all.join(' ');
}

}  // namespace

QStringList NameFilters(const QString& filter) {
  static const QRegularExpression ownPatterns(R"(\s*\([^()]*\)$)");
  QStringList filters;
  const QStringList parts = filter.split('|');
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString caption = parts[i];
    caption.remove(ownPatterns);
    filters << QString("%1 (%2)").arg(caption, BothCases(parts[i + 1]));
  }
  return filters;
}

}  // namespace morvane::widgets
