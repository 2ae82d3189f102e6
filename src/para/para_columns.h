#pragma once

namespace tr7 {

// Which controls of the parameter view are live: columns of axes in use, and the SP group where it
// is unlocked. A column of an axis not in use is empty and off.

/// Columns of the axes in use.
void YukoJikuHyojiSettei();
/// Columns of the first `axes` axes (1 to 4), whatever is in use.
void YukoJikuHyojiSettei2(int axes);

/// Brings the columns in line with what is live now. One that comes alive shows `ParamSet`, or
/// stays empty where that knows no device for it.
void SettleParaColumns();

/// Switches every control of the view on or off by its column, the SP switch and a running flow.
void EnableParaControls();

}  // namespace tr7
