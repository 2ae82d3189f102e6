#pragma once

#include "prog/prog_store.h"

namespace tr7 {

/// Runs all passes over `ProgDA` and lists what they find in `ProgErrList`, which ends with the
/// eleventh record. 0: nothing found; 1: at least one record. `CommandList` is read.
int programCheckProc(ProgStore& store);

/// Whether the program fits into this number: 0 it does, 1 it does not, -1 there is no such number.
int Check_ProgramStepSu(const ProgStore& store, int program);

}  // namespace tr7
