#include <algorithm>
#include <optional>
#include <string>

#include "base/text_helpers.h"
#include "device/device_texts.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "posi/posi_caption.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_new.h"
#include "posi/posi_table.h"
#include "posi/posi_transfer.h"
#include "posi/posi_wire.h"
#include "posi/range_dialogs.h"
#include "posi/recalc.h"
#include "session/reconcile.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/bulk.h"
#include "steps/record_frames.h"
#include "steps/transfer_scope.h"

namespace tr7 {
namespace {

constexpr int kMsgCommentsStay = 6464;
constexpr int kTimeoutMs = 5000;

std::string& ReplyOf(int number) { return PosiTable.PosiRawReply[number - 1]; }

/// A reply of the right length whose fields make no sense must not become a position.
Outcome ReadLine(int number) {
  std::string& reply = ReplyOf(number);
  const RecordFrame frame{"0RP" + HexPad(number, 3), kPosiReplyLength, kTimeoutMs};
  const Outcome outcome = ReadNamed(frame, reply);
  return outcome != Outcome::Done || IsPosiRecord(reply, number) ? outcome : TellBadData();
}

/// True when a loaded position has a comment, and the one that has come in is another move.
bool CommentsOther(int number) {
  if (TextOf(PosiTable.PosiRec[kComment][number]).empty()) return false;
  for (const int axis : AxesInUse()) {
    for (const int field : {kWay, kPosi}) {
      const int col = AxisBase(axis) + field;
      const double held = ValueOf(PosiTable.PosiRec[col][number]);
      if (held != ValueOf(PosiTable.PosiStage[col][number])) return true;
    }
  }
  return false;
}

/// Comments that would stand beside other positions than they were written for are the user's to
/// judge. The others stay unasked.
bool AskWhetherCommentsStay() {
  const int first = std::max(AppState.PosiFirstNo, AppState.PosiFromNo);
  const int last = std::min(AppState.PosiLastNo, AppState.PosiToNo);
  int others = 0;
  for (int n = std::max(first, 1); n <= last; ++n) {
    if (CommentsOther(n)) ++others;
  }
  return others == 0 || AskNoToLose(Text(kMsgCommentsStay, std::to_string(others)));
}

/// Comments do not travel: those of the loaded positions stay in the PC.
void KeepComments(const PosiRange& range) {
  const bool stay = AskWhetherCommentsStay();
  for (int n = range.first; n <= range.last; ++n) {
    PosiTable.PosiStage[kComment][n] = stay && LoadedPosiRange().Holds(n)
                                           ? PosiTable.PosiRec[kComment][n]
                                           : Variant(std::string());
  }
}

void ShowReadData(const PosiRange& range) {
  KeepComments(range);
  SetLoadedPosiRange(range);
  PosiStageCommit();
  RecalcMmFromPulse();
  FG_ShowTable();
  DeviceTextHyoji();  // a file's word on the age of its devices goes with the file
  SetPosiTableName(Text(374));
  frmPosi.PosiChanged = False;
}

}  // namespace

Outcome ReadPosidataFromCt(const PosiRange& range) {
  const Outcome outcome =
      Bulk(368, range.Count(), Bulk::Cancel::Yes).Each(range.first, range.last, ReadLine);
  TusinPortClose();
  if (outcome != Outcome::Done) return outcome;
  if (AppState.CancelRequested) return Outcome::Stopped;
  for (int n = range.first; n <= range.last; ++n) DecodePosiRecord(ReplyOf(n), n);
  frmPosi.ReadDone = True;
  return Outcome::Done;
}

void PosidataGetfromCt() {
  EditCMD_Muko();
  const TransferScope transfer;
  const PosiGridOff grid_off;
  const WholeRangeAfter whole_range;
  if (!MayReplaceTable(369)) return;
  AppState.ProgressWriting = True;
  const std::optional<PosiRange> range = AskReadRange();
  if (!range || !AskOk(WithRange(370, *range))) return;
  if (AppState.Offline && !ChangeToOnlineFromCommand()) return;
  AppState.CancelRequested = False;
  if (ReconcileDevices(DeviceReconcile::Read) != 0) return;
  if (!AllAxesConvert())
    return;  // what cannot be converted is not shown, here as on opening a file
  const WaitCursorScope wait_cursor;
  const Outcome outcome = ReadPosidataFromCt(*range);
  if (outcome == Outcome::Stopped) TellDone(425);
  if (outcome == Outcome::Done) ShowReadData(*range);
}

}  // namespace tr7
