#include "data/sm_table.h"

#include <algorithm>

namespace tr7 {
namespace {

/// Code 15 becomes an end, and an end has no value.
void PutRight(SmStep& step) {
  if (step.Command == kSmBlank) step.Command = kSmEnd;
  if (step.Command == kSmEnd) step.Value = 0;
}

}  // namespace

SmTableRecord SmTable{};
SmTableRecord SmStage{};
SmTableRecord SmSaved{};
SmFlagsRecord SmFlags;

int SmHighestValue(int command) {
  constexpr int kLastSignal = 4, kLastTimer = 6;
  if (command >= 1 && command <= kLastSignal) return 4;
  return command > kLastSignal && command <= kLastTimer ? 9 : 0;
}

bool SmStepIsGood(const SmStep& step) {
  return step.Command == kSmEnd || (step.Value >= 1 && step.Value <= SmHighestValue(step.Command));
}

bool MacroHoldsData(const SmTableRecord::value_type& macro) {
  return std::any_of(macro.begin(), macro.end(),
                     [](const SmStep& step) { return SmHighestValue(step.Command) > 0; });
}

void SmStageCommit() { SmTable = SmStage; }
void SmStageFromTable() { SmStage = SmTable; }

int SmData_Check() {
  SmFlags.SmBadList.clear();
  for (int n = 1; n <= kMacros; ++n) {
    bool good = true;
    for (SmStep& step : SmTable[n - 1]) {
      PutRight(step);
      good = good && SmStepIsGood(step);
    }
    if (!good) SmFlags.SmBadList += "<" + std::to_string(n) + ">,";
  }
  return SmFlags.SmBadList.empty() ? 0 : 1;
}

bool SmStepDiffers(const SmStep& held, const SmStep& staged) {
  if (held.Command != staged.Command) return true;
  return held.Command != kSmEnd && held.Value != staged.Value;
}

void SmStageCompare() {
  SmFlags.SmSyogoList.clear();
  for (int n = 1; n <= kMacros; ++n) {
    bool differs = false;
    for (int s = 0; s < kMacroSteps; ++s) {
      differs = differs || SmStepDiffers(SmTable[n - 1][s], SmStage[n - 1][s]);
    }
    if (differs) SmFlags.SmSyogoList += std::to_string(n) + ",";
  }
}

}  // namespace tr7
