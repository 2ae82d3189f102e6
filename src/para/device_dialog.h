#pragma once

#include <cstdint>

#include "base/axes.h"
#include "device/dev_setting.h"
#include "device/device_cascade.h"
#include "para/param_set.h"
#include "state/app_state.h"

namespace tr7 {

// The device dialogues: `frmDevice2` is a choice before parameters are initialised, `frmDevice3`
// also writes to the controller and leads on to the parameters.

enum class DeviceAnswer { Taken, Cancelled, Back };

/// Shows the dialogue until the user has left it. Taken in `frmDevice2`: `DevSettei` holds the
/// devices of the axes in use, and `AxisMuko`, `AxisCount` and `AxisMask` are as answered; in
/// `frmDevice3` the caller takes what it shows. Left otherwise, nothing has changed.
DeviceAnswer AskDevices(DeviceView& view);

/// Asks in `frmDevice2` and makes the parameters from the standard lists. 0 done; 1 failed after a
/// message; -1 cancelled; -2 back, where `DeviceDialog.ShowDevBack` offers that.
int SelectDeviceForPara();

/// The axes that the dialogue asks for become those in use.
void TakeChosenAxes(const DeviceView& view);

/// The devices that the dialogue shows for the axes in use become those under consideration.
void TakeShownDevices(const DeviceView& view);

/// Puts axes and parameters back as they were, and the devices under consideration to those in use,
/// unless the flow has come to its end.
class ChoiceOnTrial {
 public:
  ChoiceOnTrial() = default;
  ~ChoiceOnTrial();
  ChoiceOnTrial(const ChoiceOnTrial&) = delete;
  ChoiceOnTrial& operator=(const ChoiceOnTrial&) = delete;
  void Keep() { kept_ = true; }
  /// True when the flow has changed the axes so far.
  bool AxesChanged() const;

 private:
  AxisArray<Bool16> muko_ = AppState.AxisMuko;
  std::int16_t count_ = AppState.AxisCount, pattern_ = AppState.AxisPattern;
  std::int16_t shown_count_ = ParaFlags.ShownAxisCount;
  ParamSetRecord parameters_ = ParamSet;
  bool kept_ = false;
};

void InstallDeviceDialogs();

}  // namespace tr7
