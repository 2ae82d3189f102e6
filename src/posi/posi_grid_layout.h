#pragma once

#include <string>

namespace tr7 {

inline constexpr int kPosiHeaderRows = 2;

/// Grid row of a position number, and back.
int RowOfPosition(int number);
int PositionOfRow(int row);

/// Name of a body column wherever columns stand side by side: "VEL1", "Posi4", "ITPL".
std::string PosiColumnName(int col);

/// The heading of a body column: "VEL", "Posi1(mm)".
std::string PosiColumnTitle(int col, bool mm);

/// True for a column with a width.
bool IsShownColumn(int col);
/// True where the user may type: a body cell of a shown column.
bool IsOpenCell(int row, int col);
/// The first shown body column: 1, or the first "Posi" column in program mode, where the axis is
/// in use.
int FirstShownColumn();

// The two header rows for the mode.
void Set_PosFormStrAtPosMode();
void Set_PosFormStrAtPrgMode();

// Column widths for the mode. The first of each pair also sets the two fixed rows.
void SizeInit_PosFlexGridAtPosMode();
void SizeInit_PosFlexGridAtPosMode2();
void SizeInit_PosFlexGridAtPrgMode2();
void SizeInit_PosFlexGridAtPrgMode3();

/// Rewrites the four "Posi" titles for the display unit.
void Change_DispUnit();

/// Gives every column its colour; an axis not in use is grey.
void DispAxisData2();

}  // namespace tr7
