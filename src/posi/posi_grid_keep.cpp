#include "posi/posi_grid_keep.h"

#include "base/text_helpers.h"
#include "device/unit_conversion.h"
#include "forms/frm_posi.h"
#include "posi/posi_format.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"

namespace tr7 {

KeptEdits::KeptEdits() : program_mode_(frmPosi.ShownPrgMode), source_(frmPosi.SourceNo) {
  muko_ = frmPosi.ShownMuko;
  lead_ = frmPosi.ShownLead;
  ppr_ = frmPosi.ShownPpr;
  const Grid& grid = frmPosi.flgdData;
  if (!frmPosi.PosiChanged || grid.Rows() <= kPosiHeaderRows) return;
  rows_ = grid.Rows();
  texts_.reserve(static_cast<std::size_t>(rows_) * kPosiColumns);
  for (int row = 0; row < rows_; ++row) {
    for (int col = 0; col < kPosiColumns; ++col) texts_.push_back(grid.Text(row, col));
  }
}

void KeptEdits::PutBack(Unedited keeps) const {
  Grid& grid = frmPosi.flgdData;
  if (rows_ != grid.Rows()) return;
  for (int row = kPosiHeaderRows; row < rows_; ++row) {
    for (int col = 1; col < kPosiColumns; ++col) {
      const int axis = AxisOfColumn(col);
      if (axis >= 0 && (muko_[axis] || AppState.AxisMuko[axis])) continue;
      grid.SetText(row, col, NewText(row, col, keeps));
    }
  }
  frmPosi.SourceNo = source_;
  grid.Touch();
}

const std::string& KeptEdits::Text(int row, int col) const {
  return texts_[static_cast<std::size_t>(row) * kPosiColumns + static_cast<std::size_t>(col)];
}

std::string KeptEdits::NewText(int row, int col, Unedited keeps) const {
  const int axis = AxisOfColumn(col);
  const bool position = axis >= 0 && FieldOfColumn(col) == kPosi;
  if (AppState.CtMode && !position && col != kComment) return HiddenCellText(col, Text(row, col));
  if (position) return PosiText(row, axis, keeps);
  if (program_mode_ == AppState.CtMode || axis < 0) return Text(row, col);
  if (FieldOfColumn(col) == kWay && program_mode_) {
    return std::to_string(SplitPosiText(Text(row, AxisBase(axis) + kPosi)).way);
  }
  return Text(row, col);
}

std::string KeptEdits::PosiText(int row, int axis, Unedited keeps) const {
  const int col = AxisBase(axis) + kPosi;
  const std::string& text = Text(row, col);
  const WayAndNumber cell = SplitPosiText(text);
  const bool empty = Trim(text).empty();
  int way = program_mode_ ? cell.way : WayOf(Val(Text(row, AxisBase(axis) + kWay)));
  if (AppState.DispMmUnit && (empty || keeps == Unedited::Pulses) && IsUnedited(row, axis)) {
    if (empty && program_mode_) way = WayOf(Held(row, AxisBase(axis) + kWay));
    return PosiValueText(col, Held(row, col), way, AppState.CtMode);
  }
  if (empty || program_mode_ == AppState.CtMode)
    return text;  // an empty cell is the check's to find
  return PosiLengthText(program_mode_ ? cell.number : Trim(text), way, AppState.CtMode);
}

/// The cell shows in millimetres what the table holds in pulses, by the device of that time.
bool KeptEdits::IsUnedited(int row, int axis) const {
  if (source_.at(row - kPosiHeaderRows) == 0) return false;
  const int col = AxisBase(axis) + kPosi;
  const auto mm = PulseToMm(lead_[axis], ppr_[axis], Held(row, col));
  const std::string& text = Text(row, col);
  return (program_mode_ ? SplitPosiText(text).number : Trim(text)) == (mm ? FormatMm(*mm) : "");
}

/// What the table holds for the line.
double KeptEdits::Held(int row, int col) const {
  const int number = source_[row - kPosiHeaderRows];
  return ValueOf(PosiTable.PosiRec[col][number]);
}

}  // namespace tr7
