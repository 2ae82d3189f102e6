#pragma once

#include <string>
#include <string_view>

namespace tr7 {

inline constexpr int kPosiTextWidth = 8;  ///< characters of a "Posi" cell in millimetres

/// Text of a body cell (columns 1 to 28) of position `number` in the layout of the mode.
std::string PosiCellText(int col, int number, bool program_mode);

/// The way of a stored value; what is none counts as an absolute move.
int WayOf(double stored);

/// The same for the value of the other side of a comparison (stored value, "Posi" in pulses).
std::string PosiValueText(int col, double stored, double way, bool program_mode);

/// The "Posi" cell of such a value in pulses, whatever the display unit.
std::string PosiPulseText(double stored, double way, bool program_mode);

/// What a cell that program mode hides holds of a text: nothing where the check would refuse it,
/// since the user can neither see nor mend it. The commit stores that mode's own values there.
std::string HiddenCellText(int col, const std::string& text);

/// Text of the cell of a new line: the defaults of a new table.
std::string PosiDefaultText(int col, bool program_mode);

/// A program-mode "Posi" text taken apart.
struct WayAndNumber {
  int way;             ///< 0 no move, 1 absolute, 2 plus, 3 minus
  std::string number;  ///< behind the sign; "0" for no move, "1" where a sign stands alone
};
WayAndNumber SplitPosiText(std::string_view text);

/// The whole "Posi" cell: `length` is the value's text; its sign or "N" in program mode.
std::string PosiLengthText(const std::string& length, int way, bool program_mode);

}  // namespace tr7
