#include "session/reconcile.h"

#include "device/ct_device.h"
#include "device/dev_setting.h"
#include "device/limits.h"
#include "device/take_ct_device.h"
#include "link/port.h"
#include "session/followers.h"
#include "state/app_state.h"
#include "state/frame_menus.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/selection.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

/// 0 the controller's values, 1 the PC's, -1 no answer.
int AskReconcile(MsgId prompt_id, MsgId pc_choice_id, bool may_cancel) {
  return SelectionDialog(Text(471), Text(prompt_id), Text(372), Text(pc_choice_id),
                         may_cancel ? 0 : 1, 0, 0);
}

/// The PC's axes in use as a mask, and the last of them, 1 to 4 (0: none).
int PcAxisMask(int& last_axis) {
  int mask = 0;
  last_axis = 0;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (AppState.AxisMuko[static_cast<std::size_t>(axis)]) continue;
    mask |= 1 << axis;
    last_axis = axis + 1;
  }
  return mask;
}

/// Writes the PC's axes; the controller takes them at its next power cycle, so this way ends
/// offline by design.
void WriteAxesOfPc(ProgressScope& progress) {
  int last_axis = 0;
  const int mask = PcAxisMask(last_axis);
  if (WriteAxisPatternToCt(mask) != 0) return;
  progress.Set(3);
  AppState.AxisCount = static_cast<std::int16_t>(last_axis);
  MsgBox(TwoLines(492, 493), MsgButtons::Ok, MsgIcon::Information);
}

int TakeModeOfCt(ProgressScope& progress) {
  if (ReadCtModeAndAxis() != 0) return 1;
  TakeModeAndAxesOfCt();
  progress.Set(3);
  RecalcLimits();  // an axis that has come into use had none
  DispControlerMode();
  ChangeMenuDisp(AppState.CtMode);
  AllViewsLayoutChanged();
  return 0;
}

/// Reads axes and devices and takes both, or neither: axes without their devices would be a state
/// that is neither the PC's nor the controller's.
int TakeAxesAndDevicesOfCt() {
  const auto muko = AppState.AxisMuko;
  const std::int16_t pattern = AppState.AxisPattern;
  if (ReadCtAxisFromCt() != 0 || ReadCtDeviceFromCt() != 0) {
    AppState.AxisMuko = muko;
    AppState.AxisPattern = pattern;
    return 1;
  }
  TakeDevFromCt();
  RecalcLimits();
  return 0;
}

void MarkDevicesNotChosen() {
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    if (!AppState.AxisMuko[axis]) DevSetting[axis].NotChosen = True;
  }
}

int TakeDevicesOfCt(DeviceReconcile flow) {
  if (TakeAxesAndDevicesOfCt() != 0) {
    if (flow == DeviceReconcile::Read) MarkDevicesNotChosen();
    return 1;
  }
  SetOnline();
  DispControlerMode();
  ChangeMenuDisp(AppState.CtMode);
  (flow == DeviceReconcile::Read ? Followers.MmFollowsPulses : Followers.PositionsFollowDevices)();
  AllViewsOnlineChanged();
  return 0;
}

}  // namespace

void TakeModeAndAxesOfCt() {
  AppState.AxisPattern = AppState.AxisPatternOfCt;
  AppState.CtMode = AppState.CtModeOfCt;
  AppState.AxisMuko = AppState.AxisMukoOfCt;
}

int ReconcileMode(ProgressScope& progress) {
  const int difference = CompareCtModeAndAxis();
  if (difference < 0) return 1;
  if (difference < 2) return 0;  // axes alone: the device dialogue asks about them
  const int choice = AskReconcile(490, 491, false);
  if (choice == 1) WriteAxesOfPc(progress);
  return choice == 0 ? TakeModeOfCt(progress) : 1;
}

int ReconcileDevices(DeviceReconcile flow) {
  const int difference = CompareCtDevice();
  if (difference < 0) return 1;
  if (difference == 0) return 0;
  const bool reading = flow == DeviceReconcile::Read;
  if (!reading) WarnOfDeviceChange(false);
  const int choice = AskReconcile(371, 373, reading);
  if (choice < 0) return 1;
  if (choice == 1) return 0;  // the controller's setting is disregarded
  return TakeDevicesOfCt(flow);
}

bool WarnOfDeviceChange(bool may_cancel) {
  if (!AppState.DispMmUnit || AppState.PosiFirstNo < 1) return true;
  const MsgButtons buttons = may_cancel ? MsgButtons::OkCancel : MsgButtons::Ok;
  return MsgBox(TwoLines(408, 409), buttons) == MsgAnswer::Ok;
}

}  // namespace tr7
