#include "posi/posi_open.h"

#include <string>

#include "device/dev_setting.h"
#include "device/limits.h"
#include "forms/frm_posi.h"
#include "posi/posi_caption.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_file.h"
#include "posi/posi_file_flows.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_new.h"
#include "posi/posi_range.h"
#include "posi/posi_rebuild.h"
#include "posi/posi_table.h"
#include "posi/recalc.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/file_steps.h"

namespace tr7 {
namespace {

constexpr int kMsgLeftOut = 6458;
constexpr int kMsgRefused = 7195;

/// The first series has the word "QV", which the standard lists go by.
void NameSeries() {
  for (DevSettingRecord& device : DevSetting) {
    if (device.SeriesOk) device.Series = "QV";
  }
}

/// Whoever takes the shown lines for the file's must know which ones are not.
void TellNumbersLeftOut() {
  const std::string numbers = NumbersLeftOut(AppState.FileFirstNo, AppState.FileLastNo);
  if (!numbers.empty()) MsgBox(Text(kMsgLeftOut, numbers));
}

/// Who goes on with the table should know now, not at the save or the write that refuses it.
void TellRefusedLines() {
  const std::string numbers = NumberRuns(RefusedLines(), AppState.PosiFirstNo, AppState.PosiLastNo);
  if (!numbers.empty()) MsgBox(Text(kMsgRefused, numbers));
}

}  // namespace

void ShowPosiStage(FileDevices devices) {
  const PosiRange range{AppState.FileFirstNo, AppState.FileLastNo};
  SetLoadedPosiRange(range);
  SetOperationRange(range);
  NameSeries();
  RecalcLimits();
  PosiStageFillRest();  // by the devices that are in use now
  PosiStageCommit();
  RecalcMmFromPulse();
  FG_HighSyoriStart();
  RebuildPosiView();
  // The file's words tell the age of its own devices, not of those in use instead.
  if (devices == FileDevices::OfFile) ShowFileAges();
}

void PosidataFileOpen() {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const PosiGridOff grid_off;
  if (!MayReplaceTable(kAskSaveBeforeOpen)) return;
  const auto path = AskOpenPath(kPosiDataFile, 364);
  if (!path) TellDone(367);
  if (!path || path->empty()) return;
  DevicesOnTrial trial;
  if (!ReadPosiFileToStage(*path)) return;
  const FileDevices devices = ReconcileFileDevices();
  if (devices == FileDevices::Refused) return;
  trial.Keep();
  TellNumbersLeftOut();
  ShowPosiStage(devices);
  SetPosiTableFile(*path);
  frmPosi.PosiChanged = False;
  TellRefusedLines();
}

}  // namespace tr7
