#include "sim/error_codes.h"
#include "sim/machine.h"
#include "sim/moves.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr double kTenMilliseconds = 0.01;

std::string BadFrame() { return ErrorText('0', error_code::kBadFrame); }
std::string BadNumber() { return ErrorText('0', error_code::kBadNumber); }
std::string ErrorOf(const std::optional<Alarm>& refused) {
  return refused ? ErrorText(*refused) : "";
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
  const std::string error = ErrorOf(machine.MoveToPosition(number, bits, name == "0MP", now_us));
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
  AxisMoves steps;
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    const std::string_view group = args.substr(axis * kGroup, kGroup);
    const char way = group[5];
    if (way != '0' && way != '1') return BadNumber();
    steps[axis] = {way == '1', HexValue(group.substr(6, 5)), HexValue(group.substr(0, 3)),
                   HexValue(group.substr(3, 2)) * kTenMilliseconds};
  }
  const std::string error = ErrorOf(StartMoves(machine, steps, now_us));
  return error.empty() ? "0MV" : error;
}

/// Speed digit (tenths of the jog speed, "0" the full one) and for each axis "0" stands, "1" runs
/// towards home, "2" away from it.
std::string Jog(Machine& machine, std::string_view args, std::int64_t now_us) {
  if (args.size() != 1 + kAxes) return BadFrame();
  if (args[0] < '0' || args[0] > '9') return BadFrame();
  for (int axis = 0; axis < kAxes; ++axis) {
    const char digit = args[1 + axis];
    if (digit < '0' || digit > '2') return BadNumber();
    const auto refused = digit == '0' ? std::nullopt : JogRefusal(machine, axis);
    if (refused) return ErrorText(*refused);
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
  machine.tasks.StopAll(machine, now_us);
  machine.axes.Stop(kStopFall, now_us);
  machine.arrival.reset();
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

/// As "0DM", but refused while an axis moves, and with the number in the reply.
std::string StartProgram(Machine& machine, std::string_view args, std::int64_t now_us) {
  if (args.size() != 2 || !AllHex(args)) return BadFrame();
  const int program = HexValue(args);
  if (program < 1 || program > kPrograms) return BadNumber();
  return machine.StartProgram(program, now_us) ? "0MG" + std::string(args) : BadNumber();
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
