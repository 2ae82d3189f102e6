#include "posi/posi_open.h"

#include <cstdint>
#include <string>

#include "device/dev_setting.h"
#include "device/limits.h"
#include "forms/frm_posi.h"
#include "posi/file_devices.h"
#include "posi/posi_caption.h"
#include "posi/posi_commands.h"
#include "posi/posi_file.h"
#include "posi/posi_file_flows.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_new.h"
#include "posi/posi_rebuild.h"
#include "posi/posi_table.h"
#include "posi/recalc.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgSaveBeforeOpen = 6450;
constexpr int kMsgLeftOut = 6458;

/// A path; empty when the flow ends.
std::string AskPath() {
  const auto path = AskOpenPath(364);
  if (!path) MsgBox(Text(367), MsgButtons::Ok, MsgIcon::Information);
  return path.value_or(std::string());
}

/// True when the stage holds a file of the present mode; otherwise the user knows why not.
bool ReadIntoStage(const std::string& path) {
  PosiFileTrouble trouble;
  const auto read = [&](PosiFileTrouble& why) {
    AppState.PosiFileNotOurs = False;
    return ReadPosiFile(path, why);
  };
  if (TryFourTimes(read, trouble) != 0) {
    MsgBox(WithReason(484, trouble));
    return false;
  }
  // A file of another kind has been told. The flow goes on with what was there before, and that
  // is on show as it is, with what the user has typed into it.
  if (AppState.PosiFileNotOurs) return false;
  if (AppState.CtMode == AppState.FileIsPrgMode) return true;
  MsgBox(TwoLines(330, 331));
  return false;
}

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

/// The stage becomes the table, in the layout of the axes in use.
void ShowStage(FileDevices devices) {
  AppState.PosiFromNo = AppState.PosiFirstNo = AppState.FileFirstNo;
  AppState.PosiToNo = AppState.PosiLastNo = AppState.FileLastNo;
  AppState.PosiCount = static_cast<std::int16_t>(AppState.PosiLastNo - AppState.PosiFirstNo + 1);
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

void Open() {
  if (!MayReplaceTable(kMsgSaveBeforeOpen)) return;
  const std::string path = AskPath();
  if (path.empty()) return;
  DevicesOnTrial trial;
  if (!ReadIntoStage(path)) return;
  const FileDevices devices = ReconcileFileDevices();
  if (devices == FileDevices::Refused) return;
  trial.Keep();
  TellNumbersLeftOut();
  ShowStage(devices);
  SetPosiTableFile(path);
  frmPosi.PosiChanged = False;
}

}  // namespace

void PosidataFileOpen() {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const PosiGridOff grid_off;
  Open();
}

}  // namespace tr7
