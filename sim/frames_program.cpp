#include "sim/error_codes.h"
#include "sim/machine.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr std::size_t kNumberDigits = 2;

std::string BadFrame() { return ErrorText('0', error_code::kBadFrame); }
std::string BadNumber() { return ErrorText('0', error_code::kBadNumber); }

/// The program that two digits name, 0 when there is none such.
int ProgramNumber(std::string_view digits) {
  const int number = HexValue(digits);
  return number <= kPrograms ? number : 0;
}

/// The text of a request whose one argument is a program number.
template <std::string (*answer)(Machine& machine, int program, std::int64_t now_us)>
std::string ForProgram(Machine& machine, std::string_view args, std::int64_t now_us) {
  if (args.size() != kNumberDigits || !AllHex(args)) return BadFrame();
  const int program = ProgramNumber(args);
  return program == 0 ? BadNumber() : answer(machine, program, now_us);
}

std::string StepCount(Machine& machine, int program, std::int64_t) {
  const std::size_t steps = machine.memory.programs.Written(program).size() / kStepDigits;
  return "0RR" + Hex(static_cast<unsigned>(program), 2) + Hex(static_cast<unsigned>(steps), 2);
}

std::string ReadSteps(Machine& machine, int program, std::int64_t) {
  return "0RM" + Hex(static_cast<unsigned>(program), 2) + machine.memory.programs.Written(program);
}

/// The steps in front of the first empty one.
std::string_view UpToTheEnd(std::string_view digits) {
  const std::string empty(kStepDigits, '0');
  for (std::size_t at = 0; at < digits.size(); at += kStepDigits) {
    if (digits.substr(at, kStepDigits) == empty) return digits.substr(0, at);
  }
  return digits;
}

std::string WriteSteps(Machine& machine, std::string_view args, std::int64_t) {
  if (args.size() < kNumberDigits || !AllHex(args)) return BadFrame();
  const std::string_view digits = args.substr(kNumberDigits);
  if (digits.empty() || digits.size() % kStepDigits != 0) return BadFrame();
  const int program = ProgramNumber(args.substr(0, kNumberDigits));
  const std::string_view steps = UpToTheEnd(digits);
  const auto limit = static_cast<std::size_t>(ProgramLimit(program));
  if (program == 0 || steps.size() > limit * kStepDigits) return BadNumber();
  machine.memory.programs.Write(program, std::string(steps));
  return "0WM" + std::string(args.substr(0, kNumberDigits));
}

std::string StoreSteps(Machine& machine, int program, std::int64_t) {
  machine.memory.programs.Commit(program, program);
  return "0MW" + Hex(static_cast<unsigned>(program), 2);
}

constexpr Command kCommands[] = {{"0RR", ForProgram<StepCount>},
                                 {"0RM", ForProgram<ReadSteps>},
                                 {"0WM", WriteSteps, false, true},
                                 {"0MW", ForProgram<StoreSteps>, true, true}};

}  // namespace

std::span<const Command> ProgramCommands() { return kCommands; }

}  // namespace qvr7sim
