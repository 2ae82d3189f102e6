#include "sim/setup.h"

#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr int kAxisDigits = 14;
constexpr std::size_t kRecordDigits = 60;

bool Within(int value, int low, int high) { return value >= low && value <= high; }

std::string CheckDevice(const Device& device) {
  if (device.size.size() != 3 || !AllPrintable(device.size)) return "size needs 3 characters";
  if (device.size[0] != ' ' && device.size != "E35")
    return "size must begin with a blank or be E35";
  if (device.speed < 'A' || device.speed > 'Z') return "speed must be an upper-case letter";
  if (!Within(device.stroke_mm, 1, 999)) return "stroke must be 1 to 999 mm";
  if (!Within(device.lead, 1, 255)) return "lead must be 1 to 255";
  if (!Within(device.ppr, 1, 65535)) return "pulses per turn must be 1 to 65535";
  if (!Within(device.type, 0, 255)) return "type must be 0 to 255";
  if (!Within(device.pg, 0, 2)) return "pg must be 0 to 2";
  return "";
}

std::string CheckContent(const Setup& setup) {
  for (const auto& entry : setup.positions) {
    if (!Within(entry.first, 1, kPositions)) return "position numbers run from 1 to 999";
  }
  for (const auto& entry : setup.groups) {
    if (!Within(entry.first, 1, kGroups)) return "group numbers run from 1 to 99";
  }
  for (const auto& entry : setup.macros) {
    if (!Within(entry.first, 1, kMacros)) return "macro numbers run from 1 to 20";
  }
  for (const auto& [number, digits] : setup.programs) {
    if (!Within(number, 1, kPrograms)) return "program numbers run from 1 to 100";
    const bool whole = digits.size() % kStepDigits == 0 && AllHex(digits);
    if (!whole) return "a program step has 19 digits";
    const auto limit = static_cast<std::size_t>(ProgramLimit(number));
    if (digits.size() > limit * kStepDigits) {
      return "program " + std::to_string(number) + " has at most " + std::to_string(limit) +
             " steps";
    }
  }
  return "";
}

}  // namespace

int ProgramLimit(int number) {
  constexpr int kLong = 7, kMiddle = 20;  // the last program of the class
  return number <= kLong ? 100 : number <= kMiddle ? 50 : 20;
}

int MaxPulses(const Device& device) {
  return (device.stroke_mm * device.ppr + device.lead - 1) / device.lead;
}

std::string EncodePosition(const PositionRecord& record) {
  std::string digits;
  digits.reserve(kRecordDigits);
  for (const AxisTarget& target : record.axis) {
    digits += Hex(static_cast<unsigned>(target.vel), 3);
    digits += Hex(static_cast<unsigned>(target.acc), 2);
    digits +=
        Hex((static_cast<unsigned>(target.way) << 18) + static_cast<unsigned>(target.pulses), 5);
    digits += Hex(static_cast<unsigned>(target.pf), 2);
    digits += Hex(static_cast<unsigned>(target.ps), 2);
  }
  digits += Hex(static_cast<unsigned>(record.itpl), 1);
  digits += Hex(static_cast<unsigned>(record.out), 1);
  digits += Hex(static_cast<unsigned>(record.sm), 2);
  return digits;
}

bool DecodePosition(const std::string& digits, PositionRecord* record) {
  if (digits.size() != kRecordDigits || !AllHex(digits)) return false;
  const auto field = [&digits](int at, int width) {
    return HexValue(std::string_view(digits).substr(static_cast<std::size_t>(at),
                                                    static_cast<std::size_t>(width)));
  };
  for (int axis = 0; axis < kAxes; ++axis) {
    const int at = axis * kAxisDigits;
    AxisTarget& target = record->axis[axis];
    const int way_and_pulses = field(at + 5, 5);
    target.vel = field(at, 3);
    target.acc = field(at + 3, 2);
    target.way = way_and_pulses >> 18;
    target.pulses = way_and_pulses & 0x3FFFF;
    target.pf = field(at + 10, 2);
    target.ps = field(at + 12, 2);
  }
  record->itpl = field(56, 1);
  record->out = field(57, 1);
  record->sm = field(58, 2);
  return true;
}

std::string Setup::Check() const {
  if (!Within(axis_count, 1, kAxes)) return "the axis count must be 1 to 4";
  if (mask == 0 || mask >= (1U << axis_count)) {
    return "the axis mask must name at least one axis and only axes that are fitted";
  }
  if (!marker.empty() && marker.size() != 3) return "the model marker needs 3 characters";
  if (version.size() != 3) return "the version needs 3 characters";
  for (int axis = 0; axis < kAxes; ++axis) {
    const auto index = static_cast<std::size_t>(axis);
    if (axis_versions[index].size() != 3) return "an axis version needs 3 characters";
    const std::string wrong = CheckDevice(devices[index]);
    if (!wrong.empty()) return "axis " + std::to_string(axis + 1) + ": " + wrong;
  }
  if (!AllPrintable(marker + version)) return "marker and version must be printable ASCII";
  if (!Within(baud, 300, 1'000'000)) return "the baud rate must be 300 to 1000000";
  if (processing_us < 0 || commit_us < 0 || home_search_us < 0 || input_wait_us < 0)
    return "a time must not be negative";
  if (!Within(jog_mm_s, 1, 1000) || !Within(home_mm_s, 1, 1000)) {
    return "jog and home speed must be 1 to 1000 mm/s";
  }
  return CheckContent(*this);
}

}  // namespace qvr7sim
