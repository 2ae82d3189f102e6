#pragma once

#include <optional>
#include <string>

#include "base/msg_id.h"
#include "posi/posi_range.h"

namespace tr7 {

// Each asks for a range of position numbers, modal. What the user chose is also the operation's
// range (`PosiFromNo` and `PosiToNo`); nothing where none was chosen: then `RangeCancelled` is True
// and the operation's range is as before.

/// `frmSelectPosiNo2`: all positions, or a range; proposes the loaded range or 1 to 15.
[[nodiscard]] std::optional<PosiRange> AskReadRange();

/// `frmSelectPosiNo3`: a range, the loaded one proposed. With `RangeIsForNew` it also sets
/// `PosiFirstNo` and `PosiLastNo`.
[[nodiscard]] std::optional<PosiRange> AskRange();

/// `frmSelectPosiNo4`: a range within `SyogoFromNo` to `SyogoToNo`; with `overlaps` false it only
/// says that nothing can be compared.
[[nodiscard]] std::optional<PosiRange> AskVerifyRange(bool overlaps);

/// The question about what was chosen, with the range beneath it.
std::string WithRange(MsgId question, const PosiRange& range);

}  // namespace tr7
