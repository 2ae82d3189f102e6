#include "posi/posi_grid_layout.h"

#include <array>
#include <string>

#include "forms/frm_posi.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr Colour kGrey = 0xe0e0e0;
constexpr Colour kLightYellow = 0xffffc0;
constexpr int kTitleRowHeight = 300;
constexpr int kColumnRowHeight = 500;
constexpr int kNumberWidth = 400;
constexpr int kRestOfView = -1;  // the comment takes the width that is left
constexpr std::array<int, 6> kAxisWidths{500, 500, 500, 1000, 600, 700};
constexpr int kCommonWidth = 500;
constexpr int kPrgPosiWidth = 1000;
constexpr std::array<const char*, 7> kFieldTitles{"", "VEL", "ACC", "WAY", "Posi", "PF", "PS"};

const char* FieldTitle(int col) {
  switch (col) {
    case kItpl:
      return "ITPL";
    case kOut:
      return "OUT";
    case kSm:
      return "SM";
    case kComment:
      return "COMMENT";
    default:
      return kFieldTitles[FieldOfColumn(col)];
  }
}

std::string ColumnTitle(int col) { return PosiColumnTitle(col, AppState.DispMmUnit); }

void WriteHeaders() {
  Grid& grid = frmPosi.flgdData;
  grid.SetText(0, 0, "");
  grid.SetText(1, 0, "No.");
  for (int col = 1; col < kPosiColumns; ++col) {
    const int axis = AxisOfColumn(col);
    grid.SetText(0, col, axis >= 0 ? Text(MsgId::At(220, axis)) : "Common");
    grid.SetText(1, col, ColumnTitle(col));
  }
}

void SetFixedRows() {
  frmPosi.flgdData.SetRowHeight(0, kTitleRowHeight);
  frmPosi.flgdData.SetRowHeight(1, kColumnRowHeight);
}

bool IsMuko(int axis) { return axis >= 0 && AppState.AxisMuko[axis]; }

int PosModeWidth(int col) {
  const int axis = AxisOfColumn(col);
  if (IsMuko(axis)) return 0;
  if (axis >= 0) return kAxisWidths[FieldOfColumn(col) - 1];
  return col == kComment ? kRestOfView : kCommonWidth;
}

int PrgModeWidth(int col) {
  const int axis = AxisOfColumn(col);
  if (col == kComment) return kRestOfView;
  return axis >= 0 && !IsMuko(axis) && FieldOfColumn(col) == kPosi ? kPrgPosiWidth : 0;
}

void SetWidths(int (*width_of)(int)) {
  Grid& grid = frmPosi.flgdData;
  grid.SetColWidth(0, kNumberWidth);
  for (int col = 1; col < kPosiColumns; ++col) grid.SetColWidth(col, width_of(col));
}

}  // namespace

std::string PosiColumnName(int col) {
  const int axis = AxisOfColumn(col);
  return axis >= 0 ? FieldTitle(col) + std::to_string(axis + 1) : FieldTitle(col);
}

std::string PosiColumnTitle(int col, bool mm) {
  const bool length = AxisOfColumn(col) >= 0 && FieldOfColumn(col) == kPosi;
  return length ? PosiColumnName(col) + (mm ? "(mm)" : "(pls)") : FieldTitle(col);
}

bool IsShownColumn(int col) { return frmPosi.flgdData.ColWidth(col) != 0; }

bool IsOpenCell(int row, int col) {
  return row >= kPosiHeaderRows && row < frmPosi.flgdData.Rows() && col >= 1 &&
         col < kPosiColumns && IsShownColumn(col);
}

int FirstShownColumn() {
  int col = 1;
  while (col < kComment && !IsShownColumn(col)) ++col;
  return col;
}

int RowOfPosition(int number) { return number - AppState.PosiFirstNo + kPosiHeaderRows; }
int PositionOfRow(int row) { return row - kPosiHeaderRows + AppState.PosiFirstNo; }

void Set_PosFormStrAtPosMode() { WriteHeaders(); }
void Set_PosFormStrAtPrgMode() { WriteHeaders(); }

void SizeInit_PosFlexGridAtPosMode() {
  SetFixedRows();
  SizeInit_PosFlexGridAtPosMode2();
}

void SizeInit_PosFlexGridAtPosMode2() { SetWidths(PosModeWidth); }

void SizeInit_PosFlexGridAtPrgMode2() {
  SetFixedRows();
  SizeInit_PosFlexGridAtPrgMode3();
}

void SizeInit_PosFlexGridAtPrgMode3() { SetWidths(PrgModeWidth); }

void Change_DispUnit() {
  for (int axis = 0; axis < kAxes; ++axis) {
    const int col = AxisBase(axis) + kPosi;
    frmPosi.flgdData.SetText(1, col, ColumnTitle(col));
  }
}

void DispAxisData2() {
  for (int col = 1; col < kPosiColumns; ++col) {
    const int axis = AxisOfColumn(col);
    const Colour colour = IsMuko(axis) ? kGrey : axis % 2 == 1 ? kLightYellow : kWindowColour;
    frmPosi.flgdData.SetColColour(col, colour);
    frmPosi.flgdData.SetColAlign(col, col == kComment ? ColAlign::Left : ColAlign::Right);
  }
}

}  // namespace tr7
