#pragma once

#include <vector>

#include "prog/prog_step.h"
#include "steps/outcome.h"

namespace tr7 {

// Programs over the line. The user has been told of every failure.

/// "0RR": the steps in use of a program, 1 to 100; -1 on a failure or where the user has stopped.
int ReadProgStepCountFromCt(int program);

/// "0RR" of all programs into `ProgCt`, which sets `AppState.ProgStepsRead`.
Outcome ReadAllProgStepCountFromCt();

/// "0RR", then "0RM" of all its steps into `steps`, which stays whole unless all is there.
Outcome ReadProgDataFromCt(int program, std::vector<ProgStep>& steps);

/// How far a write of a program has come.
enum class ProgWrite {
  Done,
  NotBegun,    ///< nothing was sent, or the controller has refused the steps
  HalfWritten  ///< it may hold neither the old program nor the new one
};

/// "0WM" with all steps, an empty one behind them where the program is shorter than its limit, then
/// "0MW". Nothing is sent of a program that does not fit its number or the line's digits.
[[nodiscard]] ProgWrite WriteProgdataToCt(int program, const std::vector<ProgStep>& steps);

}  // namespace tr7
