// What monitors read and force: inputs, outputs, flags and variables.

#include "sim/error_codes.h"
#include "sim/io_points.h"
#include "sim/machine.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

std::string BadFrame() { return ErrorText('0', error_code::kBadFrame); }
std::string BadNumber() { return ErrorText('0', error_code::kBadNumber); }

std::string ReadInputs(Machine& machine, std::string_view args, std::int64_t now_us) {
  if (!args.empty()) return BadFrame();
  return "0RI" + PointDigits(InputWord(machine, now_us), kInputDigits);
}

std::string ReadOutputs(Machine& machine, std::string_view args, std::int64_t now_us) {
  if (!args.empty()) return BadFrame();
  return "0RO" + PointDigits(OutputWord(machine, now_us), kOutputDigits);
}

std::string WriteOutputs(Machine& machine, std::string_view args, std::int64_t now_us) {
  if (args.size() != kOutputDigits || !AllHex(args)) return BadFrame();
  ForceOutputs(machine, PointWord(std::string(args)), now_us);
  machine.tasks.Poke(now_us);
  return "0WO";
}

/// Program and number of an item, two digits each; program 0 is what all programs share.
struct Item {
  int program = 0;
  int number = 0;
  bool in_frame = false;  ///< both are numbers that can be asked for
};

Item ItemOf(std::string_view args, int lowest_program) {
  constexpr int kMostItems = 100;
  Item item{HexValue(args.substr(0, 2)), HexValue(args.substr(2)), false};
  item.in_frame = item.program >= lowest_program && item.program <= kPrograms && item.number >= 1 &&
                  item.number <= kMostItems;
  return item;
}

/// An item that can be asked for and is not there.
std::string Missing(std::size_t width) { return std::string(width, 'X'); }

std::string ReadFlag(Machine& machine, std::string_view args, std::int64_t) {
  if (args.size() != 4 || !AllHex(args)) return BadFrame();
  const Item item = ItemOf(args, 0);
  if (!item.in_frame) return BadNumber();
  const RefKind kind = item.program == 0 ? RefKind::kFlag : RefKind::kLocalFlag;
  if (item.number > CountOf(kind)) return "0FR" + std::string(args) + Missing(1);
  const bool on = machine.values.IsOn({kind, item.number}, item.program);
  return "0FR" + std::string(args) + (on ? "1" : "0");
}

constexpr int kValueDigits = 8;

/// A 32-bit number in two's complement.
std::string Digits(std::int64_t value) {
  return Hex(static_cast<unsigned>(static_cast<std::int32_t>(value)), kValueDigits);
}

std::string ReadVariable(Machine& machine, std::string_view args, std::int64_t) {
  if (args.size() != 4 || !AllHex(args)) return BadFrame();
  const Item item = ItemOf(args, 0);
  if (!item.in_frame) return BadNumber();
  const RefKind kind = item.program == 0 ? RefKind::kVariable : RefKind::kLocalVariable;
  if (item.number > CountOf(kind)) return "0HR" + std::string(args) + Missing(kValueDigits);
  const std::int64_t value = machine.values.Thousandths({kind, item.number}, item.program) / 1000;
  return "0HR" + std::string(args) + Digits(value);
}

/// The reply carries the number in one digit.
std::string ReadPositionVariable(Machine& machine, std::string_view args, std::int64_t) {
  if (args.size() != 4 || !AllHex(args)) return BadFrame();
  const Item item = ItemOf(args, 1);
  if (!item.in_frame || item.number > kAxes) return BadNumber();
  const Operand place{RefKind::kPositionVariable, item.number};
  return "0HP" + std::string(args.substr(0, 2)) + std::string(args.substr(3)) +
         Digits(machine.values.Thousandths(place, item.program));
}

constexpr Command kCommands[] = {{"0RI", ReadInputs},   {"0RO", ReadOutputs},
                                 {"0WO", WriteOutputs}, {"0FR", ReadFlag},
                                 {"0HR", ReadVariable}, {"0HP", ReadPositionVariable}};

}  // namespace

std::span<const Command> MonitorCommands() { return kCommands; }

}  // namespace qvr7sim
