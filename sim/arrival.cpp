// What follows when a move to a position has arrived: its outputs, then its macro.

#include "sim/machine.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr int kSignals = 4;          // inputs that macros ask, outputs that they switch
constexpr int kBeforeExpInput = 12;  // the inputs that position mode leaves free stand behind it

enum MacroCommand : int {
  kEnd = 0,
  kInOn = 1,
  kInOff = 2,
  kOutOn = 3,
  kOutOff = 4,
  kTimer = 5,
  kTimer10 = 6,
  kBlank = 15,
};

struct MacroStep {
  int command = kEnd;
  int value = 0;
  bool Ends() const { return command == kEnd || command == kBlank; }
  bool Waits() const { return command == kInOn || command == kInOff; }
  bool Switches() const { return command == kOutOn || command == kOutOff; }
};

MacroStep StepAt(const std::string& macro, std::size_t step) {
  const std::size_t at = 2 * step;
  if (at + 2 > macro.size()) return {};
  const std::string_view digits = std::string_view(macro).substr(at, 2);
  return {HexValue(digits.substr(0, 1)), HexValue(digits.substr(1))};
}

bool HasCome(const Plant& plant, const MacroStep& step) {
  if (step.value < 1 || step.value > kSignals) return true;
  const bool on = plant.values.IsOn({RefKind::kInput, kBeforeExpInput + step.value}, 0);
  return on == (step.command == kInOn);
}

/// How long the step lasts, as the inputs stand; nothing: nobody knows.
std::optional<std::int64_t> LastsUs(const Plant& plant, const MacroStep& step) {
  constexpr std::int64_t kTimerUs = 100'000, kTimer10Us = 1'000'000;
  if (step.command == kTimer) return step.value * kTimerUs;
  if (step.command == kTimer10) return step.value * kTimer10Us;
  if (!step.Waits() || HasCome(plant, step)) return 0;
  const std::int64_t longest = plant.setup.input_wait_us;
  return longest > 0 ? std::optional(longest) : std::nullopt;
}

}  // namespace

void Machine::SeeArrival(std::int64_t now_us) {
  if (!arrival || arrival->reached || axes.MovingMask() != 0) return;
  for (int number = 1; number <= kSignals; ++number) {
    const bool on = ((arrival->outputs >> (number - 1)) & 1) != 0;
    values.Switch({RefKind::kOutput, number}, 0, on);
  }
  arrival->reached = true;
  arrival->began_us = now_us;
  PlayMacro(now_us);
}

void Machine::PlayMacro(std::int64_t now_us) {
  while (MacroRuns()) {
    const MacroStep step = StepAt(arrival->macro, arrival->at);
    if (step.Ends()) return arrival.reset();
    const auto lasts_us = LastsUs(*this, step);
    if (!lasts_us || arrival->began_us + *lasts_us > now_us) return;
    if (step.Switches() && step.value <= kSignals) {
      values.Switch({RefKind::kOutput, step.value}, 0, step.command == kOutOn);
    }
    ++arrival->at;
    arrival->began_us = now_us;
  }
}

std::optional<std::int64_t> Machine::MacroStepEndUs() const {
  if (!MacroRuns()) return std::nullopt;
  const auto lasts_us = LastsUs(*this, StepAt(arrival->macro, arrival->at));
  return lasts_us ? std::optional(arrival->began_us + *lasts_us) : std::nullopt;
}

std::optional<std::int64_t> Machine::NextRestUs() const {
  if (!MacroRuns()) return axes.NextRestUs();
  std::int64_t end_us = arrival->began_us;
  for (std::size_t at = arrival->at;; ++at) {
    const MacroStep step = StepAt(arrival->macro, at);
    if (step.Ends()) return end_us;
    const auto lasts_us = LastsUs(*this, step);
    if (!lasts_us) return std::nullopt;
    end_us += *lasts_us;
  }
}

}  // namespace qvr7sim
