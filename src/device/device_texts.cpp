#include "device/device_texts.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/device_list.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "state/app_state.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgPulse = 6;
constexpr int kMsgNew = 126;
constexpr int kMsgOld = 127;
constexpr int kMsgAxis1 = 220;  ///< AXIS2 to AXIS4 follow
constexpr std::size_t kRowsOfAxis = std::tuple_size_v<decltype(frmPosi.DeviceRows)> / kAxes;
constexpr const char* kNotInUse = "**********";

void FillRows(int axis, const std::string& text) {
  for (std::size_t row = 0; row < kRowsOfAxis; ++row) {
    frmPosi.DeviceRows[axis * kRowsOfAxis + row] = text;
  }
}

void ClearTexts(int axis) {
  FillRows(axis, {});
  frmPosi.lblDeviceType[axis]->Caption.clear();
  frmPosi.lblAge[axis]->Caption.clear();
}

/// The user's choice where the device leaves one.
std::string PgMark(int axis) {
  const DevSettingRecord& device = DevSetting[axis];
  if (GetPgKindNew(device.Size, device.Speed, device.Stroke) != 1) return " ";
  return DevSettei[axis].WithPG ? "E" : "_";
}

std::string AxisColon(int axis) { return Text(MsgId::At(kMsgAxis1, axis)) + ":"; }

/// What a single-precision number is, to the digits that one holds.
double OfSingle(float value) {
  std::array<char, 64> buffer;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed)
          .ptr;
  return Val(std::string_view(buffer.data(), static_cast<std::size_t>(end - buffer.data())));
}

std::string Scale(std::int32_t of, std::int32_t per) {
  return FormatMm(OfSingle(static_cast<float>(of) / static_cast<float>(per)));
}

void ShowScale(const std::string& panel1, const std::string& panel2) {
  frmMain.sbStatusBar.Panels[kPanelScale1] = panel1;
  frmMain.sbStatusBar.Panels[kPanelScale2] = panel2;
}

}  // namespace

void DeviceTextHyoji() {
  for (int axis = 0; axis < kAxes; ++axis) ClearTexts(axis);
  DeviceLookup.ListMissing = False;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (AppState.AxisMuko[axis]) {
      FillRows(axis, AxisColon(axis) + kNotInUse);
      continue;
    }
    const DevSettingRecord& device = DevSetting[axis];
    if (!device.SeriesOk) return;
    // A list that one axis could not read is not asked for again: one box is enough.
    const std::string mark = DeviceLookup.ListMissing ? " " : PgMark(axis);
    const std::string caption =
        "QV-" + device.Size + device.Speed + "-" + SpacePad(device.Stroke, 3) + mark;
    FillRows(axis, AxisColon(axis) + caption);
    frmPosi.lblDeviceType[axis]->Caption = caption;
    frmPosi.lblAge[axis]->Caption = Text(device.NewType ? MsgId(kMsgNew) : MsgId(kMsgOld));
  }
}

void PulseScaleHyoji() {
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!AppState.AxisMuko[axis]) return PulseScaleHyojiAxis(axis);
  }
  ShowScale({}, {});
}

void PulseScaleHyojiAxis(int axis) {
  const DevSettingRecord& device = DevSetting[axis];
  if (AppState.AxisMuko[axis] || device.Lead <= 0 || device.Ppr <= 0) return ShowScale({}, {});
  const std::string pulse = Text(kMsgPulse);
  const std::string number = "<" + std::to_string(axis + 1) + ">1";
  ShowScale(number + "mm = " + Scale(device.Ppr, device.Lead) + pulse,
            number + pulse + "= " + Scale(device.Lead, device.Ppr) + "mm");
}

}  // namespace tr7
