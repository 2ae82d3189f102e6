#pragma once

namespace tr7 {

/// `DevSetting` and `StrokePulse` of each present axis from what the controller reported (`CtDev`).
void TakeDevFromCt();

}  // namespace tr7
