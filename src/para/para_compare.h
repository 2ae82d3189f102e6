#pragma once

namespace tr7 {

/// `cmdParaCompare`: any two of the view, the controller and a file, over the rows of the
/// controller and of the live axes.
void CompareParameters();

}  // namespace tr7
