#include "link/status_commands.h"

#include <string>

#include "base/text_helpers.h"
#include "link/port.h"
#include "link/tusin_wait.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/online.h"

namespace tr7 {
namespace {

/// What "0RV" says of the main board.
struct Version {
  std::string text;
  std::string marker;
  std::int16_t axis_digit = 0;
};

int ReadVersion(Version& version) {
  if (TusinPortOpen() != 0) return 1;
  if (CtComStart() != 0) return 1;
  std::string reply;
  if (TusinCommand("0RV", 11, 5000, reply) != 0) return 1;
  version.text = reply.substr(3, 3);
  version.marker = reply.substr(6, 3);
  version.axis_digit = static_cast<std::int16_t>(Val(reply.substr(7, 1)));
  return 0;
}

}  // namespace

int CtComStart(int show_message) {
  std::string reply;
  TusinOptions options;
  options.show_message = show_message != 0;
  const TusinOutcome outcome = TusinWait("0CM1", 6, 1000, reply, options);
  if (outcome != TusinOutcome::Good) {
    // What a stop has overtaken says nothing of the line.
    if (outcome != TusinOutcome::Withdrawn) SetOffline();
    return 1;
  }
  SetOnline();
  // A write that died has left its axes held: nothing else comes before their release.
  return AppState.AxesMayBeHeld ? CtControlModeSet(0, 0, 0) : 0;
}

int CtControlModeSet(int mode, int m, int mask, TusinFailure* failure) {
  std::string command = "0CM";
  command += m == 1 || m == 2 ? std::to_string(m) : "0";
  const bool takes_axes = mode == 1 || mode == 2;
  for (int axis = 0; axis < kAxes; ++axis) {
    const bool named = takes_axes && InMask(mask & AxesInUseMask(), axis);
    command += named ? std::to_string(mode) : "0";
  }
  LiftOffline();
  ++AppState.ControlModesSent;
  std::string reply;
  const TusinOptions options{.failure = failure};
  if (TusinWait(command, 10, 2000, reply, options) != TusinOutcome::Good) return 1;
  if (!takes_axes) AppState.AxesMayBeHeld = False;
  return 0;
}

int ReadAlarmFromCt(TusinFailure* failure) {
  std::string reply;
  const TusinOptions options{.failure = failure};
  if (TusinWait("0RA", 6, 2000, reply, options) != TusinOutcome::Good) return -1;
  const std::string digit = reply.substr(3, 1);
  // The digit is read as a decimal one: a mask above 9 never equals it, and only "F" says that all
  // axes of such a controller stand still.
  return Val(digit) == AppState.AxisPattern || digit == "F" ? 1 : 0;
}

int ReadHomeStateFromCt() {
  std::string reply;
  if (TusinCommand("0RH", 6, 1000, reply) != 0) return 1;
  const std::string digit = reply.substr(3, 1);
  AppState.AllHomed = Val(digit) == AppState.AxisPattern || digit == "F";
  return 0;
}

int AlarmResetToCt() {
  std::string reply;
  if (TusinCommand("0AR", 5, 3000, reply) == 0) return 0;
  TusinPortClose();
  return 1;
}

int GetVersionNo() {
  Version version;
  if (ReadVersion(version) != 0) return 1;
  AppState.CtVersionText = version.text;
  AppState.CtModelMarker = version.marker;
  AppState.CtAxisDigit = version.axis_digit;
  return 0;
}

int GetVersionNoAxis() {
  Version version;
  return ReadVersion(version) == 0 ? version.axis_digit : -1;
}

int GetAxisVersionNo(int axis_count) {
  for (int axis = 1; axis <= axis_count && axis <= kAxes; ++axis) {
    const std::string command = "0RV" + std::to_string(axis);
    std::string reply;
    if (TusinCommand(command, 12, 1000, reply) != 0) return 1;
    if (!reply.starts_with(command) || reply.substr(7, 3) != "R7R") {
      TusinAbort();
      return 1;
    }
    AppState.AxisVersionText[axis - 1] = reply.substr(4, 3);
  }
  return 0;
}

}  // namespace tr7
