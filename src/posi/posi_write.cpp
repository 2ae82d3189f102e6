#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "device/ct_device.h"
#include "link/port.h"
#include "link/posi_commands.h"
#include "link/status_commands.h"
#include "platform/doors.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_format.h"
#include "posi/posi_range.h"
#include "posi/posi_table.h"
#include "posi/posi_transfer.h"
#include "posi/posi_wire.h"
#include "posi/range_dialogs.h"
#include "posi/result_view.h"
#include "posi/syogo_flags.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/progress.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgStopped = 6456;
constexpr int kMsgStrokeOfCt = 6457;
constexpr std::size_t kEchoLength = 6;  // command and number
constexpr int kAllAxes = 0xF;
constexpr int kCheckSteps = kAxes;

bool IsBad(int number) { return PosiTable.PosiLineBad[static_cast<std::size_t>(number)]; }

std::string& LineOf(int number) {
  return PosiTable.PosiRawReply[static_cast<std::size_t>(number - 1)];
}

// The bulk write.

void BuildLines() {
  for (int n = AppState.PosiFromNo; n <= AppState.PosiToNo; ++n) {
    if (!IsBad(n)) LineOf(n) = EncodePosiRecord(n);
  }
}

/// Sends one line. The user has been told of a failure.
int SendLine(const std::string& line) {
  std::string reply;
  const TusinOutcome outcome = WritePosiRecordToCt(line, reply);
  if (outcome == TusinOutcome::Withdrawn) return kTransferStopped;
  if (outcome != TusinOutcome::Good) {
    MsgBox(Text(384));
    return kTransferFailed;
  }
  if (reply.substr(0, kEchoLength) == line.substr(0, kEchoLength)) return kTransferDone;
  TusinPortClose();
  return TellBadData();
}

/// Sends the range up to its end or to the cancel button: `next` is the first number that was not
/// reached. False on a failure.
bool SendLines(int& next) {
  ProgressScope progress(Text(383), AppState.PosiToNo - AppState.PosiFromNo + 1, true);
  for (next = AppState.PosiFromNo; next <= AppState.PosiToNo && !AppState.CancelRequested; ++next) {
    const int result = IsBad(next) ? kTransferDone : SendLine(LineOf(next));
    if (result == kTransferFailed) return false;
    if (result == kTransferStopped) break;
    progress.Advance();
  }
  // The controller keeps lines only when it is told to: also those before a cancel.
  return PosiWriteCommitToCt(AppState.PosiFromNo, AppState.PosiToNo) == 0;
}

int WriteRange(int& next) {
  BuildLines();
  const bool sent = SendLines(next);
  TusinPortClose();
  if (!sent) return kTransferFailed;
  return next <= AppState.PosiToNo ? kTransferStopped : kTransferDone;
}

// The check before it.

using Strokes = std::array<std::int32_t, kAxes>;

/// The controller's stroke in pulses of an axis; false when it did not answer sensibly.
bool ReadStroke(int axis, std::int32_t& pulses) {
  if (ReadAxisMaxPulse(axis, pulses) != 0) return false;
  // Whatever its stroke, the line holds no more pulses than these.
  pulses = std::min(pulses, std::int32_t{kMostPulses});
  return true;
}

/// State, axes and mode as the controller reports them, beside those of the PC.
int ReadCtStateFromCt() { return ReadCtModeAndAxis(); }

bool ReadStrokes(Strokes& StrokeOfCt) {
  ProgressScope progress(Text(378), kCheckSteps, false);
  if (OpenPortOrTell() != 0) return false;
  if (CtComStart() != 0 || ReadCtStateFromCt() != 0) return false;
  for (int axis = 0; axis < kAxes; ++axis) {
    const auto index = static_cast<std::size_t>(axis);
    if (!AppState.AxisMuko[index] && !ReadStroke(axis, StrokeOfCt[index])) return false;
    progress.Advance();
  }
  return true;
}

/// The grid has just been committed: its pulses are what will be sent, whichever unit it shows.
void FlagBeyond(const Strokes& StrokeOfCt) {
  ClearSyogo();
  for (int n = AppState.PosiFromNo; n <= AppState.PosiToNo; ++n) {
    if (IsBad(n)) continue;
    for (int axis = 0; axis < kAxes; ++axis) {
      const auto index = static_cast<std::size_t>(axis);
      const std::int32_t pulses = PosiTable.PosiPulse[index][static_cast<std::size_t>(n)];
      if (!AppState.AxisMuko[index] && StrokeOfCt[index] < pulses) {
        FlagCell(AxisBase(axis) + kPosi, n);
      }
    }
    if (LineIsFlagged(n)) ++PosiTable.SyogoCount;
  }
}

void ShowBeyond(const Strokes& StrokeOfCt) {
  const auto stroke_text = [&](int, int col) {
    const auto axis = static_cast<std::size_t>(AxisOfColumn(col));
    return Trim(PosiValueText(col, StrokeOfCt[axis], 1, AppState.CtMode));
  };
  ShowSyogoKekka(false, {stroke_text, Text(kMsgStrokeOfCt)});
}

// The flow.

/// False: the flow ends before anything is sent.
bool AskWhatToWrite() {
  if (Check_flgdLineNo() != 0 || PosiDataCheckAll() != 0) return false;
  if (!AskRange() || PosiDataCheck3() != 0) return false;
  return MsgBox(Text(375), MsgButtons::OkCancel, MsgIcon::Question) == MsgAnswer::Ok;
}

bool AxesStandStill() {
  const int rest = ReadAlarmFromCt();
  if (rest == 0) MsgBox(Text(424));
  return rest == 1;
}

/// While axes are held, the controller's inputs start no move.
int HoldAxes() { return CtControlModeSet(1, 0, kAllAxes); }
int ReleaseAxes() { return CtControlModeSet(0, 0, 0); }

bool HoldForWriting() {
  if (HoldAxes() == 0 && ReadCtStateFromCt() == 0) return true;
  MsgBox(Text(377));
  return false;
}

/// A failure that left the line healthy must not leave the axes held; after a refusal nothing more
/// is sent.
void ReleaseAfterFailure() {
  if (!AppState.Offline && !AppState.AlarmOn) ReleaseAxes();
}

void TellWritten(int result, int next) {
  if (result == kTransferStopped) {
    MsgBox(Text(kMsgStopped, std::to_string(next)), MsgButtons::Ok, MsgIcon::Information);
  } else {
    MsgBox(Text(376), MsgButtons::Ok, MsgIcon::Information);
  }
}

void Write() {
  if (!AxesStandStill()) return;
  int next = 0;
  const bool held = HoldForWriting();
  const int result = held && PosiKakikomimaeParaCheck() == 0 ? WriteRange(next) : kTransferFailed;
  if (result == kTransferFailed) {
    ReleaseAfterFailure();
    return;
  }
  if (ReleaseAxes() != 0) MsgBox(Text(377));
  TellWritten(result, next);
}

}  // namespace

int WritePosidataToCt() {
  int next = 0;
  return WriteRange(next);
}

int PosiKakikomimaeParaCheck() {
  Strokes StrokeOfCt{};
  if (!ReadStrokes(StrokeOfCt)) return 1;
  FlagBeyond(StrokeOfCt);
  const bool good = PosiTable.SyogoCount == 0;
  if (!good) ShowBeyond(StrokeOfCt);
  ClearSyogo();
  return good ? 0 : 1;
}

int GoOnlineAndRecheck() {
  if (!AppState.Offline) return 0;
  if (ChangeToOnlineFromCommand() != 0) return 1;
  return PosiDataCheck3();
}

void PosidataLoadtoCt() {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const BusyScope busy;
  const PosiGridOff grid_off;
  const WholeRangeAfter whole_range;
  const PortClosedAfter port_closed;
  AppState.CancelRequested = False;
  if (!AskWhatToWrite() || GoOnlineAndRecheck() != 0) return;
  AppState.CancelRequested = False;
  Write();
}

}  // namespace tr7
