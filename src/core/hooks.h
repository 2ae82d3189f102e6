#pragma once

#include <functional>
#include <string>

namespace tr7 {

/// Where the session and the frame must reach routines of higher floors, those register here.
/// Every hook is set by `InstallViews`; an unset hook is skipped by `Call`.
struct HookTable {
  /// Rebuilds the position view in the layout of `CtMode`: columns, captions, grid from the table.
  std::function<void()> RebuildPosiView;
  /// Recomputes limits after axes or devices changed (`Culc_MaxPulse`, `CalcMaxMm`, `CalcMaxVel`).
  std::function<void()> RecalcLimits;
  /// Takes the controller's device block over into `DevSetting`.
  std::function<void()> TakeDevFromCt;
  /// After the devices changed: limits of the loaded table, its check, and pulses from millimetres
  /// or millimetres from pulses by the display unit; then the view is rebuilt.
  std::function<void()> PositionsFollowDevices;
  /// The same where the pulses stay whatever the unit: the millimetres follow them.
  std::function<void()> MmFollowsPulses;
  /// Shows the device captions and the pulse scale.
  std::function<void()> ShowDeviceTexts;
  /// `PosiDataCheck3`: 0 good, 1 bad.
  std::function<int()> PosiDataCheck;
  /// Converts the position table after the display unit changed, and shows it.
  std::function<void()> PosiUnitChanged;
  /// Frame commands that the position view serves.
  std::function<void()> PosidataFileOpen, PosidataSaveToFile, PosiDataSaveAs, SinkiSakusei,
      PosiPrint;
  std::function<void()> PosidataGetfromCt, PosidataLoadtoCt, PosiDataCtShogo, PosiDataFileShogo2;
  /// Another view has become the one that the user works in: the frame's commands follow.
  std::function<void()> ActiveViewChanged;
  /// Edit commands of the position view.
  std::function<void()> PosiCopy, PosiPaste, PosiInsertLine, PosiDeleteLine;
  /// Offline device and parameter choice: 0 done, 1 failed.
  std::function<int()> Change_Device;
  /// The offline start's device selection; returns when devices stand on all axes in use.
  std::function<void()> SelectDevicesAtStart;
  /// The device dialogue that writes to the controller.
  std::function<void()> DeviceOnline;
  /// Opens the parameter view.
  std::function<void()> ShowParameters;
  /// `cmdIniPrm` of the parameter view: devices are chosen and the parameters set from the lists.
  std::function<void()> IniPrm;
};

extern HookTable Hooks;

template <typename Hook>
void Call(const Hook& hook) {
  if (hook) hook();
}

}  // namespace tr7
