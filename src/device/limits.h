#pragma once

namespace tr7 {

/// Recomputes the limits of all axes after axes or devices changed. A stroke in pulses that the
/// controller or the parameters have told stands beside the computed limits: it is what both sides
/// are compared by.
void RecalcLimits();

}  // namespace tr7
