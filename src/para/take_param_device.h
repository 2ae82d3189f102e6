#pragma once

namespace tr7 {

// `DevSetting` from `ParamSet`. Row AXIS sets `AxisMuko` first. Then each present axis gets size,
// speed, stroke, lead and PPR, and `StrokePulse`; an empty device text ends it there with
// `NotChosen` of that axis True. `NewType` stays as it was: callers copy it from `DevSettei`.

/// The PG flag comes from the controller's device block (`CtDev`).
void TakeDevFromParam();
/// The PG flag comes from row FUNCTION.
void TakeDevFromParam2();

}  // namespace tr7
