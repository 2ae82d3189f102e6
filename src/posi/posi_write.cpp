#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include "base/text_helpers.h"
#include "device/ct_device.h"
#include "link/status_commands.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_format.h"
#include "posi/posi_table.h"
#include "posi/posi_transfer.h"
#include "posi/posi_wire.h"
#include "posi/range_dialogs.h"
#include "posi/result_view.h"
#include "posi/syogo_flags.h"
#include "session/open_port.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"
#include "state/progress.h"
#include "state/text.h"
#include "steps/bulk.h"
#include "steps/held_axes.h"
#include "steps/record_frames.h"
#include "steps/transfer_scope.h"
#include "steps/write_taken.h"

namespace tr7 {
namespace {

constexpr int kMsgStopped = 6456;
constexpr int kMsgStrokeOfCt = 6457;
constexpr int kMsgFillers = 6364;
constexpr int kMsgLine = 6523;
constexpr int kMsgAxis1 = 220;  ///< AXIS2 to AXIS4 follow
constexpr int kTimeoutMs = 5000;
constexpr int kCommitTimeoutMs = 10000;  // the controller writes its flash memory
constexpr int kReplyLength = 8;
constexpr int kCommitReplyLength = 11;
constexpr std::size_t kEcho = 6;  // command and number
constexpr std::size_t kCommitEcho = 3;

bool IsBad(int number) { return PosiTable.PosiLineBad[number]; }

std::string& LineOf(int number) { return PosiTable.PosiRawReply[number - 1]; }

// The bulk write.

void BuildLines(const PosiRange& range) {
  for (int n = range.first; n <= range.last; ++n) {
    if (!IsBad(n)) LineOf(n) = EncodePosiRecord(n);
  }
}

Outcome SendLine(int number) {
  if (IsBad(number)) return Outcome::Done;
  return SendRecord({LineOf(number), kReplyLength, kTimeoutMs, kEcho, 384},
                    Text(kMsgLine, std::to_string(number)));
}

Outcome SendLines(const PosiRange& range, int& next) {
  Bulk bulk(383, range.Count(), Bulk::Cancel::Yes);
  next = range.first;
  const Outcome sent = bulk.Each(range.first, range.last, [&](int number) {
    const Outcome outcome = SendLine(number);
    if (outcome == Outcome::Done) next = number + 1;
    return outcome;
  });
  if (sent == Outcome::Failed) return sent;
  // The controller keeps lines only when it is told to: also those before a cancel.
  const std::string commit = "0WA" + HexPad(range.first, 3) + HexPad(range.last, 3);
  const Outcome stored = SendStore({commit, kCommitReplyLength, kCommitTimeoutMs, kCommitEcho});
  return stored == Outcome::Done ? sent : stored;
}

// The check before it.

using Strokes = AxisArray<std::int32_t>;

/// State, axes and mode as the controller reports them, beside those of the PC.
int ReadCtStateFromCt() { return ReadCtModeAndAxis(); }

/// The controller's strokes in pulses; false when it did not answer sensibly.
bool ReadStrokes(Strokes& StrokeOfCt) {
  ProgressScope progress(Text(378), kAxes, false);
  if (!OpenPortOrTell()) return false;
  if (CtComStart() != 0 || ReadCtStateFromCt() != 0) return false;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!AppState.AxisMuko[axis] && ReadAxisMaxPulse(axis, StrokeOfCt[axis]) != 0) return false;
    // Whatever its stroke, the line holds no more pulses than these.
    StrokeOfCt[axis] = std::min(StrokeOfCt[axis], std::int32_t{kMostPulses});
    progress.Advance();
  }
  return true;
}

/// The grid has just been committed: its pulses are what will be sent, whichever unit it shows.
void FlagBeyond(const PosiRange& range, const Strokes& StrokeOfCt) {
  ClearSyogo();
  for (int n = range.first; n <= range.last; ++n) {
    if (IsBad(n)) continue;
    for (const int axis : AxesInUse()) {
      const std::int32_t pulses = PosiTable.PosiPulse[axis][n];
      if (StrokeOfCt[axis] < pulses) FlagCell(AxisBase(axis) + kPosi, n);
    }
    if (LineIsFlagged(n)) ++PosiTable.SyogoCount;
  }
}

void ShowBeyond(const Strokes& StrokeOfCt) {
  const auto stroke_text = [&](int, int col) {
    return Trim(PosiValueText(col, StrokeOfCt[AxisOfColumn(col)], 1, AppState.CtMode));
  };
  ShowSyogoKekka(false, {stroke_text, Text(kMsgStrokeOfCt)});
}

// The flow.

/// Axes that the controller drives and the PC does not use lose what the controller holds for them:
/// the user decides. True where there are none.
bool MayFillUnusedAxes(const PosiRange& range) {
  const AxisList unused(AppState.AxisPattern & ~AxesInUseMask());
  if (unused.empty()) return true;
  std::string names;
  for (const int axis : unused)
    names += (names.empty() ? "" : ", ") + Text(MsgId::At(kMsgAxis1, axis));
  const std::string numbers = std::to_string(range.first) + "-" + std::to_string(range.last);
  return AskToLose(Text(kMsgFillers, names, numbers), MsgIcon::Warning);
}

bool StateIsHeard() {
  if (ReadCtStateFromCt() == 0) return true;
  Tell(377);
  return false;
}

}  // namespace

Outcome WritePosidataToCt(const PosiRange& range, int& next) {
  BuildLines(range);
  WriteTaken = {};
  const Outcome outcome = SendLines(range, next);
  TusinPortClose();
  return outcome;
}

int PosiKakikomimaeParaCheck(const PosiRange& range) {
  Strokes StrokeOfCt{};
  if (!ReadStrokes(StrokeOfCt)) return 1;
  FlagBeyond(range, StrokeOfCt);
  const bool good = PosiTable.SyogoCount == 0;
  if (!good) ShowBeyond(StrokeOfCt);
  ClearSyogo();
  return good ? 0 : 1;
}

bool GoOnlineAndRecheck() {
  if (!AppState.Offline) return true;
  if (!ChangeToOnlineFromCommand()) return false;
  return PosiDataCheck3() == 0;
}

void PosidataLoadtoCt() {
  EditCMD_Muko();
  const TransferScope transfer;
  const PosiGridOff grid_off;
  const WholeRangeAfter whole_range;
  if (Check_flgdLineNo() != 0 || !PosiDataCheckAll()) return;
  const std::optional<PosiRange> range = AskRange();
  if (!range || PosiDataCheck3() != 0 || !AskToLose(WithRange(375, *range))) return;
  if (!GoOnlineAndRecheck() || !MayFillUnusedAxes(*range)) return;
  AppState.CancelRequested = False;
  if (!AxesStandStill()) return;
  HeldAxes held;
  if (!held.Hold() || !StateIsHeard()) return;
  if (PosiKakikomimaeParaCheck(*range) != 0) return;
  int next = 0;
  const Outcome outcome = WritePosidataToCt(*range, next);
  if (outcome == Outcome::Failed) {
    MsgBox(WriteTakenText());
    return;
  }
  static_cast<void>(held.Release());  // a failure has been told; the positions are stored
  if (outcome == Outcome::Done) {
    TellWriteDone(376);
  } else {
    // The line that the stop has cut short stands in the range that was stored.
    MsgBox(WithReason(Text(kMsgStopped, std::to_string(next)), FailedRecordText()), MsgButtons::Ok,
           MsgIcon::Information);
    WarnOfRepeats();
  }
}

}  // namespace tr7
