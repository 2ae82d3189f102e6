#include "sim/error_codes.h"
#include "sim/machine.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr std::size_t kBlockLength = 32;
constexpr std::size_t kNumberDigits = 2;
constexpr std::size_t kGroupDigits = 6;

std::string BadFrame() { return ErrorText('0', error_code::kBadFrame); }
std::string BadNumber() { return ErrorText('0', error_code::kBadNumber); }

/// A family of cells whose frames carry the cell, then its content.
struct Family {
  Bank Memory::*bank;
  std::size_t cell_digits;
  int first;
  std::size_t content_length;
  bool hex_only;  // parameter blocks carry device texts too
};

constexpr Family kParameters{&Memory::blocks, 1, 0, kBlockLength, false};
constexpr Family kGroupData{&Memory::groups, kNumberDigits, 1, kGroupDigits, true};
constexpr Family kMacroData{&Memory::macros, kNumberDigits, 1, 2 * kMacroSteps, true};
constexpr Family kSystem{&Memory::system, 1, 0, kBlockLength, true};

/// Cell named by the digits in front of `args`, -1 when there is none such.
int Cell(const Machine& machine, const Family& family, std::string_view args) {
  const int cell = HexValue(args.substr(0, family.cell_digits));
  return cell >= family.first && cell < (machine.memory.*family.bank).size() ? cell : -1;
}

template <const Family& family>
std::string Read(std::string_view name, Machine& machine, std::string_view args) {
  if (args.size() != family.cell_digits || !AllHex(args)) return BadFrame();
  const int cell = Cell(machine, family, args);
  if (cell < 0) return BadNumber();
  return std::string(name) + std::string(args) + (machine.memory.*family.bank).Written(cell);
}

template <const Family& family>
std::string Write(std::string_view name, Machine& machine, std::string_view args) {
  if (args.size() != family.cell_digits + family.content_length) return BadFrame();
  const std::string_view number = args.substr(0, family.cell_digits);
  const std::string_view content = args.substr(family.cell_digits);
  if (!AllHex(number) || (family.hex_only && !AllHex(content))) return BadFrame();
  const int cell = Cell(machine, family, args);
  if (cell < 0) return BadNumber();
  (machine.memory.*family.bank).Write(cell, std::string(content));
  return std::string(name) + std::string(number);
}

std::string WriteGroup(Machine& machine, std::string_view args, std::int64_t) {
  if (args.size() == kNumberDigits + kGroupDigits && AllHex(args)) {
    const bool fits =
        HexValue(args.substr(2, 3)) <= kPositions && HexValue(args.substr(5, 3)) <= kPositions;
    if (!fits) return BadNumber();
  }
  return Write<kGroupData>("0WG", machine, args);
}

/// "1" macros, "2" all parameter blocks, "3" groups, none: parameter block 0.
std::string CommitWritten(Machine& machine, std::string_view args, std::int64_t) {
  if (args.size() > 1) return BadFrame();
  Memory& memory = machine.memory;
  if (args.empty()) {
    memory.blocks.Commit(0, 0);
  } else if (args == "1") {
    memory.macros.CommitAll();
  } else if (args == "2") {
    memory.blocks.CommitAll();
  } else if (args == "3") {
    memory.groups.CommitAll();
  } else {
    return BadNumber();
  }
  return "0WE" + std::string(args);
}

std::string CommitSystem(Machine& machine, std::string_view args, std::int64_t) {
  if (!args.empty()) return BadFrame();
  machine.memory.system.CommitAll();
  return "0WF";
}

constexpr Command kCommands[] = {
    {"0RD",
     [](Machine& m, std::string_view a, std::int64_t) { return Read<kParameters>("0RD", m, a); }},
    {"0RG",
     [](Machine& m, std::string_view a, std::int64_t) { return Read<kGroupData>("0RG", m, a); }},
    {"0RS",
     [](Machine& m, std::string_view a, std::int64_t) { return Read<kMacroData>("0RS", m, a); }},
    {"0RK",
     [](Machine& m, std::string_view a, std::int64_t) { return Read<kSystem>("0RK", m, a); }},
    {"0WD",
     [](Machine& m, std::string_view a, std::int64_t) { return Write<kParameters>("0WD", m, a); },
     false, true},
    {"0WG", WriteGroup, false, true},
    {"0WS",
     [](Machine& m, std::string_view a, std::int64_t) { return Write<kMacroData>("0WS", m, a); },
     false, true},
    {"0WK",
     [](Machine& m, std::string_view a, std::int64_t) { return Write<kSystem>("0WK", m, a); },
     false, true},
    {"0WE", CommitWritten, true, true},
    {"0WF", CommitSystem, true, true}};

}  // namespace

std::span<const Command> BlockCommands() { return kCommands; }

}  // namespace qvr7sim
