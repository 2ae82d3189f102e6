#include <algorithm>
#include <array>

#include "sim/error_codes.h"
#include "sim/machine.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr double kTenMilliseconds = 0.01;
constexpr double kJogRise = 0.1;
constexpr double kStopFall = 0.05;

std::string BadFrame() { return ErrorText('0', error_code::kBadFrame); }
std::string BadNumber() { return ErrorText('0', error_code::kBadNumber); }
std::string ServoOff() { return ErrorText('0', error_code::kMotorPowerOff); }
std::string AxisError(int axis, char code) {
  return ErrorText(static_cast<char>('1' + axis), code);
}
Alarm AxisAlarm(int axis, char middle, char code) {
  return {static_cast<char>('1' + axis), middle, code};
}

/// Where one axis goes within a command that moves several.
struct Step {
  bool moves = false;
  int to = 0;
  int vel = 0;  // mm/s
  int acc = 0;  // 10 ms
};
using Steps = std::array<Step, kAxes>;

/// Starts all axes of a command, or none and returns the error reply.
std::string Start(Machine& machine, const Steps& steps, std::int64_t now_us) {
  for (int axis = 0; axis < kAxes; ++axis) {
    const Step& step = steps[axis];
    if (!step.moves) continue;
    if (!machine.InUse(axis) || step.vel == 0 || step.acc == 0) return BadNumber();
    if (!machine.ServoOn(axis)) return ServoOff();
    if (machine.PulseSpeed(axis, step.vel) <= 0.0) return BadNumber();
    if (step.to < 0 || step.to > machine.memory.MaxPulses(axis)) {
      return AxisError(axis, error_code::kBeyondStroke);
    }
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    const Step& step = steps[axis];
    if (!step.moves) continue;
    machine.axes.Move(axis, step.to, machine.PulseSpeed(axis, step.vel),
                      step.acc * kTenMilliseconds, now_us);
    machine.axes.TripAbove(axis, machine.TopSpeed(axis),
                           AxisAlarm(axis, '1', error_code::kDeviation));
  }
  return "";
}

std::string Home(Machine& machine, unsigned mask, std::int64_t now_us) {
  for (int axis = 0; axis < kAxes; ++axis) {
    if (((mask >> axis) & 1U) == 0) continue;
    if (machine.PulseSpeed(axis, machine.setup.home_mm_s) <= 0.0) return BadNumber();
    if (!machine.ServoOn(axis)) return ServoOff();
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    if (((mask >> axis) & 1U) == 0) continue;
    machine.axes.Home(axis, machine.PulseSpeed(axis, machine.setup.home_mm_s),
                      machine.setup.home_search_us, now_us);
  }
  return "";
}

int Target(const AxisTarget& target, int here) {
  if (target.way == 2) return here + target.pulses;
  if (target.way == 3) return here - target.pulses;
  return target.pulses;
}

/// `with_macro`: the macro of the position runs when the axes have arrived.
std::string MoveToRecord(Machine& machine, int number, unsigned mask, bool with_macro,
                         std::int64_t now_us) {
  PositionRecord record;
  DecodePosition(machine.memory.positions.Written(number), &record);
  Steps steps;
  for (int axis = 0; axis < kAxes; ++axis) {
    const AxisTarget& target = record.axis[axis];
    if (((mask >> axis) & 1U) == 0 || target.way == 0) continue;
    if (!machine.axes.Homed(axis)) return AxisError(axis, error_code::kNotHomed);
    const int to = Target(target, machine.axes.Pulses(axis, now_us));
    steps[axis] = {true, to, target.vel, target.acc};
  }
  const std::string error = Start(machine, steps, now_us);
  const std::int64_t macro_us = with_macro ? machine.MacroUs(record.sm) : 0;
  if (error.empty() && macro_us > 0) machine.axes.Linger(mask, macro_us, now_us);
  return error;
}

/// hhh and a mask of one or two digits; number 0 is the home position.
std::string MoveByNumber(Machine& machine, std::string_view name, std::string_view args,
                         std::int64_t now_us) {
  if (args.size() != 4 && args.size() != 5) return BadFrame();
  const int number = HexValue(args.substr(0, 3));
  const int mask = HexValue(args.substr(3));
  if (number < 0 || mask < 0) return BadFrame();
  if (number > kPositions) return BadNumber();
  const auto bits = static_cast<unsigned>(mask);
  if ((bits & ~machine.mask) != 0) return BadNumber();
  const std::string error = number == 0
                                ? Home(machine, bits, now_us)
                                : MoveToRecord(machine, number, bits, name == "0MP", now_us);
  return error.empty() ? std::string(name) : error;
}

std::string MoveWithMacro(Machine& machine, std::string_view args, std::int64_t now_us) {
  return MoveByNumber(machine, "0MP", args, now_us);
}

std::string MoveWithoutMacro(Machine& machine, std::string_view args, std::int64_t now_us) {
  return MoveByNumber(machine, "0MS", args, now_us);
}

/// Four groups of velocity (3), acceleration (2), way (1) and position (5), then a tail of at most
/// 8 characters that changes nothing.
std::string MoveDirect(Machine& machine, std::string_view args, std::int64_t now_us) {
  constexpr std::size_t kGroup = 11;
  constexpr std::size_t kGroups = kGroup * kAxes;
  constexpr std::size_t kLongestTail = 8;
  if (args.size() < kGroups || args.size() > kGroups + kLongestTail) return BadFrame();
  if (!AllHex(args)) return BadFrame();
  Steps steps;
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    const std::string_view group = args.substr(axis * kGroup, kGroup);
    const char way = group[5];
    if (way != '0' && way != '1') return BadNumber();
    steps[axis] = {way == '1', HexValue(group.substr(6, 5)), HexValue(group.substr(0, 3)),
                   HexValue(group.substr(3, 2))};
  }
  const std::string error = Start(machine, steps, now_us);
  return error.empty() ? "0MV" : error;
}

/// Runs one axis towards home or away from it: to the end of its stroke, or without that limit into
/// what is behind it.
void JogAxis(Machine& machine, int axis, bool to_home, double speed, std::int64_t now_us) {
  constexpr int kBehindTheEnd = 100;  // pulses
  const int here = machine.axes.Pulses(axis, now_us), stroke = machine.memory.MaxPulses(axis);
  if (machine.memory.SoftLimit(axis)) {
    const int end = to_home ? std::min(0, here) : std::max(stroke, here);
    return machine.axes.Move(axis, end, speed, kJogRise, now_us);
  }
  const int end = to_home ? std::min(-kBehindTheEnd, here) : std::max(stroke + kBehindTheEnd, here);
  const char code = to_home ? error_code::kMinusLimit : error_code::kPlusLimit;
  machine.axes.RunInto(axis, end, speed, kJogRise, now_us, AxisAlarm(axis, '3', code));
}

/// Speed digit (tenths of the jog speed, "0" the full one) and for each axis "0" stands, "1" runs
/// towards home, "2" away from it.
std::string Jog(Machine& machine, std::string_view args, std::int64_t now_us) {
  if (args.size() != 1 + kAxes) return BadFrame();
  if (args[0] < '0' || args[0] > '9') return BadFrame();
  for (int axis = 0; axis < kAxes; ++axis) {
    const char digit = args[1 + axis];
    if (digit < '0' || digit > '2') return BadNumber();
    if (digit != '0' && !machine.InUse(axis)) return BadNumber();
    if (digit != '0' && !machine.ServoOn(axis)) return ServoOff();
  }
  const int tenths = args[0] == '0' ? 10 : args[0] - '0';
  for (int axis = 0; axis < kAxes; ++axis) {
    const char digit = args[1 + axis];
    const double speed = machine.PulseSpeed(axis, machine.setup.jog_mm_s) * tenths / 10.0;
    if (digit != '0' && speed > 0.0) JogAxis(machine, axis, digit == '1', speed, now_us);
  }
  return "0JR";
}

std::string Stop(Machine& machine, std::string_view args, std::int64_t now_us) {
  if (!args.empty()) return BadFrame();
  machine.NoteStop(now_us);
  machine.axes.Stop(kStopFall, now_us);
  return "0SP";
}

/// Present positions of the axes in the mask, 20 bits each; below zero they wrap.
std::string PresentPositions(Machine& machine, std::string_view args, std::int64_t now_us) {
  if (args.size() != 1 || !AllHex(args)) return BadFrame();
  const auto bits = static_cast<unsigned>(HexValue(args));
  if ((bits & ~machine.mask) != 0) return BadNumber();
  std::string reply = "0RC" + std::string(args);
  for (int axis = 0; axis < kAxes; ++axis) {
    if (((bits >> axis) & 1U) == 0) continue;
    reply += Hex(static_cast<unsigned>(machine.axes.Pulses(axis, now_us)), 5);
  }
  return reply;
}

/// Accepted in program mode alone; the program itself has nothing to run on here.
std::string StartProgram(Machine& machine, std::string_view args, std::int64_t) {
  if (args.size() != 2 || !AllHex(args)) return BadFrame();
  if (machine.mode != Mode::kProgram) return BadNumber();
  return "0MG" + std::string(args);
}

constexpr Command kCommands[] = {{"0MP", MoveWithMacro, false, true},
                                 {"0MS", MoveWithoutMacro, false, true},
                                 {"0MV", MoveDirect, false, true},
                                 {"0JR", Jog, false, true},
                                 {"0SP", Stop},
                                 {"0RC", PresentPositions},
                                 {"0MG", StartProgram, false, true}};

}  // namespace

std::span<const Command> MotionCommands() { return kCommands; }

}  // namespace qvr7sim
