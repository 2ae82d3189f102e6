#pragma once

namespace tr7 {

// Both run over positions `PosiFromNo` to `PosiToNo` and the axes in use. 0, or 1 when a
// conversion fails.

/// Fills `PosiMm` from `PosiPulse`. An axis that cannot convert has no millimetres then, and its
/// cells in millimetres are empty: those of an earlier device or table would pass for its own.
int RecalcMmFromPulse();
/// Fills `PosiPulse`, and the record that equals it, from `PosiMm`. After a failure the table is as
/// it was.
int RecalcPulseFromMm();

}  // namespace tr7
