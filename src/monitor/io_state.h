#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "base/axes.h"
#include "base/bool16.h"
#include "forms/frm_io_check_fg.h"
#include "link/monitor_commands.h"
#include "monitor/poll.h"

namespace tr7 {

/// What the monitor knows of the controller's terminals, and what it has it do.
struct IoMonitorRecord {
  IoBits IoInBit{};
  IoBits IoOutBit{};
  IoBits IoOutFlip{};     ///< outputs that the user has clicked since the last write
  IoBits Forced{};        ///< outputs that this monitor has turned round since it began
  Bool16 IoMonOn;         ///< the monitor runs
  Bool16 IoStopReq;       ///< a close was asked for, which the next tick carries out
  Bool16 IoStopped;       ///< a tick has confirmed it
  Bool16 IoWritePending;  ///< a flip waits for the next tick
  Bool16 MsecElapsed;     ///< of `MsecTimer`
  AxisArray<std::optional<double>> PositionMm{};

  bool Known = false;           ///< a poll of this run has told the points
  bool Stale = false;           ///< what is shown was true once and is no longer renewed
  bool Aged = false;            ///< it runs, but what is on show is older than its pace explains
  bool Parted = false;          ///< a flow or a silence has come since the running poll began
  std::string TrueAt;           ///< the time of day when the points were read last
  std::int64_t TrueUs = 0;      ///< the same on the pump's clock
  std::int64_t OldAfterMs = 0;  ///< what is older than this has aged, also where the line answers
  std::array<std::int64_t, kIoPoints> InChangedUs{}, OutChangedUs{};  ///< 0: not seen to change

  Bool16 IgnorePending;         ///< the control mode has to be sent
  Bool16 OverrideOn;            ///< the controller has been told to let inputs start nothing
  std::int32_t ModesSent = -1;  ///< `AppState.ControlModesSent` behind our own frame

  Poll Ticks{frmIOCheckFG.timerInputOutput1, Poll::Teaching::GoesOn};
};
extern IoMonitorRecord IoMonitor;

/// What is on show was true once: the monitor has ended, a flow has the line, or no answer comes.
bool IoValuesAreOld();

/// All that the monitor keeps, the recorded plot included, is as at the start.
void ResetIoMonitor();

}  // namespace tr7
