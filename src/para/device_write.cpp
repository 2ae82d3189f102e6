#include "para/device_write.h"

#include <cstdint>
#include <string>

#include "device/ct_device.h"
#include "forms/frm_device.h"
#include "forms/frm_posi.h"
#include "para/device_dialog.h"
#include "para/device_take.h"
#include "para/para_transfer_commands.h"
#include "para/param_set.h"
#include "para/std_lists.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/text.h"
#include "steps/held_axes.h"
#include "steps/transfer_scope.h"

namespace tr7 {
namespace {

constexpr int kMsgLineFailed = 377;
constexpr int kMsgPowerCycle = 496;

enum class WriteResult {
  Done,
  Failed,   ///< while the parameters were written
  NotBegun  ///< ended before that, and the user knows why
};

class DialogRests {
 public:
  DialogRests() { Device3CMDBTN_Muko(); }
  ~DialogRests() { Device3CMDBTN_Yuko(); }
  DialogRests(const DialogRests&) = delete;
  DialogRests& operator=(const DialogRests&) = delete;
};

void SwitchDialog(bool on) {
  DeviceView& view = frmDevice3;
  for (Control* control : std::initializer_list<Control*>{
           &view.cmdDeviceCancel, &view.cmdSyosai, &view.cmdDeviceSet, &view.cmdDeviceBack,
           &view.cmdPrmCtWrite, &view.comboAxisSelect}) {
    control->Enabled = on;
  }
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    view.chkAxisEnable[axis].Enabled = on;
    view.framAxis[axis].Enabled = on && view.chkAxisEnable[axis].Value;
  }
}

/// In the millimetre view the loaded positions will follow the devices.
bool WarnBeforeWrite() {
  if (!AppState.DispMmUnit || AppState.PosiFirstNo < 1) return true;
  return MsgBox(TwoLines(1505, 1506), MsgButtons::OkCancel) == MsgAnswer::Ok;
}

/// What the controller says of its axes at rest is held against its own axes. Offline, those of the
/// controller at the other end may never have been asked for.
bool AxesOfCtAreKnown(bool was_offline) {
  if (!was_offline) return true;
  if (ReadCtModeAndAxis() != 0) return false;
  AppState.AxisPattern = AppState.AxisPatternOfCt;
  return true;
}

/// Shows that a command failed, beside what the exchange has shown; true when it did not.
bool GoodOrTold(int result) {
  if (result != 0) MsgBox(Text(kMsgLineFailed));
  return result == 0;
}

/// The axes that the dialogue asks for, here and in the controller.
bool WriteAxes() {
  TakeChosenAxes(frmDevice3);
  ParaFlags.AxisMaskFixed = True;
  return GoodOrTold(WriteAxisPatternToCt(ParaFlags.AxisMask));
}

bool ReadParameters() {
  return ReadCtAxisFromCt() == 0 && ReadParaFromCt() == Outcome::Done && TakeParamTable() == 0;
}

bool MakeParameters() {
  TakeShownDevices(frmDevice3);
  if (IniParaFromStdForWrite() != 0) return false;
  if (CheckParaFromStd() == 0) return true;
  MsgBox(TwoLines(1524, 1525));
  return false;
}

WriteResult WriteHeld() {
  if (!WriteAxes() || !ReadParameters() || !MakeParameters()) return WriteResult::NotBegun;
  return WriteParaToCt() == Outcome::Done ? WriteResult::Done : WriteResult::Failed;
}

/// The controller drives other axes from its next start on; until then its word about axes at rest
/// speaks of those it started with.
void TellWritten(bool other_axes) {
  const std::string power_cycle = other_axes ? "\n\n" + Text(kMsgPowerCycle) : std::string();
  MsgBox(Text(1527) + power_cycle, MsgButtons::Ok, MsgIcon::Information);
}

void TakeWritten() {
  doors.forms->BringToFront(frmPosi);
  TakeDevicesOfParam();  // the standard rows just written name a device for every axis
}

void Write(bool was_offline) {
  if (!AxesOfCtAreKnown(was_offline) || !AxesStandStill()) return;
  HeldAxes held;
  if (!held.Hold()) return;
  AxesOnTrial axes;
  const ParamSetRecord parameters = ParamSet;
  const std::int16_t axes_before = AppState.AxisPattern;
  const WriteResult result = WriteHeld();
  if (result == WriteResult::Done) {
    static_cast<void>(held.Release());  // a failure has been told; the parameters are stored
    axes.Keep();
    TakeWritten();
    TellWritten(AppState.AxisPattern != axes_before);
    return;
  }
  held.GiveUp();
  ParamSet = parameters;
  if (result == WriteResult::Failed) MsgBox(Text(1528));
}

}  // namespace

void Device3CMDBTN_Muko() {
  DeviceDialog.DevWriting = True;
  SwitchDialog(false);
}

void Device3CMDBTN_Yuko() {
  DeviceDialog.DevWriting = False;
  SwitchDialog(true);
}

void PrmCtWrite() {
  const DialogRests dialog_rests;
  const TransferScope transfer;
  if (!WarnBeforeWrite() || OpenPortOrTell() != 0) return;
  const bool was_offline = AppState.Offline;
  LiftOffline();
  Write(was_offline);
  if (was_offline) SetOffline();
}

void InstallDeviceWrite() { frmDevice3.cmdPrmCtWrite.Click = PrmCtWrite; }

}  // namespace tr7
