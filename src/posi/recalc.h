#pragma once

namespace tr7 {

// Both run over positions `PosiFromNo` to `PosiToNo` and the axes in use. 0, or 1 when a
// conversion fails; the table stays as it was then.

/// Fills `PosiMm` from `PosiPulse`.
int RecalcMmFromPulse();
/// Fills `PosiPulse`, and the record that equals it, from `PosiMm`.
int RecalcPulseFromMm();

}  // namespace tr7
