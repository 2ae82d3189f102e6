#pragma once

namespace tr7 {

/// `DevSetting` from `ParamSet`. Row AXIS sets `AxisMuko` first. Then each present axis gets size,
/// speed, stroke, lead and PPR, the PG flag by row FUNCTION, and `StrokePulse`; an empty device
/// text ends it there with `NotChosen` of that axis True. `NewType` stays as it was: callers copy
/// it from `DevSettei`. Also known as TakeDevFromParam, behind a write: the controller's device
/// block then has the PG flag of FUNCTION.
void TakeDevFromParam2();

}  // namespace tr7
