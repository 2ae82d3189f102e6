#include "sim/machine.h"

#include <algorithm>

#include "sim/error_codes.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr std::size_t kNameLength = 3;
constexpr std::string_view kAlarmReset = "0AR";

}  // namespace

std::string ErrorText(const Alarm& error) {
  return std::string("0%%") + error.unit + error.middle + error.code;
}

std::string ErrorText(char unit, char code) { return ErrorText(Alarm{unit, '0', code}); }

const Command* FindCommand(std::string_view request) {
  const std::string_view name = request.substr(0, kNameLength);
  for (const auto& family : {StatusCommands(), MotionCommands(), PositionCommands(),
                             BlockCommands(), ProgramCommands()}) {
    for (const Command& command : family) {
      if (command.name == name) return &command;
    }
  }
  return nullptr;
}

Machine::Machine(const Setup& start)
    : setup(start), memory(start), mode(start.mode), mask(start.mask) {
  for (int axis = 0; axis < kAxes; ++axis) {
    axes.Place(axis, start.start_pulses[axis]);
    if (start.homed) axes.SetHomed(axis);
  }
}

std::string Machine::Answer(const std::string& request, std::int64_t now_us) {
  Settle(now_us);
  if (alarm && request != kAlarmReset) return ErrorText(*alarm);
  const Command* command = FindCommand(request);
  if (command == nullptr) return ErrorText('0', error_code::kUnknownCommand);
  if (!AllPrintable(request)) return ErrorText('0', error_code::kBadFrame);
  if (command->needs_standstill && AnyMoving()) return ErrorText('0', error_code::kMoving);
  const unsigned moving_before = axes.MovingMask();
  const std::string reply =
      command->answer(*this, std::string_view(request).substr(kNameLength), now_us);
  NoteStart(moving_before, request, now_us);
  return reply;
}

void Machine::Settle(std::int64_t now_us) {
  const auto failed = axes.Settle(now_us);
  if (failed) Raise(*failed, now_us);
}

void Machine::Raise(const Alarm& raised, std::int64_t now_us) {
  axes.Halt(now_us);
  alarm = raised;
}

void Machine::PowerCycle(std::int64_t now_us) {
  memory.Revert();
  mode = memory.CommittedMode();
  // A stored mask without any fitted axis cannot run: the one before stays in force.
  const unsigned stored = memory.CommittedMask() & ((1U << setup.axis_count) - 1U);
  if (stored != 0) mask = stored;
  axes.Halt(now_us);
  axes.LoseHome();
  alarm.reset();
  servo_lost = 0;
  pc_command = false;
  control_digits = "0000";
}

void Machine::NoteStart(unsigned moving_before, const std::string& request, std::int64_t now_us) {
  constexpr std::size_t kMostKept = 10000;
  const unsigned started = axes.MovingMask() & ~moving_before;
  if (started != 0) starts.push_back({now_us, started, request});
  if (starts.size() > kMostKept) starts.pop_front();
}

void Machine::NoteStop(std::int64_t now_us) {
  for (int axis = 0; axis < kAxes; ++axis) {
    travelled_at_stop[axis] = axes.Travelled(axis, now_us);
  }
}

void Machine::TakeControl(std::string_view digits, std::int64_t now_us) {
  control_digits = digits;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (digits[axis] == '2' && axes.Moving(axis)) LoseServo(axis, now_us);
  }
}

void Machine::LoseServo(int axis, std::int64_t now_us) {
  servo_lost |= 1U << axis;
  Raise({static_cast<char>('1' + axis), '2', error_code::kMotorLine}, now_us);
}

bool Machine::Push(int axis, int pulses) {
  if (ServoOn(axis) || axes.Moving(axis)) return false;
  axes.Place(axis, std::clamp(axes.Pulses(axis, 0) + pulses, 0, memory.MaxPulses(axis)));
  return true;
}

std::int64_t Machine::MacroUs(int number) const {
  constexpr std::int64_t kTimerUs = 100'000, kTimer10Us = 1'000'000;
  if (number < 1 || number > kMacros) return 0;
  const std::string& steps = memory.macros.Written(number);
  std::int64_t time_us = 0;
  for (std::size_t at = 0; at < steps.size() && steps[at] != '0' && steps[at] != 'F'; at += 2) {
    const int value = HexValue(std::string_view(steps).substr(at + 1, 1));
    if (steps[at] == '1' || steps[at] == '2') time_us += setup.input_wait_us;
    if (steps[at] == '5') time_us += value * kTimerUs;
    if (steps[at] == '6') time_us += value * kTimer10Us;
  }
  return time_us;
}

double Machine::TopSpeed(int axis) const {
  constexpr double kTopPulses = 10000.0;  // of the motor, a second
  constexpr int kFastMmS = 400;
  return memory.IsFastDevice(axis) ? PulseSpeed(axis, kFastMmS) : kTopPulses;
}

void Machine::MoveByInputs(std::int64_t time_us, std::int64_t now_us) {
  const unsigned moving_before = axes.MovingMask();
  constexpr double kRise = 0.1;
  for (int axis = 0; axis < kAxes; ++axis) {
    const double speed = PulseSpeed(axis, setup.jog_mm_s);
    if (!InUse(axis) || control_digits[axis] != '0' || axes.Moving(axis) || speed <= 0.0) continue;
    const int here = axes.Pulses(axis, now_us), end = memory.MaxPulses(axis);
    const int way = static_cast<int>(speed * static_cast<double>(time_us) * 1e-6);
    const int to = here < end / 2 ? std::min(end, here + way) : std::max(0, here - way);
    axes.Move(axis, to, speed, kRise, now_us);
  }
  NoteStart(moving_before, "inputs", now_us);
}

double Machine::PulseSpeed(int axis, int mm_s) const {
  const int lead = memory.Lead(axis);
  return lead == 0 ? 0.0 : static_cast<double>(mm_s) * memory.Ppr(axis) / lead;
}

}  // namespace qvr7sim
