#include "para/device_dialog.h"

#include "base/scope.h"
#include "device/dev_setting_store.h"
#include "para/para_after_device.h"
#include "para/std_lists.h"
#include "state/axes_in_use.h"
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

std::int16_t MaskOf(const AxisArray<Bool16>& muko) {
  return static_cast<std::int16_t>(MaskOfMuko(muko));
}

/// The wanted axes, after a question when they are others than those in use.
void AskAxes(const DeviceView& view) {
  const auto wanted = MukoShown(view);
  ParaFlags.AxisMask = MaskOf(wanted);
  if (wanted == AppState.AxisMuko) return;
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
  ChoiceOnTrial choice;
  switch (AskDevices(frmDevice2)) {
    case DeviceAnswer::Cancelled:
      return -1;
    case DeviceAnswer::Back:
      return -2;
    case DeviceAnswer::Taken:
      break;
  }
  if (IniParaFromStd() != 0) return 1;
  choice.Keep();
  return 0;
}

void TakeChosenAxes(const DeviceView& view) {
  AppState.AxisMuko = MukoShown(view);
  AppState.AxisCount = static_cast<std::int16_t>(AxesInUse().size());
  ParaFlags.AxisMask = MaskOf(AppState.AxisMuko);
  ParaFlags.ShownAxisCount = 0;  // the parameter view shows the axes in use again
}

void TakeShownDevices(const DeviceView& view) {
  for (int axis = 0; axis < kAxes; ++axis) {
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

ChoiceOnTrial::~ChoiceOnTrial() {
  if (kept_) return;
  AppState.AxisMuko = muko_;
  AppState.AxisCount = count_;
  AppState.AxisPattern = pattern_;
  ParaFlags.ShownAxisCount = shown_count_;
  ParamSet = parameters_;
  LetDevSettingToDevSettei();
}

bool ChoiceOnTrial::AxesChanged() const { return AppState.AxisMuko != muko_; }

void InstallDeviceDialogs() {
  InstallDialog(frmDevice2);
  InstallDialog(frmDevice3);
  frmDevice2.cmdDeviceSet.Click = SetInDevice2;
  frmDevice3.cmdDeviceSet.Click = [] { LeaveWithChoice(frmDevice3); };
  frmDevice3.cmdSyosai.Click = Details;
}

}  // namespace tr7
