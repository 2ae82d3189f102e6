#pragma once

#include <bitset>
#include <string>

#include "posi/posi_range.h"
#include "posi/posi_table.h"

namespace tr7 {

/// The positions of one side of a comparison, as stored: "Posi" in pulses, ACC in tens of
/// milliseconds.
struct PosiSide {
  PosiColumns<PosiSlots<double>> Values{};  ///< [column 1 to 27][number]
  PosiSlots<std::string> Comments;
  std::bitset<kPosiSlots> Holds;  ///< numbers that the side holds
  bool HasComments = true;        ///< comments do not travel over the line
  PosiRange Range() const;        ///< from the first to the last number that it holds
  /// The way of an axis (index 0 to 3) at a position, 0 to 3.
  int WayAt(int axis, int number) const;
};

/// The committed table, loaded positions only.
void TakePosiTable(PosiSide& side);
/// The stage, those of `numbers` that it holds.
void TakePosiStage(PosiSide& side, const std::bitset<kPosiSlots>& numbers);

/// True for a column that is compared: of an axis in use, and in program mode "Posi", which has the
/// way in it, and the comment.
bool IsComparedColumn(int col);
/// True when two sides differ in a compared column. In program mode what does not move an axis
/// holds no position of it.
bool PosiCellDiffers(const PosiSide& a, const PosiSide& b, int col, int number);
/// A cell as the grid shows it.
std::string PosiSideText(const PosiSide& side, int col, int number);

}  // namespace tr7
