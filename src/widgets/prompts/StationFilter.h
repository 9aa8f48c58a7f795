// What a file dialog leaves out of the station's folder: the scratch folder, in which nothing is anybody's.
#pragma once

#include <QSortFilterProxyModel>

namespace morvane::widgets {

class StationFilter : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  // `station`: the absolute path of the station's folder.
  StationFilter(const QString& station, QObject* parent);
  // The file system's model knows how to: folders first, sizes and dates as what they are.
  void sort(int column, Qt::SortOrder order) override { sourceModel()->sort(column, order); }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  QString scratch_;
};

}  // namespace morvane::widgets
