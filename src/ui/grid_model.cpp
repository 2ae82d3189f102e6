#include "ui/grid_model.h"

#include <algorithm>

#include "ui/binding.h"

namespace tr7 {

QString GridModel::TextAt(int row, int col) const {
  const int grid_row = row + grid_.FixedRows, grid_col = col + grid_.FixedCols;
  if (grid_row >= grid_.Rows() || grid_col >= grid_.Cols()) return {};
  return Q(grid_.Text(grid_row, grid_col));
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int row = index.row() + grid_.FixedRows, col = index.column() + grid_.FixedCols;
  if (row >= grid_.Rows() || col >= grid_.Cols()) return {};
  if (role == Qt::DisplayRole) return Q(grid_.Text(row, col)).trimmed();
  if (role == Qt::ToolTipRole && grid_.CellToolTip) return Q(grid_.CellToolTip(row, col));
  return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool tip = role == Qt::ToolTipRole && orientation == Qt::Vertical && grid_.CellToolTip;
  if (tip) return Q(grid_.CellToolTip(section + grid_.FixedRows, grid_.FixedCols - 1));
  if (role != Qt::DisplayRole) return {};
  const bool across = orientation == Qt::Horizontal;
  const int row = across ? grid_.FixedRows - 1 : section + grid_.FixedRows;
  const int col = across ? section + grid_.FixedCols : grid_.FixedCols - 1;
  if (row < 0 || col < 0 || row >= grid_.Rows() || col >= grid_.Cols()) return {};
  return Q(grid_.Text(row, col));
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

bool GridModel::FollowCounts() {
  const int rows = std::max(grid_.Rows() - grid_.FixedRows, 0);
  const int cols = std::max(grid_.Cols() - grid_.FixedCols, 0);
  if (rows == rows_ && cols == cols_) return false;
  if (cols != cols_) {
    beginResetModel();
    rows_ = rows;
    cols_ = cols;
    endResetModel();
  } else if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else {
    beginRemoveRows({}, rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
  return true;
}

}  // namespace tr7
