#include <optional>
#include <string>

#include "base/text_helpers.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "posi/posi_caption.h"
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
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/bulk.h"
#include "steps/record_frames.h"
#include "steps/transfer_scope.h"

namespace tr7 {
namespace {

constexpr int kTimeoutMs = 5000;

std::string& ReplyOf(int number) {
  return PosiTable.PosiRawReply[static_cast<std::size_t>(number - 1)];
}

/// A reply of the right length whose fields make no sense must not become a position.
Outcome ReadLine(int number) {
  std::string& reply = ReplyOf(number);
  const RecordFrame frame{"0RP" + HexPad(number, 3), kPosiReplyLength, kTimeoutMs};
  const Outcome outcome = ReadNamed(frame, reply);
  return outcome != Outcome::Done || IsPosiRecord(reply, number) ? outcome : TellBadData();
}

/// Comments do not travel: those of the loaded positions stay in the PC.
void KeepComments(const PosiRange& range) {
  const auto column = static_cast<std::size_t>(kComment);
  for (int n = range.first; n <= range.last; ++n) {
    const auto number = static_cast<std::size_t>(n);
    PosiTable.PosiStage[column][number] =
        LoadedPosiRange().Holds(n) ? PosiTable.PosiRec[column][number] : Variant(std::string());
  }
}

void ShowReadData(const PosiRange& range) {
  KeepComments(range);
  SetLoadedPosiRange(range);
  PosiStageCommit();
  RecalcMmFromPulse();
  FG_ShowTable();
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
  if (!range || !AskOk(370)) return;
  if (AppState.Offline && ChangeToOnlineFromCommand() != 0) return;
  AppState.CancelRequested = False;
  if (ReconcileDevices(DeviceReconcile::Read) != 0) return;
  const WaitCursorScope wait_cursor;
  frmMain.TimerTusin.Start(2);
  const Outcome outcome = ReadPosidataFromCt(*range);
  if (outcome == Outcome::Stopped) TellDone(425);
  if (outcome == Outcome::Done) ShowReadData(*range);
}

}  // namespace tr7
