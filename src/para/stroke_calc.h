#pragma once

namespace tr7 {

/// `cmdCalculate`: the stroke calculator. Its result goes into STROKE of the parameter view, and
/// the focus on from there.
void ShowStrokeCalc();

void InstallStrokeCalc();

}  // namespace tr7
