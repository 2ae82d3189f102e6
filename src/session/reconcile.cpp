#include "session/reconcile.h"

#include "device/ct_device.h"
#include "device/ct_difference.h"
#include "device/dev_setting.h"
#include "device/limits.h"
#include "device/take_ct_device.h"
#include "link/port.h"
#include "session/followers.h"
#include "session/open_port.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/frame_menus.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/selection.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kMsgModeNotWritten = 5973;

/// First: the controller's values. Second: the PC's.
Selection AskReconcile(MsgId what_id, MsgId prompt_id, const std::string& details,
                       MsgId pc_choice_id, bool may_cancel) {
  return SelectionDialog({.Title = Text(471),
                          .What = what_id,
                          .Prompt = Text(prompt_id),
                          .Choices = {Text(372), Text(pc_choice_id)},
                          .Details = details,
                          .MayCancel = may_cancel});
}

/// Writes the PC's axes; the controller takes them at its next power cycle, so this way ends
/// offline by design.
void WriteAxesOfPc(ProgressScope& progress) {
  const AxisList axes = AxesInUse();
  if (WriteAxisPatternToCt(AxesInUseMask()) != 0) return;
  progress.Set(3);
  AppState.AxisCount = static_cast<std::int16_t>(axes.empty() ? 0 : *(axes.end() - 1) + 1);
  // The mode is not written with them: a power cycle alone would bring the same question again.
  MsgBox(TwoLines(492, 493) + "\n\n" + Text(kMsgModeNotWritten), MsgButtons::Ok,
         MsgIcon::Information);
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
bool TakeAxesAndDevicesOfCt() {
  const auto muko = AppState.AxisMuko;
  const std::int16_t pattern = AppState.AxisPattern;
  if (ReadCtAxisFromCt() != 0 || ReadCtDeviceFromCt() != 0 || !DevicesOfCtCanBeTaken()) {
    AppState.AxisMuko = muko;
    AppState.AxisPattern = pattern;
    return false;
  }
  TakeDevFromCt();
  RecalcLimits();
  return true;
}

void MarkDevicesNotChosen() {
  for (const int axis : AxesInUse()) DevSetting[axis].NotChosen = True;
}

int TakeDevicesOfCt(DeviceReconcile flow) {
  if (!TakeAxesAndDevicesOfCt()) {
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
  const Selection choice = AskReconcile(7187, 490, ModeAndAxesDifference(), 491, false);
  if (choice == Selection::Second) WriteAxesOfPc(progress);
  return choice == Selection::First ? TakeModeOfCt(progress) : 1;
}

int ReconcileDevices(DeviceReconcile flow) {
  if (!OpenPortOrTell()) return 1;
  const int difference = CompareCtDevice();
  if (difference < 0) return 1;
  if (difference == 0) return 0;
  const bool reading = flow == DeviceReconcile::Read;
  if (!reading) WarnOfDeviceChange(false);
  switch (AskReconcile(7188, 371, DeviceDifference(), 373, reading)) {
    case Selection::First:
      return TakeDevicesOfCt(flow);
    case Selection::Second:
      return 0;  // the controller's setting is disregarded
    default:
      return 1;
  }
}

bool WarnOfDeviceChange(bool may_cancel) {
  if (!AppState.DispMmUnit || AppState.PosiFirstNo < 1) return true;
  const std::string warning = TwoLines(408, 409);
  return may_cancel ? AskToLose(warning, MsgIcon::Warning) : MsgBox(warning) == MsgAnswer::Ok;
}

}  // namespace tr7
