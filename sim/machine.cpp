#include "sim/machine.h"

#include <algorithm>

#include "sim/error_codes.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr std::size_t kNameLength = 3;
constexpr std::string_view kAlarmReset = "0AR";
/// LB 1, TIM 1, JUMP 1.
constexpr std::string_view kIdleLoop =
    "0B0003E800000000000"
    "0A0003E800000000000"
    "0C0003E800000000000";

}  // namespace

std::string ErrorText(const Alarm& error) {
  return std::string("0%%") + error.unit + error.middle + error.code;
}

std::string ErrorText(char unit, char code) { return ErrorText(Alarm{unit, '0', code}); }

const Command* FindCommand(std::string_view request) {
  const std::string_view name = request.substr(0, kNameLength);
  for (const auto& family : {StatusCommands(), MotionCommands(), PositionCommands(),
                             BlockCommands(), ProgramCommands(), MonitorCommands()}) {
    for (const Command& command : family) {
      if (command.name == name) return &command;
    }
  }
  return nullptr;
}

Machine::Machine(const Setup& start) : Plant(start) {
  std::stable_sort(setup.inputs.begin(), setup.inputs.end(),
                   [](const auto& a, const auto& b) { return a.at_us < b.at_us; });
  for (int program = 1; program <= start.running_tasks; ++program) {
    if (memory.programs.Written(program).empty())
      memory.programs.Write(program, std::string(kIdleLoop));
    tasks.Start(*this, program, 0);
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
  tasks.Poke(now_us);  // an axis may be free again
  return reply;
}

std::optional<std::int64_t> Machine::NextInsideUs() const {
  auto next = axes.NextRestUs();
  const auto earlier = [&next](std::int64_t us) {
    if (!next || us < *next) next = us;
  };
  if (const auto step = tasks.NextUs()) earlier(*step);
  if (const auto step = MacroStepEndUs()) earlier(*step);
  if (inputs_done_ < setup.inputs.size()) earlier(setup.inputs[inputs_done_].at_us);
  return next;
}

void Machine::Settle(std::int64_t now_us) {
  for (auto next = NextInsideUs(); next && *next <= now_us; next = NextInsideUs()) {
    const std::int64_t at_us = *next;
    if (const auto failed = axes.Settle(at_us)) Raise(*failed, at_us);
    SeeArrival(at_us);
    PlayMacro(at_us);
    for (; inputs_done_ < setup.inputs.size(); ++inputs_done_) {
      const TimedInput& input = setup.inputs[inputs_done_];
      if (input.at_us > at_us) break;
      Set(input.signal, input.value, at_us);
    }
    if (const auto failed = tasks.Run(*this, at_us)) {
      Raise(failed->alarm, at_us);
      failed_step = {failed->program, failed->step};
    }
  }
}

void Machine::Raise(const Alarm& raised, std::int64_t now_us) {
  axes.Halt(now_us);
  tasks.Drop();
  arrival.reset();
  alarm = raised;
  failed_step = {};
}

void Machine::SetInput(int number, bool on, std::int64_t now_us) {
  const bool was_on = values.IsOn({RefKind::kInput, number}, 0);
  values.SetInput(number, on);
  if (on && !was_on) InputWentOn(number, now_us);
  PlayMacro(now_us);
  tasks.Poke(now_us);
}

void Machine::Set(const Signal& signal, std::int32_t value, std::int64_t now_us) {
  constexpr int kThousand = 1000;
  const Operand& place = signal.place;
  if (place.kind == RefKind::kInput) return SetInput(place.value, value != 0, now_us);
  const bool whole = place.kind != RefKind::kPositionVariable;
  values.Switch(place, signal.program, value != 0);
  values.Store(place, signal.program, std::int64_t{value} * (whole ? kThousand : 1));
  tasks.Poke(now_us);
}

bool Machine::StartProgram(int program, std::int64_t now_us) {
  return mode == Mode::kProgram && tasks.Start(*this, program, now_us) != Tasks::Started::kNoRoom;
}

void Machine::PowerCycle(std::int64_t now_us) {
  memory.Revert();
  mode = memory.CommittedMode();
  // A stored mask without any fitted axis cannot run: the one before stays in force.
  const unsigned stored = memory.CommittedMask() & ((1U << setup.axis_count) - 1U);
  if (stored != 0) mask = stored;
  axes.Halt(now_us);
  axes.LoseHome();
  tasks.Drop();
  values.Clear();
  settings = {};
  forced = {};
  arrival.reset();
  alarm.reset();
  servo_lost = 0;
  pc_command = false;
  control_digits = "0000";
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

}  // namespace qvr7sim
