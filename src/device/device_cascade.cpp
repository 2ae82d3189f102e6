#include "device/device_cascade.h"

#include <algorithm>
#include <array>
#include <vector>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/dev_setting_store.h"
#include "device/device_list.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/text.h"

namespace tr7 {

DeviceDialogRecord DeviceDialog;

namespace {

constexpr int kMsgAxis1 = 220;  ///< AXIS2 to AXIS4 follow
constexpr int kSizeChars = 3;
constexpr int kPgByChoice = 1, kPgAlways = 2;

// Lists.

/// Fills the list and shows the entry that `wanted` accepts, else the first.
template <typename Wanted>
void Refill(ComboBox& combo, const std::vector<std::string>& entries, Wanted wanted) {
  combo.Clear();
  for (const std::string& entry : entries) {
    combo.AddItem(entry, static_cast<int>(combo.ItemData.size()));
  }
  const auto found = std::find_if(entries.begin(), entries.end(), wanted);
  if (found != entries.end()) combo.ListIndex = static_cast<int>(found - entries.begin());
  if (found == entries.end() && !entries.empty()) combo.ListIndex = 0;
}

void Refill(ComboBox& combo, const std::vector<std::string>& entries, const std::string& wanted) {
  Refill(combo, entries, [&](const std::string& entry) { return entry == wanted; });
}

void FillSizes(DeviceView& view, int axis, const std::string& wanted) {
  const DeviceListRecord& list = DeviceList[axis];
  Refill(view.comboDeviceSize[axis], list.Sizes,
         [&](const std::string& size) { return list.SameSize(size, wanted); });
}

/// An old list has one set of speeds for all its sizes.
void FillSpeeds(DeviceView& view, int axis, const std::string& wanted) {
  DeviceListRecord& list = DeviceList[axis];
  if (!list.SizeIsNumber) {
    MakeSpeedListNew(axis, view.comboDeviceSize[axis].Text());
  }
  Refill(view.comboDeviceSpeed[axis], list.Speeds, wanted);
}

void FillStrokes(DeviceView& view, int axis, const std::string& wanted) {
  const DeviceListRecord& list = DeviceList[axis];
  const std::string size = view.comboDeviceSize[axis].Text();
  const std::string speed = view.comboDeviceSpeed[axis].Text();
  std::vector<std::string> strokes;
  for (int i = 1; i <= list.RowCount && !size.empty(); ++i) {
    const DeviceRecord& row = list.Rows[i];
    if (list.SameSize(row.Size, size) && row.Speed == speed) {
      strokes.push_back(std::to_string(row.Stroke));
    }
  }
  Refill(view.comboDeviceStroke[axis], strokes, wanted);
}

// What follows a choice.

/// A device that always or never has a pulse generator leaves no choice: the hidden box holds the
/// answer.
void StrokeChanged(DeviceView& view, int axis) {
  const ShownDevice device = DeviceShown(view, axis);
  if (device.Size.empty()) return;
  const int kind = GetPgKindNew(device.Size, device.Speed, device.Stroke);
  if (kind == kKindUnknown) return;
  CheckBox& pg = view.chkDevPgUse[axis];
  const bool choice = kind == kPgByChoice;
  pg.Visible = choice && DeviceDialog.ShowDevOptions;
  pg.Value = choice ? bool(DevSettei[axis].WithPG) : kind == kPgAlways;
}

void SpeedChanged(DeviceView& view, int axis) {
  FillStrokes(view, axis, view.comboDeviceStroke[axis].Text());
  StrokeChanged(view, axis);
}

void SizeChanged(DeviceView& view, int axis) {
  FillSpeeds(view, axis, view.comboDeviceSpeed[axis].Text());
  SpeedChanged(view, axis);
}

/// The fill pass of one axis: shows this size and speed, and the stroke in use, as far as they are
/// listed.
void FillAxis(DeviceView& view, int axis, const ShownDevice& wanted) {
  FillSizes(view, axis, wanted.Size);
  FillSpeeds(view, axis, wanted.Speed);
  FillStrokes(view, axis, std::to_string(DevSetting[axis].Stroke));
  StrokeChanged(view, axis);
}

ShownDevice DeviceInUse(int axis) {
  const DevSettingRecord& device = DevSetting[axis];
  return {device.Size, device.Speed, device.Stroke};
}

// Options.

/// Every device chosen in a dialogue counts as the vertical variant: the box says so, and leaves
/// no choice.
void ShowOptions(DeviceView& view, int axis, bool on) {
  view.chkDevPgUse[axis].Visible = view.chkDevVsiyou[axis].Visible = on;
  view.chkDevVsiyou[axis].Value = true;
  view.chkDevVsiyou[axis].Enabled = false;
}

// Axes in use.

void SetAxisLive(DeviceView& view, int axis, bool live) {
  view.chkAxisEnable[axis].Value = live;
  view.framAxis[axis].Enabled = live && !DeviceDialog.DevWriting;
  view.chkDevPgUse[axis].Enabled = live && DeviceDialog.ShowDevOptions;
}

void EnableAxis(DeviceView& view, int axis) {
  SetAxisLive(view, axis, true);
  if (view.comboDeviceSize[axis].List.empty()) {
    FillAxis(view, axis, DeviceInUse(axis));
  } else {
    SizeChanged(view, axis);
  }
}

/// The last axis whose box is ticked, 1 to 4; 0 without any.
int LastAxisShown(const DeviceView& view) {
  int last = 0;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (view.chkAxisEnable[axis].Value) last = axis + 1;
  }
  return last;
}

/// The axes in use are AXIS1 up to the chosen number, so a tick takes those below with it, and a
/// tick taken away those above. One axis is always in use.
void AxisEnableClicked(DeviceView& view, int axis) {
  CheckBox& box = view.chkAxisEnable[axis];
  if (box.Value) {
    ShowAxesInUse(view, LastAxisShown(view));
  } else if (axis > 0) {
    ShowAxesInUse(view, axis);
  } else {
    box.Value = true;
    doors.forms->Beep();
  }
}

// Old or new type.

int ReadList(int axis, bool old_type) {
  return old_type ? ReadDeviceListOldAxis(axis) : ReadDeviceListNewAxis(axis);
}

void NewOrOldClicked(DeviceView& view, int axis) {
  CheckBox& box = view.chkNewOrOld[axis];
  const ShownDevice shown = DeviceShown(view, axis);
  const DeviceListRecord former = DeviceList[axis];
  const Bool16 was_missing = DevListMissing[axis];
  DevListMissing[axis] = False;
  if (ReadList(axis, box.Value) != 0) {
    DeviceList[axis] = former;
    DevListMissing[axis] = was_missing;
    box.Value = !box.Value;
    return;
  }
  ShowOptions(view, axis, DeviceDialog.ShowDevOptions);
  FillAxis(view, axis, shown);
}

// Loading.

/// Only the dialogue that writes begins with the old list, for an axis whose device is of that
/// type.
bool BeginsOld(const DeviceView& view, int axis) {
  const DevSettingRecord& device = DevSetting[axis];
  return &view == &frmDevice3 && !AppState.AxisMuko[axis] && !device.Size.empty() &&
         !device.NewType;
}

/// Reads each axis's catalogue; one that cannot be read is not tried, and told of, again.
void ReadLists(DeviceView& view) {
  std::array<bool, 2> gone{};
  for (int axis = 0; axis < kAxes; ++axis) {
    const bool old_type = BeginsOld(view, axis);
    view.chkNewOrOld[axis].Value = old_type;
    bool& list_gone = gone[old_type ? 1 : 0];
    if (!list_gone) list_gone = ReadList(axis, old_type) != 0;
    if (!list_gone) continue;
    DeviceList[axis] = DeviceListRecord{};
    DevListMissing[axis] = True;
  }
}

/// The number of axes in use, by the name of the last one where they have no gap.
void FillAxisChoice(DeviceView& view) {
  std::vector<std::string> names;
  for (int axis = 0; axis < kAxes; ++axis) names.push_back(Text(MsgId::At(kMsgAxis1, axis)));
  const auto& muko = AppState.AxisMuko;
  const auto count = std::count(muko.begin(), muko.end(), False);
  Refill(view.comboAxisSelect, names, {});
  view.comboAxisSelect.ListIndex = std::max(static_cast<int>(count), 1) - 1;
}

}  // namespace

ShownDevice DeviceShown(const DeviceView& view, int axis) {
  const std::string size = view.comboDeviceSize[axis].Text();
  // An old list names its sizes without the blank that stands in front of two digits.
  return {CharCount(size) == 0 ? size : RightAlignText(size, kSizeChars),
          view.comboDeviceSpeed[axis].Text(),
          static_cast<std::int16_t>(Val(view.comboDeviceStroke[axis].Text()))};
}

AxisArray<Bool16> MukoShown(const DeviceView& view) {
  AxisArray<Bool16> muko;
  for (int axis = 0; axis < kAxes; ++axis) muko[axis] = !view.chkAxisEnable[axis].Value;
  return muko;
}

void ShowAxesInUse(DeviceView& view, int count) {
  view.comboAxisSelect.ListIndex = count - 1;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (axis < count) {
      EnableAxis(view, axis);
    } else {
      SetAxisLive(view, axis, false);
    }
  }
}

void LoadDeviceLists(DeviceView& view) {
  LetDevSettingToDevSettei();
  ReadLists(view);
  FillAxisChoice(view);
  for (int axis = 0; axis < kAxes; ++axis) {
    ShowOptions(view, axis, DeviceDialog.ShowDevOptions);
    SetAxisLive(view, axis, !AppState.AxisMuko[axis]);
    if (!AppState.AxisMuko[axis]) FillAxis(view, axis, DeviceInUse(axis));
  }
}

void InstallDeviceCascade(DeviceView& view) {
  DeviceView* const v = &view;
  view.comboAxisSelect.Click = [v] { ShowAxesInUse(*v, v->comboAxisSelect.ListIndex + 1); };
  for (int axis = 0; axis < kAxes; ++axis) {
    const auto set = [](ComboBox& combo, auto handler) { combo.Click = combo.LostFocus = handler; };
    set(view.comboDeviceSize[axis], [v, axis] { SizeChanged(*v, axis); });
    set(view.comboDeviceSpeed[axis], [v, axis] { SpeedChanged(*v, axis); });
    set(view.comboDeviceStroke[axis], [v, axis] { StrokeChanged(*v, axis); });
    view.chkAxisEnable[axis].Click = [v, axis] { AxisEnableClicked(*v, axis); };
    view.chkNewOrOld[axis].Click = [v, axis] { NewOrOldClicked(*v, axis); };
    // Kept with the pending device: the lists ask there whenever they change.
    view.chkDevPgUse[axis].Click = [v, axis] {
      DevSettei[axis].WithPG = v->chkDevPgUse[axis].Value;
    };
  }
}

}  // namespace tr7
