#pragma once

#include <QTableView>
#include <optional>
#include <vector>

#include "forms/grid.h"
#include "ui/binding.h"

class QLineEdit;
class QListWidget;

namespace tr7 {

class CellBubble;
class GridHeader;
class GridModel;

/// A grid on the screen. The record is the master of texts, current cell and selection; this draws
/// it and turns keys and the mouse into changes of it, as a good spreadsheet does: typing starts
/// an edit, F2 or a double click edits in place, Enter, Tab and the arrows end it.
class GridTable : public QTableView {
  Q_OBJECT

 public:
  explicit GridTable(QWidget* parent = nullptr);

  /// Ties the widget to its record, once.
  void Attach(Grid& grid);
  /// Draws what the record holds; nothing while its `Redraw` is off.
  void Push();

  /// Ends the open edit through `AcceptEdit`. True when none is open any more; a refused one stays
  /// open with the old text, and a bubble at the cell tells why.
  bool FinishEdit();
  bool IsEditing() const { return editor_ != nullptr; }
  QLineEdit* Editor() const { return editor_; }
  /// The place of a cell of the record on the viewport.
  QRect CellRect(int row, int col) const;
  /// Why the last text was refused, while that stands at the cell; else empty.
  QString Refusal() const;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void updateGeometries() override;

 private:
  enum class EditStart { Typed, InPlace };

  // Edits: grid_edit.cpp.
  void StartEdit(EditStart start, const QString& typed = {});
  void CloseEditor();
  void EmptyCell();
  void PlaceEditor();
  void ShowRefusal(const std::string& reason);
  void PushRefusal();
  bool OnEditorKey(const QKeyEvent& key);
  bool LeavesSideways(int key) const;
  void MoveOn(bool backwards);
  bool Chooses(const QKeyEvent& key) const;
  bool Clicks(const QKeyEvent& key) const;
  void ChooseCell();

  // The list at the current cell: grid_list.cpp.
  bool ListIsOpen() const;
  void OpenList();
  void CloseList();
  void PickFromList();
  void PlaceList();
  bool OnListKey(const QKeyEvent& key);
  QRect ListArrow() const;

  // Moving and selecting: grid_moves.cpp.
  bool MoveByKey(const QKeyEvent& key);
  bool GoToTarget(bool by_key);
  int NextShownCol(int col, int step) const;
  int LastShownCol() const;
  int PageRows() const;
  void GoTo(int row, int col, bool extend);
  void ShowCurrent();
  void SelectAll();
  void SelectRows(int section, bool extend);
  void SelectCols(int section, bool extend);
  bool CellAt(const QPoint& at, int& row, int& col) const;

  // Drawing: grid_table.cpp.
  void PaintCorner();
  void PushWidths();
  void FillWidth();
  void ShareWidth();
  int TitleWidth(int col) const;
  int TextWidth(int col) const;
  void PushScroll();
  void PushSight();
  int BodyRow(int section) const { return section + grid_->FixedRows; }
  QModelIndex IndexOf(int row, int col) const;
  bool InBody(int row, int col) const;
  QRect ViewRect(std::pair<int, int> cell) const;

  Grid* grid_ = nullptr;
  GridModel* model_ = nullptr;
  GridHeader* header_ = nullptr;
  QWidget* corner_ = nullptr;  ///< Qt's own, above the fixed column

  QLineEdit* editor_ = nullptr;
  int edit_row_ = 0, edit_col_ = 0;
  EditStart edit_start_ = EditStart::Typed;
  bool finishing_ = false;
  QListWidget* list_ = nullptr;  ///< the layout's, above the cells
  CellBubble* bubble_;
  std::pair<int, int> refused_{};  ///< the cell that the bubble stands at
  bool dragging_ = false;

  std::optional<std::uint64_t> shown_revision_;
  std::optional<std::pair<int, int>> shown_current_;
  std::vector<int> shown_widths_;
  int shown_top_row_ = -1;
  int shown_sights_ = 0;
  bool scrolling_ = false;
  bool sizing_ = false;  ///< widths change here, not by the user's hand
};

class GridBinding : public WidgetBinding {
 public:
  GridBinding(Grid& record, GridTable& table) : WidgetBinding(record, table), table_(table) {
    table.Attach(record);
  }
  void Push() override {
    WidgetBinding::Push();
    table_.Push();
  }

 private:
  GridTable& table_;
};

}  // namespace tr7
