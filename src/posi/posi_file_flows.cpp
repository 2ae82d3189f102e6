#include "posi/posi_file_flows.h"

#include <optional>

#include "forms/frm_posi.h"
#include "posi/posi_caption.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_range.h"
#include "posi/range_dialogs.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

std::optional<std::string> AskPath(int title_id) {
  const auto path = AskSavePath(kPosiDataFile, title_id);
  frmPosi.SaveCancelled = !path;
  return path;
}

void TellNotSaved(const PosiFileTrouble& trouble) { MsgBox(WithReason(Text(422), trouble.words)); }

void Save() {
  if (Check_flgdLineNo() != 0 || PosiDataCheckAll() != 0) return;
  const auto path = PosiTableHasFile() ? PosiTablePath() : AskPath(423);
  if (!path) return;
  PosiFileTrouble trouble;
  if (!TryFourTimes([&] { return AttemptOf(SaveFileAs2(*path, trouble), trouble); })) {
    TellNotSaved(trouble);
  }
}

void SaveAs() {
  const WholeRangeAfter whole_range;
  if (Check_flgdLineNo() != 0 || PosiDataCheckAll() != 0) return;
  if (!AskRange() || PosiDataCheck3() != 0 || !AskOk(405)) return;
  const auto path = AskPath(406);
  if (!path) return;
  PosiFileTrouble trouble;
  if (SaveFileAs2(*path, trouble) != 0) TellNotSaved(trouble);
}

}  // namespace

Attempt AttemptOf(int result, const PosiFileTrouble& trouble) {
  if (result == 0) return Attempt::Good;
  return trouble.may_pass ? Attempt::MayPass : Attempt::Useless;
}

void PosidataSaveToFile() {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const PosiGridOff grid_off;
  frmPosi.SaveCancelled = False;
  Save();
}

void PosiDataSaveAs() {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const PosiGridOff grid_off;
  frmPosi.SaveCancelled = False;
  SaveAs();
  FG_InitPos();
}

}  // namespace tr7
