#include "device/ct_difference.h"

#include "base/text_helpers.h"
#include "device/ct_device.h"
#include "device/dev_setting.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgAxes = 7827, kMsgMode = 7828, kMsgDevice = 7829, kMsgWithStroke = 7830;
constexpr int kMsgNone = 5335, kMsgAxis1 = 220, kMsgPosMode = 477, kMsgPrgMode = 478;

/// "1, 2, 4".
std::string AxesText(const AxisArray<Bool16>& muko) {
  std::string text;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!muko[axis]) text += (text.empty() ? "" : ", ") + std::to_string(axis + 1);
  }
  return text.empty() ? Text(kMsgNone) : text;
}

std::string ModeText(bool program_mode) {
  return Text(program_mode ? MsgId(kMsgPrgMode) : MsgId(kMsgPosMode));
}

/// "28L-100E, lead 6 mm, 400 pulses a turn".
template <typename Device>
std::string DeviceText(const Device& device, bool with_pg) {
  if (Trim(device.Size).empty()) return Text(kMsgNone);
  const std::string name =
      Trim(device.Size) + device.Speed + "-" + std::to_string(device.Stroke) + (with_pg ? "E" : "");
  return Text(kMsgDevice, name, std::to_string(device.Lead), std::to_string(device.Ppr));
}

/// Where nothing else differs, the stroke in pulses does.
std::string DeviceLine(int axis) {
  const CtDeviceRecord& ct = CtDev[axis];
  std::string here = DeviceText(DevSetting[axis], DevSetting[axis].WithPG);
  std::string there = DeviceText(ct, ct.PgCode != 0);
  if (here == there) {
    here = Text(kMsgWithStroke, here, PlainDecimal(AppState.StrokePulse[axis]));
    there = Text(kMsgWithStroke, there, std::to_string(ct.MaxPulse));
  }
  return DifferenceLine(Text(MsgId::At(kMsgAxis1, axis)), here, there);
}

}  // namespace

std::string AxesDifference() {
  if (AppState.AxisMuko == AppState.AxisMukoOfCt) return {};
  return DifferenceLine(Text(kMsgAxes), AxesText(AppState.AxisMuko),
                        AxesText(AppState.AxisMukoOfCt));
}

std::string ModeAndAxesDifference() {
  if (AppState.CtMode == AppState.CtModeOfCt) return AxesDifference();
  return DifferenceLine(Text(kMsgMode), ModeText(AppState.CtMode), ModeText(AppState.CtModeOfCt)) +
         AxesDifference();
}

std::string DeviceDifference() {
  // Devices are read only where the axes are the same.
  std::string lines = AxesDifference();
  if (!lines.empty()) return lines;
  for (const int axis : AxesInUse()) {
    if (DeviceDiffersFromCt(axis)) lines += DeviceLine(axis);
  }
  return lines;
}

}  // namespace tr7
