#pragma once

namespace tr7 {

/// Shows the macro whose number stands in `lblSqMacroNo`, and which macros hold data.
void SmShow();

/// The number of the macro on show, 1 to 20.
int ShownMacro();

}  // namespace tr7
