#include "widgets/prompts/StationFilter.h"

#include <QDir>
#include <QFileSystemModel>

namespace morvane::widgets {

StationFilter::StationFilter(const QString& station, QObject* parent)
    : QSortFilterProxyModel(parent), scratch_(QDir(station).filePath("Temp")) {
  setDynamicSortFilter(false);
}

bool StationFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
  const QModelIndex index = sourceModel()->index(row, 0, parent);
  const QString path = index.data(QFileSystemModel::FilePathRole).toString();
  return path.compare(scratch_, Qt::CaseInsensitive) != 0;
}

}  // namespace morvane::widgets
