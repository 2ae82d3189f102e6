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
  for (const auto& family :
       {StatusCommands(), MotionCommands(), PositionCommands(), BlockCommands()}) {
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
  return command->answer(*this, std::string_view(request).substr(kNameLength), now_us);
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
  pc_command = false;
  control_digits = "0000";
}

void Machine::MoveByInputs(std::int64_t time_us, std::int64_t now_us) {
  constexpr double kRise = 0.1;
  for (int axis = 0; axis < kAxes; ++axis) {
    const double speed = PulseSpeed(axis, setup.jog_mm_s);
    if (!InUse(axis) || control_digits[axis] != '0' || axes.Moving(axis) || speed <= 0.0) continue;
    const int here = axes.Pulses(axis, now_us), end = memory.MaxPulses(axis);
    const int way = static_cast<int>(speed * static_cast<double>(time_us) * 1e-6);
    const int to = here < end / 2 ? std::min(end, here + way) : std::max(0, here - way);
    axes.Move(axis, to, speed, kRise, now_us);
  }
}

bool Machine::AnyMoving() const {
  for (int axis = 0; axis < kAxes; ++axis) {
    if (axes.Moving(axis)) return true;
  }
  return false;
}

double Machine::PulseSpeed(int axis, int mm_s) const {
  const int lead = memory.Lead(axis);
  return lead == 0 ? 0.0 : static_cast<double>(mm_s) * memory.Ppr(axis) / lead;
}

}  // namespace qvr7sim
