#pragma once

#include <array>

#include "forms/control.h"

namespace tr7 {

/// Which actuator stands on each axis. One layout serves as `frmDevice2`, the choice before
/// parameters are initialised, and as `frmDevice3`, which also writes to the controller and opens
/// the parameters: those two buttons are hidden in the first.
struct DeviceView : View {
  DeviceView(const char* name, MsgId tag, bool writes) : View(name, tag) {
    Layout = "frmDevice";
    HelpPage = "devices";
    Width = 9600;
    Height = 5700;
    cmdDeviceSet.Default = true;
    cmdDeviceCancel.Cancel = true;
    cmdPrmCtWrite.Visible = cmdSyosai.Visible = writes;
    for (int axis = 0; axis < 4; ++axis) {
      framAxis[axis].Tag = MsgId::At(220, axis);
      comboDeviceSize[axis].NamedBy = {&framAxis[axis], &lblDeviceSize[axis]};
      comboDeviceSpeed[axis].NamedBy = {&framAxis[axis], &lblDeviceSpeed[axis]};
      comboDeviceStroke[axis].NamedBy = {&framAxis[axis], &lblDeviceStroke[axis]};
    }
  }
  Label lblAxisSelect{*this, "lblAxisSelect", 6252};
  ComboBox comboAxisSelect{*this, "comboAxisSelect"};  ///< index 0: one axis, 3: all four

  // The four axes stand side by side, each in its frame.
  PerAxis<Frame> framAxis{*this, "framAxis"};
  PerAxis<CheckBox> chkAxisEnable{*this, "chkAxisEnable", 6253};
  PerAxis<CheckBox> chkNewOrOld{*this, "chkNewOrOld", 6254};  ///< on: old type
  PerAxis<Label> lblDeviceSize{*this, "lblDeviceSize", 6255};
  PerAxis<ComboBox> comboDeviceSize{*this, "comboDeviceSize"};
  PerAxis<Label> lblDeviceSpeed{*this, "lblDeviceSpeed", 6256};
  PerAxis<ComboBox> comboDeviceSpeed{*this, "comboDeviceSpeed"};
  PerAxis<Label> lblDeviceStroke{*this, "lblDeviceStroke", 6257};
  PerAxis<ComboBox> comboDeviceStroke{*this, "comboDeviceStroke"};
  PerAxis<CheckBox> chkDevPgUse{*this, "chkDevPgUse", 6258};
  PerAxis<CheckBox> chkDevVsiyou{*this, "chkDevVsiyou", 6259};  ///< the vertical variant

  CommandButton cmdSyosai{*this, "cmdSyosai", 6260};
  CommandButton cmdPrmCtWrite{*this, "cmdPrmCtWrite", 6261};
  CommandButton cmdDeviceBack{*this, "cmdDeviceBack", 48};
  CommandButton cmdDeviceSet{*this, "cmdDeviceSet", 1015};
  CommandButton cmdDeviceCancel{*this, "cmdDeviceCancel", 5153};
};

inline Standing<DeviceView> frmDevice2{"frmDevice2", MsgId(6250), false};
inline Standing<DeviceView> frmDevice3{"frmDevice3", MsgId(6251), true};

}  // namespace tr7
