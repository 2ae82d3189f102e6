#include "posi/posi_grid_keep.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <vector>

#include "base/text_helpers.h"
#include "device/unit_conversion.h"
#include "forms/frm_posi.h"
#include "posi/posi_format.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"

namespace tr7 {
namespace {

/// A line that the table does not hold: a new one, or one brought back from before a commit.
bool SomeLineIsNew(const std::vector<std::int16_t>& sources) {
  return std::ranges::find(sources, 0) != sources.end();
}

}  // namespace

KeptEdits::KeptEdits() : program_mode_(frmPosi.ShownPrgMode), source_(frmPosi.SourceNo) {
  muko_ = frmPosi.ShownMuko;
  lead_ = frmPosi.ShownLead;
  ppr_ = frmPosi.ShownPpr;
  const Grid& grid = frmPosi.flgdData;
  if (grid.Rows() <= kPosiHeaderRows) return;
  if (!frmPosi.PosiChanged && !SomeLineIsNew(source_)) return;
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
  if (SomeLineIsNew(source_)) frmPosi.PosiChanged = True;
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

int KeptEdits::Lines() const { return rows_ == 0 ? 0 : rows_ - kPosiHeaderRows; }

std::vector<int> KeptEdits::Sources() const {
  std::set<int> numbers(source_.begin(), source_.end());
  numbers.erase(0);
  return {numbers.begin(), numbers.end()};
}

void KeptEdits::Write(SeqWriter& out) const {
  out.Number(program_mode_ ? 1 : 0);
  for (int axis = 0; axis < kAxes; ++axis) {
    out.Number(muko_[axis] ? 1 : 0);
    out.Number(lead_[axis]);
    out.Number(ppr_[axis]);
  }
  out.Number(Lines());
  out.EndLine();
  for (int row = kPosiHeaderRows; row < rows_; ++row) {
    out.Number(source_[row - kPosiHeaderRows]);
    for (int col = 1; col < kPosiColumns; ++col) out.Text(Text(row, col));
    out.EndLine();
  }
}

bool KeptEdits::ReadLayout(SeqReader& items) {
  int on = 0;
  if (!items.ReadInteger(0, 1, on)) return false;
  program_mode_ = on == 1;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!items.ReadInteger(0, 1, on) || !items.ReadNumber(lead_[axis]) ||
        !items.ReadNumber(ppr_[axis])) {
      return false;
    }
    muko_[axis] = on == 1;
  }
  return true;
}

bool KeptEdits::ReadLines(SeqReader& items) {
  int lines = 0;
  if (!items.ReadInteger(1, kPosiMaxNo, lines)) return false;
  rows_ = lines + kPosiHeaderRows;
  source_.assign(static_cast<std::size_t>(lines), 0);
  texts_.assign(static_cast<std::size_t>(rows_) * kPosiColumns, {});
  auto cell = texts_.begin() + kPosiHeaderRows * kPosiColumns;
  for (std::int16_t& source : source_) {
    int number = 0;
    if (!items.ReadInteger(0, kPosiMaxNo, number)) return false;
    source = static_cast<std::int16_t>(number);
    ++cell;  // the column of the numbers
    for (int col = 1; col < kPosiColumns; ++col) {
      if (!items.ReadText(*cell++)) return false;
    }
  }
  return true;
}

bool KeptEdits::Read(SeqReader& items) {
  if (ReadLayout(items) && ReadLines(items)) return true;
  rows_ = 0;
  return false;
}

}  // namespace tr7
