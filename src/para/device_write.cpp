#include "para/device_write.h"

#include <cstdint>
#include <string>

#include "device/ct_device.h"
#include "forms/frm_device.h"
#include "forms/frm_posi.h"
#include "link/tusin_wait.h"
#include "para/device_dialog.h"
#include "para/device_take.h"
#include "para/para_check.h"
#include "para/para_transfer_commands.h"
#include "para/param_set.h"
#include "para/std_lists.h"
#include "platform/doors.h"
#include "session/open_port.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/file_kind.h"
#include "state/message_box.h"
#include "state/online.h"
#include "state/text.h"
#include "steps/held_axes.h"
#include "steps/transfer_scope.h"
#include "steps/write_taken.h"

namespace tr7 {
namespace {

constexpr int kMsgLineFailed = 377;
constexpr int kMsgPowerCycle = 496;
constexpr int kMsgLeftInMemory = 6338;

enum class WriteResult {
  Done,
  Failed,   ///< the line, while the parameters were written
  Cut,      ///< the line, when the axes may have been there and no parameter was
  Refused,  ///< the controller has nothing new but, where a value does not fit, the axes
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
  for (int axis = 0; axis < kAxes; ++axis) {
    view.chkAxisEnable[axis].Enabled = on;
    view.framAxis[axis].Enabled = on && view.chkAxisEnable[axis].Value;
  }
}

/// In the millimetre view the loaded positions will follow the devices.
bool WarnBeforeWrite() {
  if (!AppState.DispMmUnit || AppState.PosiFirstNo < 1) return true;
  return AskToLose(TwoLines(1505, 1506), MsgIcon::Warning);
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

bool FitOrTold(bool fit) {
  if (!fit) MsgBox(TwoLines(1524, 1525));
  return fit;
}

/// The axes and devices that the dialogue asks for, with all that can be known without the line:
/// the lists are there, they hold the devices, and their values fit. Changes nothing.
bool ParametersCanBeMade() {
  const ChoiceOnTrial choice;
  TakeChosenAxes(frmDevice3);
  TakeShownDevices(frmDevice3);
  if (IniParaFromStdForWrite() != 0) return false;
  ParamSet.OneAxis = ParaFlags.AxisMask;
  return FitOrTold(CheckStdRows() && ParaRowInRange(ParamSet, kRowOneAxis, 0));
}

/// The axes that the dialogue asks for, here and in the controller.
bool WriteAxes(TusinSent& sent) {
  TakeChosenAxes(frmDevice3);
  ParaFlags.AxisMaskFixed = True;
  return GoodOrTold(WriteAxisPatternToCt(ParaFlags.AxisMask, &sent));
}

/// The controller's own parameters with the standard ones over them.
bool MakeParameters() {
  if (!FitOrTold(TakeParamTable() == 0)) return false;
  TakeShownDevices(frmDevice3);
  return IniParaFromStdForWrite() == 0 && FitOrTold(CheckParaFromStd() == 0);
}

WriteResult WriteHeld() {
  WriteTaken = {};
  TusinSent axes_sent;
  if (!WriteAxes(axes_sent)) {
    return axes_sent.TookNothing() ? WriteResult::Refused : WriteResult::Cut;
  }
  if (ReadCtAxisFromCt() != 0 || ReadParaFromCt() != Outcome::Done) return WriteResult::Cut;
  if (!MakeParameters()) return WriteResult::Refused;
  return WriteParaToCt() == Outcome::Done ? WriteResult::Done : WriteResult::Failed;
}

/// Axes that no parameters have followed must not wait in the controller's memory for the next flow
/// that stores it.
WriteResult PutAxesBack(WriteResult result, std::int16_t axes_before) {
  if (result != WriteResult::Refused || AppState.AxisPattern == axes_before) return result;
  return GoodOrTold(WriteAxisPatternToCt(axes_before)) ? result : WriteResult::Cut;
}

/// What the controller may hold after the line has failed.
void TellWhatIsLeft(WriteResult result, bool other_axes) {
  const std::string left = Text(kMsgLeftInMemory, std::to_string(ParaFlags.AxisMask));
  if (result == WriteResult::Failed) MsgBox(WithReason(Text(1528), left));
  if (result == WriteResult::Cut && other_axes) MsgBox(left);
}

/// The controller drives other axes from its next start on; until then its word about axes at rest
/// speaks of those it started with.
void TellWritten(bool other_axes) {
  const std::string power_cycle = other_axes ? "\n\n" + Text(kMsgPowerCycle) : std::string();
  MsgBox(Text(1527) + power_cycle, MsgButtons::Ok, MsgIcon::Information);
  WarnOfRepeats();
}

void TakeWritten() {
  doors.forms->BringToFront(frmPosi);
  static_cast<void>(
      TakeDevicesOfParam());  // the standard rows just written name a device for every axis
}

void Write(bool was_offline) {
  if (!AxesOfCtAreKnown(was_offline) || !AxesStandStill()) return;
  HeldAxes held;
  if (!held.Hold()) return;
  ChoiceOnTrial choice;
  const std::int16_t axes_before = AppState.AxisPattern;
  const WriteResult result = PutAxesBack(WriteHeld(), axes_before);
  if (result == WriteResult::Done) {
    static_cast<void>(held.Release());  // a failure has been told; the parameters are stored
    choice.Keep();
    TakeWritten();
    TellWritten(AppState.AxisPattern != axes_before);
    return;
  }
  held.GiveUp();
  TellWhatIsLeft(result, ParaFlags.AxisMask != axes_before);
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
  if (!WarnBeforeWrite() || !ParametersCanBeMade() || !OpenPortOrTell()) return;
  const bool was_offline = AppState.Offline;
  LiftOffline();
  Write(was_offline);
  if (was_offline) SetOffline();
}

void InstallDeviceWrite() { frmDevice3.cmdPrmCtWrite.Click = PrmCtWrite; }

}  // namespace tr7
