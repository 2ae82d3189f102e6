#include "sim/error_codes.h"
#include "sim/machine.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

std::string BadFrame() { return ErrorText('0', error_code::kBadFrame); }
std::string BadNumber() { return ErrorText('0', error_code::kBadNumber); }

bool DigitsUpTo(std::string_view text, char highest) {
  for (char c : text) {
    if (c < '0' || c > highest) return false;
  }
  return true;
}

/// "0CM" m, or "0CM" m a1 a2 a3 a4. The short form gives or takes the PC's command. An axis is
/// under its normal control by "0", held for the PC by "1", and has its servo off by "2".
std::string ControlMode(Machine& machine, std::string_view args, std::int64_t now_us) {
  if (args.size() != 1 && args.size() != 5) return BadFrame();
  if (!DigitsUpTo(args, '2')) return BadNumber();
  if (args.size() == 1) {
    machine.pc_command = args[0] == '1';
  } else {
    machine.TakeControl(args.substr(1), now_us);
  }
  return "0CM" + std::string(args);
}

/// The digit of axes for which `holds`; "F" for all in use when the controller reports so.
template <typename Holds>
std::string AxisDigit(const Machine& machine, Holds holds) {
  unsigned digit = 0;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (machine.InUse(axis) && holds(axis)) digit |= 1U << axis;
  }
  if (machine.setup.rest_as_f && digit == machine.mask) return "F";
  return Hex(digit, 1);
}

std::string RestState(Machine& machine, std::string_view args, std::int64_t) {
  if (!args.empty()) return BadFrame();
  return "0RA" + AxisDigit(machine, [&](int axis) { return !machine.Busy(axis); });
}

std::string HomeState(Machine& machine, std::string_view args, std::int64_t) {
  if (!args.empty()) return BadFrame();
  return "0RH" + AxisDigit(machine, [&](int axis) { return machine.axes.Homed(axis); });
}

std::string ResetAlarm(Machine& machine, std::string_view, std::int64_t) {
  machine.alarm.reset();
  machine.servo_lost = 0;
  return "0AR";
}

std::string Version(Machine& machine, std::string_view args, std::int64_t) {
  const Setup& setup = machine.setup;
  if (args.empty()) {
    const std::string fitted = "R" + std::to_string(setup.axis_count) + "M";
    return "0RV" + setup.version + (setup.marker.empty() ? fitted : setup.marker);
  }
  if (args.size() != 1) return BadFrame();
  const int axis = args[0] - '1';
  if (axis < 0 || axis >= setup.axis_count) return BadNumber();
  return "0RV" + std::string(args) + setup.axis_versions[axis] + "R7R";
}

constexpr Command kCommands[] = {{"0CM", ControlMode},
                                 {"0RA", RestState},
                                 {"0RH", HomeState},
                                 {"0AR", ResetAlarm},
                                 {"0RV", Version}};

}  // namespace

std::span<const Command> StatusCommands() { return kCommands; }

}  // namespace qvr7sim
