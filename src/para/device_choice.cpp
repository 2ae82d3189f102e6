#include "para/device_choice.h"

#include <algorithm>

#include "device/dev_setting.h"
#include "device/dev_setting_store.h"
#include "device/device_list.h"
#include "forms/frm_main.h"
#include "para/device_dialog.h"
#include "para/device_take.h"
#include "para/param_set.h"
#include "para/std_lists.h"
#include "session/reconcile.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

constexpr int kMsgNotSelected = 4;
constexpr int kMsgSelectAgain = 5;

bool SameDevice(int axis) {
  const DevSettingRecord &now = DevSetting[axis], &shown = DevSettei[axis];
  return !now.NotChosen && now.Size == shown.Size && now.Speed == shown.Speed &&
         now.Stroke == shown.Stroke && now.WithPG == shown.WithPG && now.NewType &&
         ParamSet.ActSize[axis] == shown.Size && ParamSet.ActSpeed[axis] == shown.Speed &&
         ParamSet.ActStroke[axis] == shown.Stroke;
}

/// What the dialogue shows is in use and in the parameters already, as after a write: nothing is
/// set to standard values again.
bool NothingToTake(const ChoiceOnTrial& choice) {
  if (choice.AxesChanged()) return false;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!AppState.AxisMuko[axis] && !SameDevice(axis)) return false;
  }
  return true;
}

int TakeChoice() {
  ChoiceOnTrial choice;
  TakeChosenAxes(frmDevice3);
  TakeShownDevices(frmDevice3);
  if (!NothingToTake(choice)) {
    if (!WarnOfDeviceChange(true)) return -1;
    if (IniParaFromStd() != 0 || !TakeDevicesOfParam()) return 1;
  }
  choice.Keep();
  return 0;
}

void UseStoredDevices() {
  LoadDevSetting();
  for (DevSettingRecord& device : DevSetting) {
    if (device.SeriesOk) device.Series = "QV";
  }
  AppState.StrokePulse.fill(0);  // what was told of other devices
  LetDevSettingToDevSettei();
}

bool SomeListIsMissing() {
  return std::any_of(DevListMissing.begin(), DevListMissing.end(), [](bool gone) { return gone; });
}

void DeviceOnline() {
  const CommandsOff commands_off;
  const BusyScope busy;
  SelectDevice3();
}

}  // namespace

int SelectDevice3() {
  DeviceDialog.ShowDevOptions = DeviceDialog.ShowDevCancel = True;
  DeviceDialog.ShowDevBack = False;
  ParaFlags.OpenParaAfterDevice = False;
  const int result = AskDevices(frmDevice3) == DeviceAnswer::Taken ? TakeChoice() : -1;
  if (result != 0) ParaFlags.OpenParaAfterDevice = False;
  return result;
}

void SelectDevicesAtStart() {
  const CommandsOff commands_off;
  UseStoredDevices();
  bool left_before = false;
  for (;;) {
    const int result = SelectDevice3();
    if (result == 0 || SomeListIsMissing()) return;
    const bool left = result < 0;
    if (left && (left_before || EveryAxisHasADevice())) return;
    left_before = left;
    MsgBox(TwoLines(kMsgNotSelected, kMsgSelectAgain));
  }
}

void InstallDeviceChoice() {
  InstallDeviceDialogs();
  frmMain.mnuSettingDeviceOnline.Click = DeviceOnline;
}

}  // namespace tr7
