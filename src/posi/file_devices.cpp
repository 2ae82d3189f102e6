#include "posi/file_devices.h"

#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "device/dev_setting_store.h"
#include "device/device_names.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_posi.h"
#include "para/device_take.h"
#include "para/para_file_flow.h"
#include "para/para_show.h"
#include "para/std_lists.h"
#include "posi/posi_check.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"
#include "state/selection.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgNotSelected = 4;
constexpr int kMsgSelectAgain = 5;
constexpr int kMsgStopped = 367;
constexpr int kMsgReadFailed = 484;

/// In the order in which they are offered.
enum class Choice { DevicesInUse, DevicesOfFile, ParameterFile };

/// The axes that the file has a device for; true when they are not those in use.
bool TakeAxesOfFile() {
  for (int axis = 0; axis < kAxes; ++axis) {
    AppState.AxisMukoOfFile[axis] = FileDevice[axis].empty();
  }
  return AppState.AxisMukoOfFile != AppState.AxisMuko;
}

bool TellNotSelected() {
  MsgBox(TwoLines(kMsgNotSelected, kMsgSelectAgain));
  return false;
}

bool TellStopped() {
  MsgBox(Text(kMsgStopped), MsgButtons::Ok, MsgIcon::Information);
  return false;
}

/// The file's devices come into use with their standard parameters.
bool TakeDevicesOfFile() {
  AppState.AxisMuko = AppState.AxisMukoOfFile;
  if (AxesInUse().empty()) return TellNotSelected();
  // Once more: the names of axes that were not in use had been passed over.
  if (ParseDeviceNames() != 0) return false;
  ReflectFileDevice2PcDevice();
  ParaFlags.AxisMaskFixed = False;
  const auto of_file = DevSettei;
  if (IniParaFromStd() != 0) return false;
  if (!TakeDeviceFieldsOfParam()) return TellNotSelected();
  // Type, PG and vertical are the file's, whatever the standard parameters say.
  DevSettei = of_file;
  ReflectFileDevice2PcDevice();
  return true;
}

/// The devices of a parameter file come into use, and its parameters.
bool TakeDevicesOfParaFile() {
  ParaFlags.ParaFileBad = False;
  if (OpenParaForDevice() != 0) return ParaFlags.ParaFileBad ? false : TellStopped();
  if (!TakeDeviceFieldsOfParam() || AxesInUse().empty()) return TellNotSelected();
  LetDevSettingToDevSettei();
  return true;
}

void DevicesHaveChanged() {
  AppState.AxisCount = static_cast<std::int16_t>(AxesInUse().size());
  SaveDevSetting();
  if (frmParameta2.Loaded) ParametaHyoji();
}

std::string DevicesThatDiffer() {
  constexpr int kMsgAxis1 = 220, kMsgNone = 5335;
  const auto name = [](const std::string& device) {
    return device.empty() ? Text(kMsgNone) : device;
  };
  std::string lines;
  for (const OtherDevice& other : OtherDevicesOfFile()) {
    lines += DifferenceLine(Text(MsgId::At(kMsgAxis1, other.axis)), name(other.in_use),
                            name(other.of_file));
  }
  return lines;
}

/// Asks by whose devices the positions are shown; those are in use then.
bool AskAndFollow(Choice& choice) {
  const Selection answer = SelectionDialog2({.Title = Text(471),
                                             .What = 7189,
                                             .Prompt = Text(44),
                                             .Choices = {Text(45), Text(46), Text(47)},
                                             .Details = DevicesThatDiffer()});
  if (answer == Selection::Cancelled) return TellStopped();
  choice = static_cast<Choice>(answer);
  if (choice == Choice::DevicesOfFile) return TakeDevicesOfFile();
  return choice == Choice::DevicesInUse || TakeDevicesOfParaFile();
}

bool TellIfNotConvertible() {
  const std::string trouble = ConversionTrouble();
  if (!trouble.empty()) MsgBox(Text(kMsgReadFailed) + "\n\n" + trouble);
  return trouble.empty();
}

}  // namespace

DevicesOnTrial::~DevicesOnTrial() {
  if (kept_) return;
  DevSetting = in_use_;
  DevSettei = pending_;
  CtDev = reported_;
  ParamSet = params_;
  ParaFlags = flags_;
  AppState.AxisMuko = muko_;
  AppState.StrokePulse = stroke_pulse_;
  AppState.StrokeMm = stroke_mm_;
  AppState.AxisCount = axis_count_;
}

std::vector<OtherDevice> OtherDevicesOfFile() {
  std::vector<OtherDevice> others;
  for (int axis = 0; axis < kAxes; ++axis) {
    const std::string in_use =
        AppState.AxisMuko[axis] ? std::string() : frmPosi.lblDeviceType[axis]->Caption;
    if (Trim(FileDevice[axis]) != Trim(in_use)) others.push_back({axis, in_use, FileDevice[axis]});
  }
  return others;
}

FileDevices ReconcileFileDevices() {
  const auto pending = DevSettei;
  const bool axes_differ = TakeAxesOfFile();
  if (ParseDeviceNames() != 0) return FileDevices::Refused;
  const bool same = !axes_differ && CompareActuatorSettingOfPosifile2PC() == 0;
  Choice choice = Choice::DevicesInUse;
  if (!same && !AskAndFollow(choice)) return FileDevices::Refused;
  if (!TellIfNotConvertible()) return FileDevices::Refused;
  if (choice == Choice::DevicesInUse) {
    DevSettei = pending;
  } else {
    DevicesHaveChanged();
  }
  return same || choice == Choice::DevicesOfFile ? FileDevices::OfFile : FileDevices::Others;
}

}  // namespace tr7
