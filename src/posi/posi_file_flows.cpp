#include "posi/posi_file_flows.h"

#include <optional>

#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "posi/posi_caption.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_range.h"
#include "posi/range_dialogs.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/wait.h"

namespace tr7 {
namespace {

constexpr int kTries = 4;
constexpr int kPauseMs = 100;

std::optional<std::string> AskSavePath(MsgId title_id) {
  const auto path = doors.forms->FileDialog({.Save = true,
                                             .Title = Text(title_id),
                                             .Filter = Text(351),
                                             .ProposedName = Text(407),
                                             .DefaultExtension = "qvd",
                                             .OverwritePrompt = true});
  frmPosi.SaveCancelled = !path || path->empty();
  return frmPosi.SaveCancelled ? std::nullopt : path;
}

void Save() {
  if (Check_flgdLineNo() != 0 || PosiDataCheckAll() != 0) return;
  const auto path = PosiTableHasFile() ? PosiTablePath() : AskSavePath(423);
  if (!path) return;
  PosiFileTrouble trouble;
  const auto save = [&](PosiFileTrouble& why) { return SaveFileAs2(*path, why); };
  if (TryFourTimes(save, trouble) != 0) MsgBox(WithReason(422, trouble));
}

/// The range to save, checked. False: the flow ends.
bool AskWhatToSave() {
  if (Check_flgdLineNo() != 0 || PosiDataCheckAll() != 0) return false;
  if (!AskRange() || PosiDataCheck3() != 0) return false;
  return MsgBox(Text(405), MsgButtons::OkCancel, MsgIcon::Question) == MsgAnswer::Ok;
}

void SaveAs() {
  const WholeRangeAfter whole_range;
  if (!AskWhatToSave()) return;
  const auto path = AskSavePath(406);
  if (!path) return;
  PosiFileTrouble trouble;
  if (SaveFileAs2(*path, trouble) != 0) MsgBox(WithReason(422, trouble));
}

}  // namespace

std::optional<std::string> AskOpenPath(MsgId title_id) {
  FileDialogCall call;
  call.Title = Text(title_id);
  call.Filter = Text(351);
  call.DefaultExtension = "qvd";
  return doors.forms->FileDialog(call);
}

int TryFourTimes(const std::function<int(PosiFileTrouble&)>& attempt, PosiFileTrouble& trouble) {
  for (int tries = 1;; ++tries) {
    if (attempt(trouble) == 0) return 0;
    if (!trouble.may_pass || tries == kTries) return 1;
    TusinWaitMs(kPauseMs);
  }
}

std::string WithReason(MsgId message_id, const PosiFileTrouble& trouble) {
  return trouble.words.empty() ? Text(message_id) : Text(message_id) + "\n\n" + trouble.words;
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
