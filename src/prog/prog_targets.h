#pragma once

#include "forms/grid.h"

namespace tr7 {

/// What a step is to the jumps of its program, for a mark in the number column.
enum class StepMark { None, Label, Subroutine, Jump, Call };
StepMark MarkOfStep(const Grid& listing, int step);

/// The step of the label that a jump goes to, or of the subroutine that a call runs; 0 where the
/// step is neither, goes through a variable, or the listing has no such label or subroutine.
int TargetOfStep(const Grid& listing, int step);

}  // namespace tr7
