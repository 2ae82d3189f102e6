#include "posi/posi_new.h"

#include <cstdint>

#include "device/device_texts.h"
#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "posi/posi_caption.h"
#include "posi/posi_commands.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_table.h"
#include "posi/range_dialogs.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/text.h"
#include "steps/file_steps.h"

namespace tr7 {
namespace {

constexpr int kMsgSaveBeforeNew = 5243;
constexpr std::int16_t kProposedFirst = 1;
constexpr std::int16_t kProposedLast = 15;

/// True when the user gave a range; the loaded range is as before otherwise.
bool AskNewRange() {
  const std::int16_t first = AppState.PosiFirstNo, last = AppState.PosiLastNo;
  AppState.RangeIsForNew = True;
  AppState.PosiFirstNo = kProposedFirst;
  AppState.PosiLastNo = kProposedLast;
  const bool chosen = AskRange().has_value();
  AppState.RangeIsForNew = False;
  if (chosen) return true;
  AppState.RangeCancelled = False;
  AppState.PosiFirstNo = first;
  AppState.PosiLastNo = last;
  return false;
}

}  // namespace

bool MayReplaceTable(MsgId question_id) {
  const auto save = [] {
    frmPosi.Commands.Save();
    return !frmPosi.PosiChanged;
  };
  return !frmPosi.PosiChanged || MayLoseUnsaved(question_id, save);
}

void SinkiSakusei() {
  const CommandsOff commands_off;
  EditCMD_Muko();
  if (!MayReplaceTable(kMsgSaveBeforeNew) || !AskNewRange()) return;
  AppState.PosiCount = static_cast<std::int16_t>(AppState.PosiLastNo - AppState.PosiFirstNo + 1);
  PosiTableInit();
  FG_ShowTable();
  DeviceTextHyoji();  // a file's word on the age of its devices goes with the file
  frmPosi.PosiChanged = False;
  SetPosiTableName(Text(213));
  doors.forms->SetFocus(frmPosi.flgdData);
}

}  // namespace tr7
