#pragma once

namespace tr7 {

// Between `ParamSet` and the controls of the parameter view.

/// Shows `ParamSet` in the view: the live axes and the controller rows.
void ParametaHyoji();

/// Takes the view's controls into `ParamSet`. Lengths in mm win over their pulses: both fields are
/// written anew from what is kept.
void TorikomiParametaValue();

/// 0: every field of the live axes, as far as row AXIS of the view counts them, and of the
/// controller holds something; 1: some field is empty. Shows nothing: callers show messages 7
/// and 8.
int ParametaumuKakunin();

}  // namespace tr7
