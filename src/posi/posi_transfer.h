#pragma once

#include "posi/posi_range.h"
#include "steps/outcome.h"

namespace tr7 {

/// Reads a range into `PosiRawReply` and, when all of it has arrived, `PosiStage`.
Outcome ReadPosidataFromCt(const PosiRange& range);

/// The whole read flow of the read button and the menu: questions, range, going online, comparing
/// devices, reading, showing.
void PosidataGetfromCt();

/// Writes the lines of a range that are not bad, then has the controller store the range, also when
/// the cancel button has ended the writing before its last line. `next` is the first number that
/// was not reached.
Outcome WritePosidataToCt(const PosiRange& range, int& next);

/// Holds a range against the controller's own strokes, read for that. 0 go on; 1 a position is
/// beyond one, which the user has seen, or the controller did not answer.
int PosiKakikomimaeParaCheck(const PosiRange& range);

/// The whole write flow of the write button and the menu.
void PosidataLoadtoCt();

/// Goes online when the state is offline. What that may have changed (mode, axes, devices) decides
/// what is good, so the range is checked and committed once more. False when either failed.
[[nodiscard]] bool GoOnlineAndRecheck();

}  // namespace tr7
