#include <algorithm>
#include <string>

#include "device/device_texts.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "link/port.h"
#include "link/posi_commands.h"
#include "posi/posi_caption.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_new.h"
#include "posi/posi_range.h"
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
#include "state/progress.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgCommentsStay = 6464;

/// Reads the range's lines; false on a failure, which the exchange has told.
bool ReadLines() {
  ProgressScope progress(Text(368), AppState.PosiToNo - AppState.PosiFromNo + 1, true);
  for (int n = AppState.PosiFromNo; n <= AppState.PosiToNo && !AppState.CancelRequested; ++n) {
    std::string reply;
    if (ReadPosiRecordFromCt(n, reply) != TusinOutcome::Good) return false;
    PosiTable.PosiRawReply[static_cast<std::size_t>(n - 1)] = reply;
    progress.Advance();
  }
  return true;
}

/// A reply of the right length whose fields make no sense must not become a position.
bool DecodeLines() {
  for (int n = AppState.PosiFromNo; n <= AppState.PosiToNo; ++n) {
    if (DecodePosiRecord(PosiTable.PosiRawReply[static_cast<std::size_t>(n - 1)], n)) continue;
    MsgBox(TwoLines(384, 385));
    return false;
  }
  return true;
}

/// What the user wants read. False: the flow ends.
bool AskWhatToRead() {
  if (!MayReplaceTable(369)) return false;
  AppState.ProgressWriting = True;
  if (!AskReadRange()) return false;
  return MsgBox(Text(370), MsgButtons::OkCancel, MsgIcon::Question) == MsgAnswer::Ok;
}

/// True when a loaded position has a comment, and the one that has come in is another move.
bool CommentsOther(std::size_t number) {
  if (TextOf(PosiTable.PosiRec[kComment][number]).empty()) return false;
  for (const int axis : {0, 1, 2, 3}) {
    if (AppState.AxisMuko[static_cast<std::size_t>(axis)]) continue;
    for (const int field : {kWay, kPosi}) {
      const auto col = static_cast<std::size_t>(AxisBase(axis) + field);
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
    if (CommentsOther(static_cast<std::size_t>(n))) ++others;
  }
  return others == 0 || MsgBox(Text(kMsgCommentsStay, std::to_string(others)), MsgButtons::YesNo,
                               MsgIcon::Question) != MsgAnswer::No;
}

/// Comments do not travel: those of the loaded positions stay in the PC.
void KeepComments() {
  const auto column = static_cast<std::size_t>(kComment);
  const bool stay = AskWhetherCommentsStay();
  for (int n = AppState.PosiFromNo; n <= AppState.PosiToNo; ++n) {
    const auto number = static_cast<std::size_t>(n);
    const bool loaded = stay && n >= AppState.PosiFirstNo && n <= AppState.PosiLastNo;
    PosiTable.PosiStage[column][number] =
        loaded ? PosiTable.PosiRec[column][number] : Variant(std::string());
  }
}

void ShowReadData() {
  KeepComments();
  AppState.PosiFirstNo = AppState.PosiFromNo;
  AppState.PosiLastNo = AppState.PosiToNo;
  AppState.PosiCount = static_cast<std::int16_t>(AppState.PosiLastNo - AppState.PosiFirstNo + 1);
  PosiStageCommit();
  RecalcMmFromPulse();
  FG_ShowTable();
  DeviceTextHyoji();  // a file's word on the age of its devices goes with the file
  SetPosiTableName(Text(374));
  frmPosi.PosiChanged = False;
}

void ReadAndShow() {
  const WaitCursorScope wait_cursor;
  const int result = ReadPosidataFromCt();
  if (result == kTransferStopped) MsgBox(Text(425), MsgButtons::Ok, MsgIcon::Information);
  if (result == kTransferDone) ShowReadData();
}

}  // namespace

int ReadPosidataFromCt() {
  const bool read = ReadLines();
  TusinPortClose();
  if (!read) return FailedOrStopped();
  if (AppState.CancelRequested) return kTransferStopped;
  if (!DecodeLines()) return kTransferFailed;
  frmPosi.ReadDone = True;
  return kTransferDone;
}

void PosidataGetfromCt() {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const BusyScope busy;
  const PosiGridOff grid_off;
  const WholeRangeAfter whole_range;
  const PortClosedAfter port_closed;
  AppState.CancelRequested = False;
  if (!AskWhatToRead()) return;
  if (AppState.Offline && ChangeToOnlineFromCommand() != 0) return;
  AppState.CancelRequested = False;
  // Positions that cannot be converted are not shown, here as on opening a file.
  if (ReconcileDevices(DeviceReconcile::Read) == 0 && AllAxesConvert()) ReadAndShow();
}

}  // namespace tr7
