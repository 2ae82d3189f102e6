#pragma once

#include <QWidget>
#include <vector>

namespace tr7 {

class GridTable;

/// A strip over a grid whose labels stand above the columns that they belong to, wherever the grid
/// is scrolled to. In the layout each label carries the properties `firstColumn` and `lastColumn`,
/// sections of the grid from 0; labels of the same columns stand side by side. No label is cut: one
/// whose columns are narrow moves aside, and one whose columns are almost out of sight goes with
/// them.
class ColumnCaptions : public QWidget {
  Q_OBJECT

 public:
  explicit ColumnCaptions(QWidget* parent = nullptr) : QWidget(parent) {}
  /// Takes the labels and follows the grid, once.
  void Follow(GridTable& table);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Group {
    int first, last;  ///< sections
    QWidget* labels;
    bool shown = false;
    int left = 0;
  };
  void Place();
  void PlaceByColumns(Group& group, int from) const;

  GridTable* table_ = nullptr;
  std::vector<Group> groups_;
};

}  // namespace tr7
