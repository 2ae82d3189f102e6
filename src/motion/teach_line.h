#pragma once

namespace tr7 {

/// Grid row of the line that a take fills; 0: none.
int TeachRow();
/// Its number beside the buttons: it follows the grid's current cell.
void ShowTeachLine();

}  // namespace tr7
