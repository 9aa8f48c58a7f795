// The texts of a cell grid: rows of cells, the columns on the left being labels that nobody edits.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <vector>

namespace morvane::widgets {

class CellModel : public QAbstractTableModel {
 public:
  using Rows = std::vector<std::vector<QString>>;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // Short rows are filled up with empty cells. Views are told no more than what changed, so that they keep
  // their place.
  void SetRows(Rows rows);
  void SetHeaders(const QStringList& headers);
  void SetLabelColumns(int count) { labelColumns_ = count; }
  int LabelColumns() const { return labelColumns_; }

  // Empty, and without effect, for a cell that is not there.
  QString Text(int row, int column) const;
  void SetText(int row, int column, const QString& text);
  // The texts of a row's label columns, with blanks between them.
  QString Label(int row) const;
  // The row of that label: `likely` if it is one, else the first. -1: there is none.
  int FindLabel(const QString& label, int likely) const;

 private:
  bool Has(int row, int column) const;
  void SetCount(int count);

  Rows rows_;
  QStringList headers_;
  int columns_ = 0;
  int labelColumns_ = 1;
};

}  // namespace morvane::widgets
