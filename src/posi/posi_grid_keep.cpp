#include "posi/posi_grid_keep.h"

#include "base/text_helpers.h"
#include "forms/frm_posi.h"
#include "posi/posi_format.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"

namespace tr7 {

KeptEdits::KeptEdits() : program_mode_(frmPosi.ShownPrgMode), muko_(frmPosi.ShownMuko) {
  const Grid& grid = frmPosi.flgdData;
  if (!frmPosi.PosiChanged || grid.Rows() <= kPosiHeaderRows) return;
  rows_ = grid.Rows();
  texts_.reserve(static_cast<std::size_t>(rows_) * kPosiColumns);
  for (int row = 0; row < rows_; ++row) {
    for (int col = 0; col < kPosiColumns; ++col) texts_.push_back(grid.Text(row, col));
  }
}

void KeptEdits::PutBack() const {
  Grid& grid = frmPosi.flgdData;
  if (rows_ != grid.Rows()) return;
  for (int row = kPosiHeaderRows; row < rows_; ++row) {
    for (int col = 1; col < kPosiColumns; ++col) {
      const int axis = AxisOfColumn(col);
      const auto index = static_cast<std::size_t>(axis);
      if (axis >= 0 && (muko_[index] || AppState.AxisMuko[index])) continue;
      grid.SetText(row, col, NewText(row, col));
    }
  }
  grid.Touch();
}

const std::string& KeptEdits::Text(int row, int col) const {
  return texts_[static_cast<std::size_t>(row) * kPosiColumns + static_cast<std::size_t>(col)];
}

std::string KeptEdits::NewText(int row, int col) const {
  const int axis = AxisOfColumn(col);
  const bool position = axis >= 0 && FieldOfColumn(col) == kPosi;
  if (AppState.CtMode && !position && col != kComment) return HiddenCellText(col, Text(row, col));
  if (program_mode_ == AppState.CtMode || axis < 0) return Text(row, col);
  if (position) return PosiText(row, axis);
  if (FieldOfColumn(col) == kWay && program_mode_) {
    return std::to_string(SplitPosiText(Text(row, AxisBase(axis) + kPosi)).way);
  }
  return Text(row, col);
}

std::string KeptEdits::PosiText(int row, int axis) const {
  const std::string& text = Text(row, AxisBase(axis) + kPosi);
  if (Trim(text).empty()) return text;  // an empty cell stays one, for the check to find
  if (program_mode_) return PosiLengthText(SplitPosiText(text).number, 1, false);
  const int way = WayOf(Val(Text(row, AxisBase(axis) + kWay)));
  return PosiLengthText(Trim(text), way, true);
}

}  // namespace tr7
