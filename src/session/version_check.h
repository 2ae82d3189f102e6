#pragma once

namespace tr7 {

/// Tells the version in the first status panel. Every good reply clears that panel, so a connect
/// sequence tells it once more at its end.
void VersionHyoji();

/// `GetVersionNo`, then the first status panel tells the version or that there is none. 0 or 1.
int GetVersionNoDisp();

/// The same with the versions of the axis boards.
int GetVersionNo2();

/// True when the model marker is one of "R1M" to "R4M". Otherwise the line is shut, the state goes
/// offline and the user is told that this is no QV-R7.
bool CheckModelMarker();

}  // namespace tr7
