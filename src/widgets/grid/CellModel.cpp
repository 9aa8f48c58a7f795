#include "widgets/grid/CellModel.h"

#include <algorithm>

namespace morvane::widgets {

int CellModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int CellModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant CellModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  return Text(index.row(), index.column());
}

QVariant CellModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == Qt::DisplayRole) return headers_.value(section);
  return QAbstractTableModel::headerData(section, orientation, role);
}

void CellModel::SetHeaders(const QStringList& headers) {
  beginResetModel();
  headers_ = headers;
  columns_ = std::max(columns_, static_cast<int>(headers.size()));
  for (auto& row : rows_) row.resize(static_cast<std::size_t>(columns_));
  endResetModel();
}

void CellModel::SetRows(Rows rows) {
  auto columns = static_cast<std::size_t>(headers_.size());
  for (const auto& row : rows) columns = std::max(columns, row.size());
  for (auto& row : rows) row.resize(columns);
  if (static_cast<int>(columns) != columns_) {
    beginResetModel();
    columns_ = static_cast<int>(columns);
    rows_ = std::move(rows);
    endResetModel();
    return;
  }
  SetCount(static_cast<int>(rows.size()));
  const auto [first, unused] = std::mismatch(rows_.begin(), rows_.end(), rows.begin());
  if (first == rows_.end()) return;
  const auto [last, alsoUnused] = std::mismatch(rows_.rbegin(), rows_.rend(), rows.rbegin());
  const auto from = static_cast<int>(first - rows_.begin());
  const auto to = static_cast<int>(rows_.rend() - last) - 1;
  rows_ = std::move(rows);
  emit dataChanged(index(from, 0), index(to, columns_ - 1));
}

void CellModel::SetCount(int count) {
  const int old = rowCount();
  if (count > old) beginInsertRows({}, old, count - 1);
  if (count < old) beginRemoveRows({}, count, old - 1);
  rows_.resize(static_cast<std::size_t>(count), std::vector<QString>(static_cast<std::size_t>(columns_)));
  if (count > old) endInsertRows();
  if (count < old) endRemoveRows();
}

bool CellModel::Has(int row, int column) const {
  return row >= 0 && row < rowCount() && column >= 0 && column < columns_;
}

QString CellModel::Text(int row, int column) const {
  if (!Has(row, column)) return {};
  return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void CellModel::SetText(int row, int column, const QString& text) {
  if (!Has(row, column) || Text(row, column) == text) return;
  rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = text;
  emit dataChanged(index(row, column), index(row, column));
}

QString CellModel::Label(int row) const {
  QStringList label;
  for (int column = 0; column < labelColumns_; ++column) label << Text(row, column);
  return label.join(' ');
}

int CellModel::FindLabel(const QString& label, int likely) const {
  if (likely >= 0 && likely < rowCount() && Label(likely) == label) return likely;
  for (int row = 0; row < rowCount(); ++row) {
    if (Label(row) == label) return row;
  }
  return -1;
}

}  // namespace morvane::widgets
