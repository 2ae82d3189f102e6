#include "sim/plant.h"

#include <algorithm>

namespace qvr7sim {

namespace {

/// To the nearest whole number; `divisor` above 0.
std::int64_t RoundedRatio(std::int64_t value, std::int64_t divisor) {
  const std::int64_t half = divisor / 2;
  return (value + (value < 0 ? -half : half)) / divisor;
}

}  // namespace

Plant::Plant(const Setup& start) : setup(start), memory(start), mode(start.mode), mask(start.mask) {
  for (int axis = 0; axis < kAxes; ++axis) {
    axes.Place(axis, start.start_pulses[axis]);
    if (start.homed) axes.SetHomed(axis);
  }
}

void Plant::NoteStart(unsigned moving_before, const std::string& cause, std::int64_t now_us) {
  constexpr std::size_t kMostKept = 10000;
  const unsigned started = axes.MovingMask() & ~moving_before;
  if (started != 0) starts.push_back({now_us, started, cause});
  if (starts.size() > kMostKept) starts.pop_front();
}

bool Plant::Push(int axis, int pulses) {
  if (ServoOn(axis) || axes.Moving(axis)) return false;
  const int here = axes.Pulses(axis, 0);
  axes.Shift(axis, std::clamp(here + pulses, 0, memory.MaxPulses(axis)) - here);
  return true;
}

bool Plant::InZone(int axis, std::int64_t now_us) const {
  const auto& set = settings[axis].zone;
  const int first = set ? set->first : memory.ZoneBound(axis, 1);
  const int second = set ? set->second : memory.ZoneBound(axis, 2);
  const int here = axes.Pulses(axis, now_us);
  return here >= std::min(first, second) && here <= std::max(first, second);
}

double Plant::TopSpeed(int axis) const {
  constexpr double kTopPulses = 10000.0;  // of the motor, a second
  constexpr int kFastMmS = 400;
  return memory.IsFastDevice(axis) ? PulseSpeed(axis, kFastMmS) : kTopPulses;
}

std::int64_t Plant::ToThousandths(int axis, std::int64_t pulses) const {
  const int ppr = memory.Ppr(axis);
  return ppr == 0 ? 0 : RoundedRatio(pulses * memory.Lead(axis) * 1000, ppr);
}

std::int64_t Plant::ToPulses(int axis, std::int64_t thousandths) const {
  const int lead = memory.Lead(axis);
  return lead == 0 ? 0 : RoundedRatio(thousandths * memory.Ppr(axis), std::int64_t{lead} * 1000);
}

double Plant::PulseSpeed(int axis, int mm_s) const {
  const int lead = memory.Lead(axis);
  return lead == 0 ? 0.0 : static_cast<double>(mm_s) * memory.Ppr(axis) / lead;
}

}  // namespace qvr7sim
