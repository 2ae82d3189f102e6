#pragma once

#include <QAbstractTableModel>

#include "forms/grid.h"

namespace tr7 {

/// The grid record as Qt's table sees it: body rows and columns, read from the record each time.
/// Nothing is copied but the two counts, which views must be told of when they change.
class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  GridModel(Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : rows_;
  }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : cols_;
  }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// Follows the record's counts; true when one had changed.
  bool FollowCounts();

  /// Text of a body cell; empty outside of the record.
  QString TextAt(int row, int col) const;

 private:
  Grid& grid_;
  int rows_ = 0;
  int cols_ = 0;
};

}  // namespace tr7
