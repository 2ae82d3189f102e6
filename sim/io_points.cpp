#include "sim/io_points.h"

#include "sim/plant.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

/// The terminal of an input by its number.
unsigned InputBit(int number) {
  constexpr int kPerDigit = 4;
  constexpr int kDigitOfGroup[] = {5, 4, 3, 1};  // of the inputs 1 to 4, 5 to 8 and so on
  switch (number) {
    case 17:
      return PointBit(0, 2);
    case 18:
      return PointBit(2, 0);
    case kStb:
      return PointBit(0, 3);
    case kRes:
      return PointBit(0, 0);
    case kPause:
      return PointBit(2, 1);
    default:
      return PointBit(kDigitOfGroup[(number - 1) / kPerDigit], (number - 1) % kPerDigit);
  }
}

unsigned OutputBit(int number) { return PointBit(1 + (number - 1) / 4, (number - 1) % 4); }

constexpr unsigned kAlm = PointBit(0, 2), kRdy = PointBit(0, 1), kInP = PointBit(0, 0);

/// Axis 1 and 2 in the one digit, 3 and 4 in the next: hold, then zone of each.
unsigned AxisBit(int axis, int bit) { return PointBit(2 + axis / 2, 2 * (axis % 2) + bit); }

/// Whether an output is one that programs or positions switch.
bool IsSwitched(const Plant& plant, int number) {
  return plant.mode == Mode::kProgram || number <= 4 || number > 12;
}

/// What the controller itself makes of its outputs.
unsigned OwnOutputs(const Plant& plant, std::int64_t now_us) {
  unsigned word = plant.alarm ? kAlm : 0;
  bool servos = true;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (!plant.InUse(axis)) continue;
    servos = servos && plant.ServoOn(axis);
    if (plant.mode == Mode::kProgram) continue;
    if (plant.HoldsByForce(axis)) word |= AxisBit(axis, 0);
    // The parameters' zone counts where they switch it on.
    const bool has_zone = plant.settings[axis].zone || plant.memory.ZoneEnabled(axis);
    if (has_zone && plant.InZone(axis, now_us)) word |= AxisBit(axis, 1);
  }
  if (servos && !plant.alarm) word |= kRdy;
  if (!plant.AnyMoving()) word |= kInP;
  for (int number = 1; number <= kOutputs; ++number) {
    const bool on = plant.values.IsOn({RefKind::kOutput, number}, 0);
    if (on && IsSwitched(plant, number)) word |= OutputBit(number);
  }
  return word;
}

}  // namespace

unsigned InputWord(const Plant& plant, std::int64_t now_us) {
  unsigned word = 0;
  for (int number = 1; number <= kInputs; ++number) {
    if (plant.values.IsOn({RefKind::kInput, number}, 0)) word |= InputBit(number);
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    const bool at_sensor = plant.InUse(axis) && plant.axes.Pulses(axis, now_us) <= 0;
    if (at_sensor) word |= PointBit(6, axis);
  }
  return word;
}

unsigned OutputWord(Plant& plant, std::int64_t now_us) {
  const unsigned own = OwnOutputs(plant, now_us);
  ForcedOutputs& forced = plant.forced;
  forced.mask &= ~(own ^ forced.own);
  return (own & ~forced.mask) | (~own & forced.mask);
}

void ForceOutputs(Plant& plant, unsigned word, std::int64_t now_us) {
  for (int number = 1; number <= kOutputs; ++number) {
    if (!IsSwitched(plant, number)) continue;
    plant.values.Switch({RefKind::kOutput, number}, 0, (word & OutputBit(number)) != 0);
  }
  plant.forced.own = OwnOutputs(plant, now_us);
  plant.forced.mask = word ^ plant.forced.own;
}

std::string PointDigits(unsigned word, int digits) {
  std::string text;
  for (int digit = 0; digit < digits; ++digit) text += Hex((word >> (4 * digit)) & 0xF, 1);
  return text;
}

unsigned PointWord(const std::string& digits) {
  unsigned word = 0;
  for (std::size_t digit = digits.size(); digit-- > 0;) {
    word = word << 4 | static_cast<unsigned>(HexValue(digits.substr(digit, 1)));
  }
  return word;
}

}  // namespace qvr7sim
