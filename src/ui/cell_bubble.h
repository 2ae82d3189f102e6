#pragma once

#include <QLabel>

namespace tr7 {

/// Words at a cell of a grid, over what is around it, until they are hidden. It takes no mouse and
/// no focus.
class CellBubble : public QLabel {
  Q_OBJECT

 public:
  explicit CellBubble(QWidget& grid);
  /// Below the cell, or above it where there is no room; `cell` as the grid measures.
  void PlaceAt(const QRect& cell);
};

}  // namespace tr7
