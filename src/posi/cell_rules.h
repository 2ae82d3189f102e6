#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tr7 {

/// What a cell shows once its edit is accepted.
struct AcceptedCell {
  struct Length {
    double pulses, mm;
  };
  std::string text;
  std::optional<Length> length;  ///< of a "Posi" cell
};

/// The rule of a column (1 to 28) for a typed text, in the display unit; in program mode only
/// "Posi" and "COMMENT" take any. Empty: refused. Touches nothing.
///
/// A number column takes a number and nothing else: of "30 mm" or "1e3" the leading number alone
/// would reach the controller, and a word would read as 0. The code and percentage columns may be
/// emptied, which the check then flags; a position may not.
std::optional<AcceptedCell> ApplyCellRule(int col, std::string_view typed, bool program_mode);

/// True when what a cell shows is not what was typed: a number rounded to what the cell can hold,
/// or a comment cut.
[[nodiscard]] bool RuleChanged(int col, std::string_view typed, std::string_view shown);

// The rule of the mode for a cell of the grid. 0: accepted; `text` is then what the cell shows, and
// a position also stands in `PosiPulse` and `PosiMm` at the index (row - 1). That mirror is exact
// for a table that starts at 1; the check's commit writes the true slots. 1: refused.
int SetDataForFlex(int row, int col, std::string& text);
int SetDataForFlexAtPrgMode(int row, int col, std::string& text);

/// The one of the two that the mode asks for.
int SetCellData(int row, int col, std::string& text);

}  // namespace tr7
