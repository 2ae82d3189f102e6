#pragma once

#include <QStyledItemDelegate>
#include <algorithm>

#include "forms/grid.h"

namespace tr7 {

class GridModel;

/// The field of the arrow that opens a cell's list.
inline QRect ListArrowIn(const QRect& cell) {
  constexpr int kWidth = 16;
  return cell.adjusted(std::max(cell.width() - kWidth, 0), 2, -2, -2);
}

/// Paints body cells straight from the record: column colour, mark, selection, current cell, text.
class GridCellPainter : public QStyledItemDelegate {
  Q_OBJECT

 public:
  GridCellPainter(const Grid& grid, const GridModel& model, QObject* parent)
      : QStyledItemDelegate(parent), grid_(grid), model_(model) {}
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  bool IsSelected(int row, int col) const;
  bool IsMarked(int row, int col) const;
  QColor Ground(int row, int col, bool enabled) const;
  void PaintLamp(QPainter& painter, const QRect& cell, bool lit, bool enabled) const;
  void PaintArrow(QPainter& painter, const QRect& field) const;
  void PaintMark(QPainter& painter, const QRect& cell) const;
  void PaintCheck(QPainter& painter, const QRect& cell) const;
  Qt::Alignment AlignmentOf(int col, const QString& text) const;

  const Grid& grid_;
  const GridModel& model_;
};

}  // namespace tr7
