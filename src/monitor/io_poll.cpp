#include "monitor/io_poll.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/unit_conversion.h"
#include "forms/frm_posi.h"
#include "link/motion_commands.h"
#include "link/port.h"
#include "link/request_queue.h"
#include "monitor/io_override.h"
#include "monitor/io_show.h"
#include "monitor/io_state.h"
#include "monitor/plot_record.h"
#include "monitor/watch_show.h"
#include "motion/motion_now.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kFirstPollMs = 2000, kNextPollMs = 500;
constexpr std::int64_t kOldMs = kAnswerOldUs / 1000, kOldBeforeAnyPaceMs = 10'000;

/// Between two requests: whether the poll has still someone to ask for, and the line for it. A hand
/// on a jog button or on a slide takes it at once.
bool GoesOn() {
  const PosiTeaching& teach = frmPosi.Teach;
  const bool hand = MotionNow.Kind != Motion::None || teach.JogPending || teach.TickWaits;
  return IoMonitor.Ticks.GoesOn() && !IoMonitor.IoStopReq && !hand;
}

void TakeBits(const IoBits& read, IoBits& known, std::array<std::int64_t, kIoPoints>& changed_us) {
  const std::int64_t now = doors.pump->NowUs();
  for (int point = 0; point < kIoPoints; ++point) {
    if (IoMonitor.Known && read[point] != known[point]) changed_us[point] = now;
  }
  known = read;
}

/// Each marked output is turned round, and the whole word goes out. What was not taken stays
/// marked.
TusinOutcome SendFlips() {
  const IoBits flips = IoMonitor.IoOutFlip;
  IoBits word = IoMonitor.IoOutBit;
  for (int point = 0; point < kIoPoints; ++point) word[point] = word[point] != flips[point];
  IoMonitor.IoOutFlip.fill(false);
  IoMonitor.IoWritePending = False;
  const TusinOutcome outcome = WriteOutputToCt(word);
  for (int point = 0; point < kIoPoints; ++point) {
    if (!flips[point]) continue;
    if (outcome == TusinOutcome::Good) IoMonitor.Forced[point] = true;
    if (outcome != TusinOutcome::Good) IoMonitor.IoOutFlip[point] = true;
  }
  if (outcome == TusinOutcome::Good) {
    IoMonitor.IoOutBit = word;
  } else {
    IoMonitor.IoWritePending = True;
  }
  return outcome;
}

TusinOutcome ReadPoints() {
  IoBits inputs, outputs;
  const TusinOutcome outcome = ReadIoFromCt(inputs, outputs);
  if (outcome != TusinOutcome::Good || !GoesOn()) return outcome;
  TakeBits(inputs, IoMonitor.IoInBit, IoMonitor.InChangedUs);
  TakeBits(outputs, IoMonitor.IoOutBit, IoMonitor.OutChangedUs);
  IoMonitor.Known = true;
  IoMonitor.Stale = false;
  IoMonitor.TrueAt = doors.pump->TimeOfDay();
  IoMonitor.TrueUs = doors.pump->NowUs();
  IoStateHyoji2();
  if (IoMonitor.Aged) ShowIoAge();
  return outcome;
}

TusinOutcome ReadnDisp_PresentPosMoni() {
  AxisArray<std::int32_t> pulses{};
  TusinFailure failure{TusinEnd::Withdrawn, 0, {}};
  if (ReadPresentPosFromCt(pulses, &failure) != 0) return TellFailed(failure);
  for (const int axis : AxesInUse()) {
    const auto mm = PulseToMm(DevSetting[axis].Lead, DevSetting[axis].Ppr, pulses[axis]);
    frmIOCheckFG.Io.lblCurrentPos[axis].Caption = mm ? FormatMm(*mm) : "-";
    IoMonitor.PositionMm[axis] = mm;
  }
  return TusinOutcome::Good;
}

/// A long list on a slow line makes the values old by itself, a line without an answer does not.
bool HaveAged() {
  if (!IoMonitor.IoMonOn || !IoMonitor.Known) return false;
  const std::int64_t now_us = doors.pump->NowUs();
  const std::int64_t age_ms = (now_us - IoMonitor.TrueUs) / 1000;
  return age_ms > kOldMs && (age_ms > IoMonitor.OldAfterMs || TusinQueue.IsUnanswered(now_us));
}

/// A poll's requests in their order; nothing more is sent once the monitor is to end.
TusinOutcome AskIo() {
  const PortClosedAfter port_closed;
  TusinOutcome outcome = SendOverride();
  const auto next = [&outcome](TusinOutcome (*ask)()) {
    if (outcome != TusinOutcome::Good) return;
    outcome = GoesOn() ? ask() : TusinOutcome::Withdrawn;
  };
  if (IoMonitor.IoWritePending) next(SendFlips);
  next(ReadPoints);
  next(ReadnDisp_PresentPosMoni);
  next([] { return RefreshWatchLists(GoesOn); });
  return outcome;
}

void CloseNow() {
  IoMonitor.IoStopped = True;
  UnloadView(frmIOCheckFG);
}

/// The link has told the user. Where the line still serves, what was taken is given back; a close
/// that was asked for is carried out.
void PollFailed() {
  FreezeIoMonitor();
  SettleLostSession();
  if (!AppState.Offline && !FlowHoldsLine()) TakeBackOverride();
  if (!IoMonitor.IoStopReq) return;
  if (!FlowHoldsLine()) return CloseNow();
  IoMonitor.IoStopReq = False;
}

/// The end of a tick. A close waits until nothing else has the line: what was taken is given back.
void EndTick() {
  Timer& timer = frmIOCheckFG.timerInputOutput1;
  if (AppState.Offline && IoMonitor.IoMonOn) return PollFailed();
  if (const int pace_ms = IoMonitor.Ticks.PaceMs()) {
    IoMonitor.OldAfterMs = std::max(kOldMs, 2 * std::int64_t{pace_ms});
  }
  ShowIoAge();
  if (!IoMonitor.IoStopReq || FlowHoldsLine()) {
    if (IoMonitor.IoMonOn || IoMonitor.IoStopReq) timer.Start(kNextPollMs);
    return;
  }
  CloseNow();
}

}  // namespace

void StartIoMonitor() {
  IoMonitor.IoMonOn = True;
  IoMonitor.IoStopReq = IoMonitor.IoStopped = IoMonitor.IoWritePending = False;
  IoMonitor.Known = IoMonitor.Stale = IoMonitor.Aged = false;
  IoMonitor.OldAfterMs = kOldBeforeAnyPaceMs;
  IoMonitor.TrueAt.clear();
  IoMonitor.ModesSent = -1;
  IoMonitor.InChangedUs.fill(0);
  IoMonitor.OutChangedUs.fill(0);
  AllLED_Off();
  IoMonitor.Ticks.Begin();
  frmIOCheckFG.timerInputOutput1.Start(kFirstPollMs);
  ShowIoPace();
}

void StopIoMonitor() {
  frmIOCheckFG.timerInputOutput1.Stop();
  IoMonitor.Ticks.End();
  IoMonitor.IoMonOn = IoMonitor.IoWritePending = False;
  IoMonitor.Known = IoMonitor.Stale = IoMonitor.Aged = false;
  AllLED_Off();
  ForgetShownWatchValues();
  RecordPlotGap();
  ShowIoPace();
}

void FreezeIoMonitor() {
  if (!IoMonitor.IoMonOn) return;
  frmIOCheckFG.timerInputOutput1.Stop();
  IoMonitor.Ticks.End();
  IoMonitor.IoMonOn = IoMonitor.IoWritePending = False;
  IoMonitor.IoOutFlip.fill(false);
  IoMonitor.Stale = IoMonitor.Known;
  IoMonitor.Aged = false;
  IoStateHyoji2();
  TouchWatchLists();
  RecordPlotGap();
  ShowIoPace();
}

void ShowIoPause() {
  if (!IoMonitor.IoMonOn) return;
  if (FlowHoldsLine() && !IoMonitor.Parted) {
    IoMonitor.Parted = true;
    RecordPlotGap();
  }
  IoStateHyoji2();
  TouchWatchLists();
  ShowIoAge();
}

void ShowIoAge() {
  if (const bool aged = HaveAged(); aged != IoMonitor.Aged) {
    IoMonitor.Aged = aged;
    if (aged && !IoMonitor.Parted) {
      IoMonitor.Parted = true;
      RecordPlotGap();
    }
    IoStateHyoji2();
    TouchWatchLists();
  }
  ShowIoPace();
}

void timerInputOutput1_Timer() {
  frmIOCheckFG.timerInputOutput1.Stop();
  if (IoMonitor.IoStopReq) return EndTick();
  IoMonitor.Parted = false;
  frmIOCheckFG.TimerAge.Start();
  const PollEnd end = IoMonitor.Ticks.Run(AskIo);
  frmIOCheckFG.TimerAge.Stop();
  switch (end) {
    case PollEnd::Over:
      if (!IoMonitor.IoStopReq) return;
      break;
    case PollEnd::Failed:
      return PollFailed();
    case PollEnd::Done:
      if (!IoMonitor.Parted) RecordPlot();
      break;
    default:
      break;
  }
  EndTick();
}

}  // namespace tr7
