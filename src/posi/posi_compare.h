#pragma once

namespace tr7 {

/// `cmdPosiCompare`: any two of the table on screen, the controller and a file, by pulses and
/// without tolerance, over the axes in use. The controller is asked for the positions that the
/// other side holds. A position that one side alone holds is one row.
void ComparePositions();

}  // namespace tr7
