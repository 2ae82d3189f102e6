#include "forms/grid.h"

#include <algorithm>
#include <utility>

#include "base/scope.h"

namespace tr7 {

Grid::Grid(View& owner, const std::string& name, int rows, int cols, int fixed_rows, int fixed_cols)
    : Control(owner, "Grid", name), FixedRows(fixed_rows), FixedCols(fixed_cols) {
  SetCols(cols);
  SetRows(rows);
}

void Grid::SetRows(int rows) {
  rows_ = rows;
  const int held = BodyText ? std::min(rows, FixedRows) : rows;
  cells_.resize(static_cast<std::size_t>(held) * static_cast<std::size_t>(cols_));
  Row = std::min(Row, std::max(rows - 1, 0));
  RowSel = std::min(RowSel, std::max(rows - 1, 0));
  Touch();
}

void Grid::SetCols(int cols) {
  std::vector<std::string> kept(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(cols));
  for (int row = 0; row < rows_; ++row) {
    for (int col = 0; col < std::min(cols, cols_); ++col) {
      kept[static_cast<std::size_t>(row) * static_cast<std::size_t>(cols) + Index(col)] =
          std::move(cells_[CellIndex(row, col)]);
    }
  }
  cells_ = std::move(kept);
  cols_ = cols;
  col_widths_.resize(Index(cols), 1000);
  user_widths_.resize(Index(cols), 0);
  col_colours_.resize(Index(cols), kWindowColour);
  col_aligns_.resize(Index(cols), ColAlign::General);
  Touch();
}

void Grid::InsertRow(int row) {
  const auto at = cells_.begin() + static_cast<std::ptrdiff_t>(CellIndex(row, 0));
  cells_.insert(at, static_cast<std::size_t>(cols_), std::string());
  ++rows_;
  Touch();
}

void Grid::RemoveRow(int row) {
  const auto at = cells_.begin() + static_cast<std::ptrdiff_t>(CellIndex(row, 0));
  cells_.erase(at, at + cols_);
  --rows_;
  Row = std::min(Row, std::max(rows_ - 1, 0));
  RowSel = std::min(RowSel, std::max(rows_ - 1, 0));
  Touch();
}

const std::string& Grid::Text(int row, int col) const {
  if (!BodyText || row < FixedRows) return cells_.at(CellIndex(row, col));
  return asked_ = BodyText(row, col);
}

void Grid::SetText(int row, int col, std::string text) {
  cells_.at(CellIndex(row, col)) = std::move(text);
  Touch();
}

void Grid::SetColWidth(int col, int twips) {
  col_widths_.at(Index(col)) = twips;
  Touch();
}

void Grid::SetUserWidth(int col, int twips) {
  user_widths_.at(Index(col)) = twips;
  Touch();
}

void Grid::SetRowHeight(int row, int twips) {
  if (row_heights_.size() <= static_cast<std::size_t>(row)) {
    row_heights_.resize(static_cast<std::size_t>(row) + 1);
  }
  row_heights_[row] = twips;
  Touch();
}

int Grid::RowHeight(int row) const {
  const auto index = static_cast<std::size_t>(row);
  return index < row_heights_.size() ? row_heights_[index] : 0;
}

void Grid::SetColColour(int col, Colour colour) {
  col_colours_.at(Index(col)) = colour;
  Touch();
}

void Grid::SelectCell(int row, int col) { Select(row, col, row, col); }

void Grid::Select(int row, int col, int row_end, int col_end) {
  Row = row;
  Col = col;
  RowSel = row_end;
  ColSel = col_end;
  Touch();
  if (SelChange) SelChange();
}

void Grid::SetAtWork(RowAtWork row) {
  if (row == at_work_) return;
  at_work_ = row;
  Touch();
}

void Grid::BringIntoSight(int row) {
  row_to_see_ = row;
  ++sights_asked_;
  Touch();
}

void Grid::SetColAlign(int col, ColAlign align) {
  col_aligns_.at(Index(col)) = align;
  Touch();
}

bool Grid::MayEdit(int row, int col) const {
  const bool body = row >= FixedRows && row < rows_ && col >= FixedCols && col < cols_;
  return Enabled && Visible && body && (!CanEdit || CanEdit(row, col));
}

EditVerdict Grid::EndEdit(int row, int col, std::string typed) {
  EditVerdict verdict;
  ++edits_ending_;
  const ScopeExit over([] { --edits_ending_; });
  if (AcceptEdit) verdict = AcceptEdit(row, col, typed);
  if (verdict.accepted) SetText(row, col, std::move(typed));
  return verdict;
}

int Grid::TypeInto(int row, int col, const std::string& typed) {
  SelectCell(row, col);
  return MayEdit(row, col) && EndEdit(row, col, typed).accepted ? 0 : 1;
}

}  // namespace tr7
