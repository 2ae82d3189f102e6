#include "para/para_actuator.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/device_list.h"
#include "forms/frm_parameta2.h"
#include "para/param_set.h"

namespace tr7 {
namespace {

using Names = std::vector<std::string>;

constexpr int kSizeChars = 3;

bool HasDevice(int axis) { return !ParamSet.Actuator[axis].empty(); }

void AddDistinct(Names& names, const std::string& name) {
  if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
}

/// Names of the catalogue's rows, each once, in its order.
template <typename Counts, typename NameOf>
Names Collect(int axis, Counts counts, NameOf name_of) {
  const DeviceListRecord& list = DeviceList[axis];
  Names names;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(list.RowCount); ++i) {
    const DeviceRecord& row = list.Rows.at(i);
    if (counts(row)) AddDistinct(names, name_of(row));
  }
  return names;
}

/// A size has three characters in the device text, also where the catalogue has the number alone.
std::string SizeText(const DeviceRecord& row) {
  return CharCount(row.Size) < kSizeChars ? RightAlignText(row.Size, kSizeChars) : row.Size;
}

Names SizesOf(int axis) {
  Names names = Collect(
      axis, [](const DeviceRecord&) { return true; }, SizeText);
  if (HasDevice(axis)) AddDistinct(names, ParamSet.ActSize[axis]);
  return names;
}

Names SpeedsOf(int axis, const std::string& size) {
  Names names = Collect(
      axis, [&](const DeviceRecord& row) { return DeviceList[axis].SameSize(row.Size, size); },
      [](const DeviceRecord& row) { return row.Speed; });
  if (HasDevice(axis) && ParamSet.ActSize[axis] == size)
    AddDistinct(names, ParamSet.ActSpeed[axis]);
  return names;
}

Names StrokesOf(int axis, const std::string& size, const std::string& speed) {
  Names names = Collect(
      axis,
      [&](const DeviceRecord& row) {
        return DeviceList[axis].SameSize(row.Size, size) && row.Speed == speed;
      },
      [](const DeviceRecord& row) { return std::to_string(row.Stroke); });
  if (HasDevice(axis) && ParamSet.ActSize[axis] == size && ParamSet.ActSpeed[axis] == speed) {
    AddDistinct(names, std::to_string(ParamSet.ActStroke[axis]));
  }
  return names;
}

/// Shows `wanted`, or the first entry where the list lacks it.
void Fill(ComboBox& list, const Names& names, const std::string& wanted) {
  list.Clear();
  for (std::size_t i = 0; i < names.size(); ++i) list.AddItem(names[i], static_cast<int>(i));
  if (!list.ShowText(wanted) && !names.empty()) list.ListIndex = 0;
}

int ChosenStroke(int axis) {
  return static_cast<int>(Val(frmParameta2.comboActStroke[axis].Text()));
}

bool IsChosen(int axis) {
  const FrmParameta2& f = frmParameta2;
  return f.comboActSize[axis].ListIndex >= 0 && f.comboActSpeed[axis].ListIndex >= 0 &&
         f.comboActStroke[axis].ListIndex >= 0;
}

std::string ChosenActuator(int axis) {
  const FrmParameta2& f = frmParameta2;
  if (!IsChosen(axis)) return {};
  return JoinActuator(f.comboActSize[axis].Text(), f.comboActSpeed[axis].Text(),
                      ChosenStroke(axis));
}

void StrokePicked(int axis) { frmParameta2.txtActuator[axis].Text = ChosenActuator(axis); }

void SpeedPicked(int axis) {
  FrmParameta2& f = frmParameta2;
  Fill(f.comboActStroke[axis],
       StrokesOf(axis, f.comboActSize[axis].Text(), f.comboActSpeed[axis].Text()),
       f.comboActStroke[axis].Text());
  StrokePicked(axis);
}

void SizePicked(int axis) {
  FrmParameta2& f = frmParameta2;
  Fill(f.comboActSpeed[axis], SpeedsOf(axis, f.comboActSize[axis].Text()),
       f.comboActSpeed[axis].Text());
  SpeedPicked(axis);
}

}  // namespace

DeviceListKind CatalogueOf(int axis) {
  const DevSettingRecord& device = DevSetting[axis];
  return device.NotChosen || device.NewType ? DeviceListKind::New : DeviceListKind::Old;
}

void ShowActuator(int axis) {
  FrmParameta2& f = frmParameta2;
  ClearActuator(axis);
  Fill(f.comboActSize[axis], SizesOf(axis), ParamSet.ActSize[axis]);
  if (!HasDevice(axis)) {
    f.comboActSize[axis].ListIndex = -1;
    return;
  }
  const std::string& size = ParamSet.ActSize[axis];
  const std::string& speed = ParamSet.ActSpeed[axis];
  Fill(f.comboActSpeed[axis], SpeedsOf(axis, size), speed);
  Fill(f.comboActStroke[axis], StrokesOf(axis, size, speed),
       std::to_string(ParamSet.ActStroke[axis]));
  f.txtActuator[axis].Text = ParamSet.Actuator[axis];
}

void ClearActuator(int axis) {
  FrmParameta2& f = frmParameta2;
  f.comboActSize[axis].Clear();
  f.comboActSpeed[axis].Clear();
  f.comboActStroke[axis].Clear();
  f.txtActuator[axis].Text.clear();
}

void TakeActuator(int axis) {
  FrmParameta2& f = frmParameta2;
  ParamSet.ActSize[axis] = f.comboActSize[axis].Text();
  ParamSet.ActSpeed[axis] = f.comboActSpeed[axis].Text();
  ParamSet.ActStroke[axis] = static_cast<std::int16_t>(ChosenStroke(axis));
  ParamSet.Actuator[axis] = ChosenActuator(axis);
  DevSettei[axis].Size = ParamSet.ActSize[axis];
  DevSettei[axis].Speed = ParamSet.ActSpeed[axis];
  DevSettei[axis].Stroke = ParamSet.ActStroke[axis];
  f.txtActuator[axis].Text = ParamSet.Actuator[axis];
}

void InstallActuatorLists() {
  for (int axis = 0; axis < kAxes; ++axis) {
    frmParameta2.comboActSize[axis].Click = [axis] { SizePicked(axis); };
    frmParameta2.comboActSpeed[axis].Click = [axis] { SpeedPicked(axis); };
    frmParameta2.comboActStroke[axis].Click = [axis] { StrokePicked(axis); };
  }
}

}  // namespace tr7
