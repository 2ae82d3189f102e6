#pragma once

#include <functional>
#include <string>

namespace tr7 {

/// What stands beside a flagged cell's own value.
struct OtherSide {
  /// Text of a flagged cell (column 1 to 27 of a position number): the other side's value, or the
  /// limit that was passed. `PosiValueText` spells a stored value as the grid does. Unset: the
  /// column's input range is told.
  std::function<std::string(int number, int col)> text;
  /// Whose value it is, such as "Inside of C/T"; empty: simply the other side's.
  std::string name;
};

/// Shows the flagged cells of positions `PosiFromNo` to 999 in `frmSyogoKekka`, modal, with the
/// words of a verification or of a check. The flags stay for the caller to clear.
void ShowSyogoKekka(bool verify, const OtherSide& other = {});

/// Wires the result view.
void InstallResultView();

}  // namespace tr7
