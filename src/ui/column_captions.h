#pragma once

#include <QString>
#include <QWidget>
#include <vector>

class QBoxLayout;
class QLabel;

namespace tr7 {

class GridTable;

/// A strip over a grid whose labels stand above the columns that they belong to, wherever the grid
/// is scrolled to. In the layout each label carries the properties `firstColumn` and `lastColumn`,
/// sections of the grid from 0; labels of the same columns stand side by side, and one above the
/// other as soon as some columns have no room for that. A text that is wider than its columns ends
/// in "…", and the group's tip has it whole. What is almost out of sight goes with its columns.
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
  struct Caption {
    QLabel* label;
    QString full, shown;
  };
  struct Group {
    int first, last;  ///< sections
    QWidget* labels;
    QBoxLayout* row;
    std::vector<Caption> captions;
  };
  /// The columns of a group on this strip, also where they are scrolled out of sight.
  struct Field {
    int left = 0, width = 0;
  };
  Group& GroupOf(const QLabel& label);
  int Origin() const;
  Field FieldOf(const Group& group) const;
  static int WidthOf(const Group& group);
  static void FitTexts(Group& group, int width);
  bool MustStack();
  void Place();
  void PlaceGroup(Group& group);

  GridTable* table_ = nullptr;
  std::vector<Group> groups_;
  bool stacked_ = false;
};

}  // namespace tr7
