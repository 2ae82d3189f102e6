#pragma once

#include "forms/frm_sq_mcr.h"

namespace tr7 {

/// Shows the macro whose number stands in `lblSqMacroNo`, and which macros hold data.
void SmShow();

/// What the value box of a row takes by the command on show there.
void ShowWhatValueTakes(SmRow& row);

/// The number of the macro on show, 1 to 20.
int ShownMacro();

}  // namespace tr7
