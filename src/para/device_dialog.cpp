#include "para/device_dialog.h"

#include "base/scope.h"
#include "device/dev_setting_store.h"
#include "para/para_after_device.h"
#include "para/param_set.h"
#include "para/std_lists.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

void LoadDialog(DeviceView& view) {
  view.cmdDeviceCancel.Visible = DeviceDialog.ShowDevCancel;
  view.cmdDeviceBack.Visible = DeviceDialog.ShowDevBack;
  view.RefuseClose = !DeviceDialog.ShowDevCancel;
  LoadDeviceLists(view);
}

void Leave(DeviceView& view) { view.Visible = false; }

void LeaveWithChoice(DeviceView& view) {
  DeviceDialog.DevCancelled = False;
  Leave(view);
}

/// The wanted axes, after a question when they are others than those in use.
void AskAxes(DeviceView& view) {
  const int count = AxesChosen(view);
  ParaFlags.AxisMask = MaskOfCount(count);
  if (MukoOfCount(count) == AppState.AxisMuko) return;
  if (MsgBox(TwoLines(1151, 1152), MsgButtons::YesNo, MsgIcon::Question, Text(1150)) ==
      MsgAnswer::Yes) {
    TakeChosenAxes(view);
  }
}

void SetInDevice2() {
  AskAxes(frmDevice2);
  TakeShownDevices(frmDevice2);
  LeaveWithChoice(frmDevice2);
}

void Details() {
  OpenParaAfterDevice();
  LeaveWithChoice(frmDevice3);
}

void Back(DeviceView& view) {
  DeviceDialog.DevBackPressed = True;
  Leave(view);
}

void InstallDialog(DeviceView& view) {
  DeviceView* const v = &view;
  InstallDeviceCascade(view);
  view.Load = [v] { LoadDialog(*v); };
  view.cmdDeviceCancel.Click = [v] { Leave(*v); };
  view.cmdDeviceBack.Click = [v] { Back(*v); };
  view.QueryUnload = [v](CloseReason) { return v->RefuseClose || DeviceDialog.DevWriting; };
}

}  // namespace

DeviceAnswer AskDevices(DeviceView& view) {
  if (DeviceDialog.DevDialogActive) return DeviceAnswer::Cancelled;
  DeviceDialog.DevDialogActive = True;
  const ScopeExit inactive([] { DeviceDialog.DevDialogActive = False; });
  DeviceDialog.DevBackPressed = False;
  DeviceDialog.DevCancelled = True;  // until the user has chosen
  ParaFlags.AxisMaskFixed = False;
  ShowViewModal(view);
  // A write has fixed the axes; what the dialogue answers now are axes of its own.
  ParaFlags.AxisMaskFixed = False;
  if (!DeviceDialog.DevCancelled) return DeviceAnswer::Taken;
  LetDevSettingToDevSettei();
  return DeviceDialog.DevBackPressed ? DeviceAnswer::Back : DeviceAnswer::Cancelled;
}

int SelectDeviceForPara() {
  DeviceDialog.ShowDevOptions = True;
  AxesOnTrial axes;
  switch (AskDevices(frmDevice2)) {
    case DeviceAnswer::Cancelled:
      return -1;
    case DeviceAnswer::Back:
      return -2;
    case DeviceAnswer::Taken:
      break;
  }
  if (IniParaFromStd() != 0) return 1;
  axes.Keep();
  return 0;
}

void TakeChosenAxes(DeviceView& view) {
  const int count = AxesChosen(view);
  ShowAxesInUse(view, count);  // an axis that was not ticked among others has a device by now
  AppState.AxisMuko = MukoOfCount(count);
  AppState.AxisCount = static_cast<std::int16_t>(count);
  ParaFlags.AxisMask = MaskOfCount(count);
  ParaFlags.ShownAxisCount = 0;  // the parameter view shows the axes in use again
}

AxisArray<Bool16> MukoOfCount(int count) {
  AxisArray<Bool16> muko;
  for (int axis = 0; axis < kAxes; ++axis) muko[static_cast<std::size_t>(axis)] = axis >= count;
  return muko;
}

std::int16_t MaskOfCount(int count) { return static_cast<std::int16_t>((1 << count) - 1); }

void TakeShownDevices(const DeviceView& view) {
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    DevSettingRecord& device = DevSettei[axis];
    device.Series = "QV";
    if (AppState.AxisMuko[axis]) continue;
    const ShownDevice shown = DeviceShown(view, axis);
    device.Size = shown.Size;
    device.Speed = shown.Speed;
    device.Stroke = shown.Stroke;
    // Meant so: whatever the boxes show, a device chosen here is of the new type and vertical.
    device.NewType = True;
    device.NewTypeWord = "NEW";
    device.Vertical = True;
    device.WithPG = view.chkDevPgUse[axis].Value && device.Series == "QV";
  }
}

AxesOnTrial::AxesOnTrial()
    : muko_(AppState.AxisMuko), count_(AppState.AxisCount), pattern_(AppState.AxisPattern) {}

AxesOnTrial::~AxesOnTrial() {
  if (kept_) return;
  AppState.AxisMuko = muko_;
  AppState.AxisCount = count_;
  AppState.AxisPattern = pattern_;
  LetDevSettingToDevSettei();
}

bool AxesOnTrial::Changed() const { return AppState.AxisMuko != muko_; }

void InstallDeviceDialogs() {
  InstallDialog(frmDevice2);
  InstallDialog(frmDevice3);
  frmDevice2.cmdDeviceSet.Click = SetInDevice2;
  frmDevice3.cmdDeviceSet.Click = [] { LeaveWithChoice(frmDevice3); };
  frmDevice3.cmdSyosai.Click = Details;
}

}  // namespace tr7
