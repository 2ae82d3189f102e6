#pragma once

#include "link/transfer.h"

namespace tr7 {

/// Reads `PosiFromNo` to `PosiToNo` into `PosiRawReply` and, when all have arrived, `PosiStage`.
/// 0 done, 1 failure (the user has been told), 2 stopped by the cancel button.
int ReadPosidataFromCt();

/// The whole read flow of the read button and the menu: questions, range, going online, comparing
/// devices, reading, showing.
void PosidataGetfromCt();

/// Writes the lines of `PosiFromNo` to `PosiToNo` that are not bad, then has the controller store
/// the range, also when the cancel button has ended the writing before its last line. 0 done, 1
/// failure (the user has been told), 2 stopped by the cancel button.
int WritePosidataToCt();

/// Holds the range against the controller's own strokes, read for that. 0 go on; 1 a position is
/// beyond one, which the user has seen, or the controller did not answer.
int PosiKakikomimaeParaCheck();

/// The whole write flow of the write button and the menu.
void PosidataLoadtoCt();

/// Goes online when the state is offline. What that may have changed (mode, axes, devices) decides
/// what is good, so the range is checked and committed once more. 0 or 1.
int GoOnlineAndRecheck();

}  // namespace tr7
