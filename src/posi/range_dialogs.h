#pragma once

namespace tr7 {

// Each asks for a range of position numbers, modal, into `PosiFromNo` and `PosiToNo`. True when
// the user chose one; else `RangeCancelled` is True and the range is as before.

/// `frmSelectPosiNo2`: all positions, or a range; proposes the loaded range or 1 to 15.
bool AskReadRange();

/// `frmSelectPosiNo3`: a range, the loaded one proposed. With `RangeIsForNew` it also sets
/// `PosiFirstNo` and `PosiLastNo`.
bool AskRange();

/// `frmSelectPosiNo4`: a range within `SyogoFromNo` to `SyogoToNo`; with `overlaps` false it only
/// says that nothing can be compared.
bool AskVerifyRange(bool overlaps);

}  // namespace tr7
