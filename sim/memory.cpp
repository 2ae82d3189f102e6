#include "sim/memory.h"

#include <algorithm>
#include <string_view>

#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr int kReplyDataStart = 5;  // block data begins at the fifth character of its reply
constexpr std::size_t kBlockLength = 32;

/// Puts text at a position counted as in the reply, from 1.
void Put(std::string* data, int position, std::string_view text) {
  data->replace(static_cast<std::size_t>(position - kReplyDataStart), text.size(), text);
}

int HexAt(const std::string& data, int position, int width) {
  return std::max(0, HexValue(std::string_view(data).substr(
                         static_cast<std::size_t>(position - kReplyDataStart),
                         static_cast<std::size_t>(width))));
}

std::string Zeros() { return std::string(kBlockLength, '0'); }

std::string CommonBlock(const Setup& setup) {
  std::string data = Zeros();
  Put(&data, 5, Hex(1, 2));                                   // HOME OUT
  Put(&data, 7, Hex(setup.mask, 2));                          // AXIS
  Put(&data, 9, Hex(1, 2));                                   // GRP ENABLE
  Put(&data, 11, Hex(0, 2));                                  // SM TIMEOUT
  Put(&data, 13, Hex(30, 2));                                 // SM TIMER
  Put(&data, 15, Hex(0, 2));                                  // AUTO START PRG No.
  Put(&data, 17, Hex(0, 2));                                  // AUTO HOME
  Put(&data, 19, Hex(0, 2));                                  // EMG LOGIC
  Put(&data, 21, Hex(0, 2));                                  // ALM1 CLEAR
  Put(&data, 23, Hex(static_cast<unsigned>(setup.mode), 2));  // POS/PRG
  Put(&data, 25, Hex(0, 2));                                  // PPUT Write
  return data;
}

/// HOME SEQ: the axes home one after the other.
std::string OrderBlock() {
  std::string data = Zeros();
  for (int axis = 0; axis < kAxes; ++axis) {
    Put(&data, 13 + 2 * axis, Hex(static_cast<unsigned>(axis + 1), 2));
  }
  return data;
}

std::string FirstAxisBlock() {
  std::string data = Zeros();
  Put(&data, 5, Hex(100, 6));  // HOME OFFSET
  Put(&data, 11, Hex(50, 2));  // HOME PUSH
  Put(&data, 13, Hex(20, 4));  // HOME VEL
  Put(&data, 17, Hex(10, 4));  // HOME OFSVEL
  Put(&data, 21, Hex(5, 4));   // HOME PUSHVEL
  Put(&data, 25, Hex(20, 4));  // JOGVEL
  Put(&data, 29, Hex(0, 2));   // AUTODRIVE
  Put(&data, 31, Hex(5, 2));   // IN-P WID
  Put(&data, 33, Hex(10, 2));  // HOLD TIME
  Put(&data, 35, Hex(1, 2));   // SOFT LIMIT
  return data;
}

std::string SecondAxisBlock(const Device& device) {
  std::string data = Zeros();
  Put(&data, 5, Hex(100, 6));                                        // ZONE1
  Put(&data, 11, Hex(static_cast<unsigned>(MaxPulses(device)), 6));  // ZONE2
  Put(&data, 17, Hex(100, 4));                                       // PG ALM
  Put(&data, 21, Hex(static_cast<unsigned>(device.pg), 2));          // PG FUNCTION
  Put(&data, 23, Hex(0, 2));                                         // ZONE ENABLE
  Put(&data, 25, Hex(10, 2));                                        // PG TIMER
  Put(&data, 27, Hex(30, 2));                                        // LS SERCH TIMER
  return data;
}

std::string DeviceData(const Device& device) {
  std::string data = Zeros();
  const auto stroke = static_cast<unsigned>(device.stroke_mm);
  const bool marked = device.size == "E35";
  Put(&data, 5, Hex(static_cast<unsigned>(device.type), 2));
  Put(&data, 7, Hex(static_cast<unsigned>(device.lead), 2));
  Put(&data, 9, Hex(static_cast<unsigned>(device.ppr), 4));
  Put(&data, 13, Hex(static_cast<unsigned>(MaxPulses(device)), 6));
  Put(&data, 21, device.size.substr(1));
  Put(&data, 23, std::string(1, marked ? 'E' : device.speed) + " ");
  Put(&data, 25, Hex(stroke & 0xFF, 2));
  Put(&data, 27, Hex(stroke >> 8, 2));
  return data;
}

std::string MacroData(const std::vector<std::pair<int, int>>& steps) {
  std::string data(2 * kMacroSteps, '0');
  for (std::size_t step = 0; step < steps.size() && step < kMacroSteps; ++step) {
    data.replace(2 * step, 1, Hex(static_cast<unsigned>(steps[step].first), 1));
    data.replace(2 * step + 1, 1, Hex(static_cast<unsigned>(steps[step].second), 1));
  }
  return data;
}

/// Tuning values that rise with their place, so that a field read from the wrong place shows.
std::string SystemData(int block) {
  const bool narrow = block == 2 || block == 3;
  const int width = narrow ? 2 : 4;
  std::string data;
  for (int field = 0; field < 32 / width; ++field) {
    const int value = narrow ? block * 16 + field : (block + 1) * 1000 + field * 10;
    data += Hex(static_cast<unsigned>(value), width);
  }
  return data;
}

}  // namespace

int BlockIndex(char block) {
  const int index = HexValue(std::string_view(&block, 1));
  return index < kParameterBlocks ? index : -1;
}

void Bank::Commit(int first, int last) {
  for (int cell = first; cell <= last; ++cell) {
    committed_[cell] = written_[cell];
  }
}

Memory::Memory(const Setup& setup)
    : positions(kPositions + 1, EncodePosition(PositionRecord{})),
      blocks(kParameterBlocks, Zeros()),
      groups(kGroups + 1, "001001"),
      macros(kMacros + 1, MacroData({})),
      system(kSystemBlocks, Zeros()),
      programs(kPrograms + 1, "") {
  for (const auto& [number, record] : setup.positions) {
    positions.Write(number, EncodePosition(record));
  }
  for (const auto& [number, range] : setup.groups) {
    groups.Write(number, Hex(static_cast<unsigned>(range.first), 3) +
                             Hex(static_cast<unsigned>(range.second), 3));
  }
  for (const auto& [number, steps] : setup.macros) macros.Write(number, MacroData(steps));
  for (const auto& [number, digits] : setup.programs) programs.Write(number, digits);
  blocks.Write(0, CommonBlock(setup));
  blocks.Write(1, OrderBlock());
  for (int axis = 0; axis < kAxes; ++axis) {
    const Device& device = setup.devices[axis];
    blocks.Write(DeviceBlock(axis) - 2, FirstAxisBlock());
    blocks.Write(SecondBlock(axis), SecondAxisBlock(device));
    blocks.Write(DeviceBlock(axis), DeviceData(device));
  }
  for (int block = 0; block < kSystemBlocks; ++block) system.Write(block, SystemData(block));
  for (Bank* bank : {&positions, &blocks, &groups, &macros, &system, &programs}) bank->CommitAll();
}

void Memory::Revert() {
  for (Bank* bank : {&positions, &blocks, &groups, &macros, &system, &programs}) bank->Revert();
}

int Memory::MaxPulses(int axis) const { return HexAt(blocks.Written(DeviceBlock(axis)), 13, 6); }
int Memory::Lead(int axis) const { return HexAt(blocks.Written(DeviceBlock(axis)), 7, 2); }
int Memory::Ppr(int axis) const { return HexAt(blocks.Written(DeviceBlock(axis)), 9, 4); }

int Memory::ZoneBound(int axis, int bound) const {
  return HexAt(blocks.Written(SecondBlock(axis)), bound == 1 ? 5 : 11, 6);
}
bool Memory::ZoneEnabled(int axis) const {
  return HexAt(blocks.Written(SecondBlock(axis)), 23, 2) != 0;
}
int Memory::InPositionWidth(int axis) const {
  return HexAt(blocks.Written(DeviceBlock(axis) - 2), 31, 2);
}
bool Memory::HasPulseGenerator(int axis) const {
  return HexAt(blocks.Written(SecondBlock(axis)), 21, 2) != 0;
}
bool Memory::StoresPput() const { return HexAt(blocks.Written(0), 25, 2) != 0; }

bool Memory::SoftLimit(int axis) const {
  return HexAt(blocks.Written(DeviceBlock(axis) - 2), 35, 2) != 0;
}
bool Memory::IsFastDevice(int axis) const {
  return std::string_view(blocks.Written(DeviceBlock(axis))).substr(16, 3) == "42D";
}

Mode Memory::CommittedMode() const {
  return HexAt(blocks.Committed(0), 23, 2) == 1 ? Mode::kProgram : Mode::kPosition;
}

unsigned Memory::CommittedMask() const {
  return static_cast<unsigned>(HexAt(blocks.Committed(0), 7, 2)) & 0xF;
}

}  // namespace qvr7sim
