#pragma once

#include <cstdint>
#include <string>

#include "base/axes.h"
#include "base/bool16.h"
#include "link/tusin_wait.h"
#include "state/app_state.h"

namespace tr7 {

// Parameter memory travels in 14 blocks "0" to "9" and "A" to "D" of 32 characters. 0 success,
// 1 failure, unless told otherwise; the exchange has told the user of a failure.

/// What the controller reports of the actuator on one axis.
struct CtDeviceRecord {
  std::string Size;   ///< 3 characters
  std::string Speed;  ///< 1 character
  int Stroke = 0;     ///< mm
  int Lead = 0;       ///< mm per motor turn
  int Ppr = 0;        ///< pulses per motor turn
  int MaxPulse = 0;   ///< stroke in pulses
  int Type = 0;
  int PgCode = 0;  ///< 0 none, 1 or 2 fitted
  bool operator==(const CtDeviceRecord&) const = default;
};

extern AxisArray<CtDeviceRecord> CtDev;

/// What a form of the axis mask that spoils block 0 leaves, until a whole block 0 follows it.
struct AxisSettingSentRecord {
  std::string Block0Before;  ///< data of block 0 as read; empty: nothing is pending
  std::string Block0Sent;    ///< the data that took its place
};

extern AxisSettingSentRecord AxisSettingSent;

/// Every reader of block 0 puts its data (32 characters) through this: where it is the spoilt one,
/// what that replaced counts.
void MendBlock0(std::string& data);
/// Puts back into the controller what `AxisSettingSent` replaced there, where anything is pending
/// and the line serves; else it stays pending.
void PutBlock0Back();

/// "0RD": one block; `reply` is the whole line, block 0 mended.
int ReadParaBlock(char block, int timeout_ms, std::string& reply);

/// Takes command, which opens the port, and reads block 0 into `AxisPattern` and `AxisMuko`. Also
/// known as ReadAxisSettingFromCt.
int ReadCtAxisFromCt();
/// The same into `AxisPatternOfCt`, `AxisMukoOfCt`, `CtModeOfCt`.
int ReadCtModeAndAxis();
/// 0 equal, 1 axes differ, 2 mode differs, 3 both, -1 failure.
int CompareCtModeAndAxis();

/// PG code and device block of each axis in use into `CtDev`; zeros for others. Also known as
/// ReadDevSettingFromCt.
int ReadCtDeviceFromCt();
/// The controller's axes and devices against the PC's: 0 equal, 1 different, -1 failure.
int CompareCtDevice();
/// The device of an axis (0 to 3) as last reported against the PC's.
bool DeviceDiffersFromCt(int axis);

/// The four values of block 1, one for each axis: the order in which they home.
int ReadCtBlock1(AxisArray<std::int32_t>& values);

/// Stroke in pulses of one axis (0 to 3), from its device block.
int ReadAxisMaxPulse(int axis, std::int32_t& pulses);
/// The same for each axis in use; 0 for others. A failure leaves `pulses` as they were.
int ReadAxisMaxPulseFromCt(AxisArray<std::int32_t>& pulses);

/// Writes the mask of axes in use (axis i: 1 << i) into block 0; on success `AxisPattern` is it.
/// Also known as WriteAxisMaskToCt. `sent` takes how the frame that bears it ended.
int WriteAxisPatternToCt(int mask, TusinSent* sent = nullptr);

/// Writes the controller mode (0 position, 1 program) into block 0 and commits it. A mode other
/// than the one read tells the user to switch the controller off and on.
int ChangeCtModeToCt(int mode);

}  // namespace tr7
