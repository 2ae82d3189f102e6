#pragma once

namespace tr7 {

// Between `ParamSet` and the controls of the parameter view.

/// Shows `ParamSet` in the view: the live axes and the controller rows.
void ParametaHyoji();

/// Takes the view's controls into `ParamSet`. Lengths in mm win over their pulses: both fields are
/// written anew from what is kept.
void TorikomiParametaValue();

}  // namespace tr7
