#include "sim/error_codes.h"
#include "sim/machine.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr std::size_t kNumberDigits = 3;
constexpr std::size_t kRecordDigits = 60;

std::string BadFrame() { return ErrorText('0', error_code::kBadFrame); }
std::string BadNumber() { return ErrorText('0', error_code::kBadNumber); }

bool InTable(int number) { return number >= 1 && number <= kPositions; }

std::string Read(Machine& machine, std::string_view args, std::int64_t) {
  if (args.size() != kNumberDigits || !AllHex(args)) return BadFrame();
  const int number = HexValue(args);
  if (!InTable(number)) return BadNumber();
  return "0RP" + std::string(args) + machine.memory.positions.Written(number);
}

std::string Write(Machine& machine, std::string_view args, std::int64_t) {
  if (args.size() != kNumberDigits + kRecordDigits || !AllHex(args)) return BadFrame();
  const int number = HexValue(args.substr(0, kNumberDigits));
  if (!InTable(number)) return BadNumber();
  machine.memory.positions.Write(number, std::string(args.substr(kNumberDigits)));
  return "0WP" + std::string(args.substr(0, kNumberDigits));
}

std::string Commit(Machine& machine, std::string_view args, std::int64_t) {
  if (args.size() != 2 * kNumberDigits || !AllHex(args)) return BadFrame();
  const int first = HexValue(args.substr(0, kNumberDigits));
  const int last = HexValue(args.substr(kNumberDigits));
  if (!InTable(first) || !InTable(last) || first > last) return BadNumber();
  machine.memory.positions.Commit(first, last);
  return "0WA" + std::string(args);
}

constexpr Command kCommands[] = {
    {"0RP", Read}, {"0WP", Write, false, true}, {"0WA", Commit, true, true}};

}  // namespace

std::span<const Command> PositionCommands() { return kCommands; }

}  // namespace qvr7sim
