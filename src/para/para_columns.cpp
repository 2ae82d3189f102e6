#include "para/para_columns.h"

#include <cstdint>

#include "device/device_list.h"
#include "device/device_list_file.h"
#include "forms/frm_parameta2.h"
#include "para/para_actuator.h"
#include "para/para_axis_show.h"
#include "para/para_content.h"
#include "para/param_set.h"

namespace tr7 {
namespace {

/// What each control's own rule is given.
struct Liveness {
  bool on;  ///< no flow runs
  bool sp;  ///< and the SP group is unlocked
  bool Row(int row) const { return row >= kFirstSpRow ? sp : on; }
};

template <typename Fields, typename MayBeOn>
void EnableFields(const Fields& fields, const Liveness& live, MayBeOn may_be_on) {
  for (const auto& field : fields) {
    const bool per_axis = IsAxisRow(field.Row);
    for (int axis = 0; axis < (per_axis ? kAxes : 1); ++axis) {
      ParaControl(field.Place, axis).Enabled =
          live.Row(field.Row) && may_be_on(field) && (!per_axis || IsLiveAxis(axis));
    }
  }
}

void EnableOfAxis(int axis, const Liveness& live) {
  FrmParameta2& f = frmParameta2;
  const bool on = live.on && IsLiveAxis(axis);
  for (const ParaMmField& field : ParaMmFields()) field.MmBox(axis).Enabled = on;
  for (ComboBox* list : {&f.comboActSize[axis], &f.comboActSpeed[axis], &f.comboActStroke[axis]}) {
    list->Enabled = on;
  }
  f.txtActuator[axis].Enabled = false;
  f.comboM0Disable[axis].Enabled = live.sp && IsLiveAxis(axis);
}

/// Buttons whose command exists; the others stay off.
void EnableButtons(bool on) {
  for (Control* control : frmParameta2.Controls) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button) button->Enabled = on && button->Click;
  }
}

/// An axis that was not in use may have no list in memory yet. Here columns are drawn anew, often
/// within a flow, so nothing is told: what is wrong with the file was told with the first column.
void NeedDeviceList(int axis) {
  if (DeviceList[axis].RowCount > 0) return;
  DevListMissing[axis] = !ReadDeviceListFile(CatalogueOf(axis), DeviceList[axis]).Read;
}

}  // namespace

void EnableParaControls() {
  FrmParameta2& f = frmParameta2;
  const bool on = !f.CommandsAreOff;
  const Liveness live{on, on && f.chkTokuParaChange.Value};
  EnableFields(ParaTextFields(), live,
               [](const ParaTextField& field) { return field.MaxLength > 0; });
  EnableFields(ParaListFields(), live, [](const ParaListField&) { return true; });
  for (int axis = 0; axis < kAxes; ++axis) EnableOfAxis(axis, live);
  for (const ParaOptionField& field : ParaOptionFields()) {
    for (OptionButton& option : f.*field.Place) option.Enabled = live.sp;
  }
  f.comboOneAxis.Enabled = live.sp;
  f.chkTokuParaChange.Enabled = on;
  EnableButtons(on);
}

void SettleParaColumns() {
  const bool changed = ParaIsChanged();
  for (int axis = 0; axis < kAxes; ++axis) {
    const bool live = IsLiveAxis(axis);
    bool& shown = frmParameta2.LiveColumns[axis];
    if (!live) ClearParaAxis(axis);
    if (live && !shown) {
      NeedDeviceList(axis);
      ParamSet.Actuator[axis].empty() ? ShowActuator(axis) : ShowParaAxis(axis);
    }
    shown = live;
  }
  EnableParaControls();
  if (!changed) MarkParaSaved();  // nobody typed what has come or gone here
}

void YukoJikuHyojiSettei() {
  ParaFlags.ShownAxisCount = 0;
  SettleParaColumns();
}

void YukoJikuHyojiSettei2(int axes) {
  ParaFlags.ShownAxisCount = static_cast<std::int16_t>(axes);
  SettleParaColumns();
}

}  // namespace tr7
