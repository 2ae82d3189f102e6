#pragma once

namespace tr7 {

/// Shows the table in the grid of its mode: `PosiFirstNo` to `PosiLastNo`, first cell current.
void QvDataHyoji_3();
void QvDataHyoji_3Prg();
/// The one of the two that the mode asks for.
void FG_ShowTable();
/// The same where the table is the one on show: edits of it can still be taken back.
void FG_ShowTableAgain();

// Bracket a bulk fill: painting off and on.
void FG_HighSyoriStart();
void FG_HighSyoriEnd();
/// The current cell goes to row 0, column 0.
void FG_InitPos();

/// The cell that the user has asked for, whoever keeps another place meanwhile.
void GoToPosiCell(int number, int col);

/// Takes up the grid's place again (current cell, selection, first row on show) when a fill or a
/// check in between has moved it, as far as the rows still exist.
class KeepPlace {
 public:
  KeepPlace();
  ~KeepPlace();
  KeepPlace(const KeepPlace&) = delete;
  KeepPlace& operator=(const KeepPlace&) = delete;

 private:
  int row_, col_, row_sel_, col_sel_, top_row_;
  int jumps_;
};

}  // namespace tr7
