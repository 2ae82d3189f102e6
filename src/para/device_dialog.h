#pragma once

#include <cstdint>

#include "base/axes.h"
#include "device/dev_setting.h"
#include "device/device_cascade.h"
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

/// Axes of which AXIS1 to the `count`-th (1 to 4) are in use, as flags and as a mask.
AxisArray<Bool16> MukoOfCount(int count);
std::int16_t MaskOfCount(int count);

/// The axes that the dialogue asks for become those in use.
void TakeChosenAxes(DeviceView& view);

/// The devices that the dialogue shows for the axes in use become those under consideration.
void TakeShownDevices(const DeviceView& view);

/// Puts the axes back as they were, and the devices under consideration to those in use, unless
/// the flow has come to its end.
class AxesOnTrial {
 public:
  AxesOnTrial();
  ~AxesOnTrial();
  AxesOnTrial(const AxesOnTrial&) = delete;
  AxesOnTrial& operator=(const AxesOnTrial&) = delete;
  void Keep() { kept_ = true; }
  /// True when the flow has changed them so far.
  bool Changed() const;

 private:
  AxisArray<Bool16> muko_;
  std::int16_t count_, pattern_;
  bool kept_ = false;
};

void InstallDeviceDialogs();

}  // namespace tr7
