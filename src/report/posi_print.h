#pragma once

namespace tr7 {

/// `cmdPosiPrint`, the frame's print command: positions, parameters or both, shown or out of files.
void PrintPositions();

}  // namespace tr7
