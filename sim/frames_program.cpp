#include <algorithm>

#include "sim/error_codes.h"
#include "sim/machine.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr std::size_t kNumberDigits = 2;

std::string BadFrame() { return ErrorText('0', error_code::kBadFrame); }
std::string BadNumber() { return ErrorText('0', error_code::kBadNumber); }

/// A running program cannot be changed.
std::string Busy() { return ErrorText('0', error_code::kMoving); }

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
  if (machine.tasks.Find(program) != nullptr) return Busy();
  machine.memory.programs.Write(program, std::string(steps));
  return "0WM" + std::string(args.substr(0, kNumberDigits));
}

std::string StoreSteps(Machine& machine, int program, std::int64_t) {
  machine.memory.programs.Commit(program, program);
  return "0MW" + Hex(static_cast<unsigned>(program), 2);
}

std::string TaskCount(Machine& machine, std::string_view args, std::int64_t) {
  if (!args.empty()) return BadFrame();
  return "0TN" + Hex(static_cast<unsigned>(machine.tasks.Count()), 1);
}

/// The program of every slot, 0 where none runs.
std::string TaskPrograms(Machine& machine, std::string_view args, std::int64_t) {
  if (!args.empty()) return BadFrame();
  std::string reply = "0TS";
  for (int slot = 0; slot < kTasks; ++slot) {
    const Task* task = machine.tasks.Slot(slot);
    reply += Hex(task == nullptr ? 0U : static_cast<unsigned>(task->program), 2);
  }
  return reply;
}

/// Program, step from 1 and the step's digits; zeros behind the program that does not run.
std::string TaskStep(Machine& machine, int program, std::int64_t) {
  const std::string head = "0PT" + Hex(static_cast<unsigned>(program), 2);
  const Task* task = machine.tasks.Find(program);
  if (task == nullptr) return head + "00" + std::string(kStepDigits, '0');
  const std::string& digits = machine.memory.programs.Written(program);
  const std::size_t last = digits.size() / kStepDigits - 1;
  const std::size_t at = std::min(static_cast<std::size_t>(task->at), last);
  return head + Hex(static_cast<unsigned>(at + 1), 2) +
         digits.substr(at * kStepDigits, kStepDigits);
}

/// A program that runs already goes on, so that a request sent twice does no harm.
std::string StartTask(Machine& machine, int program, std::int64_t now_us) {
  return machine.StartProgram(program, now_us) ? "0DM" : BadNumber();
}

std::string StopTask(Machine& machine, int program, std::int64_t now_us) {
  machine.NoteStop(now_us);
  machine.tasks.Stop(machine, program, now_us);
  return "0PM";
}

std::string StopAllTasks(Machine& machine, std::string_view args, std::int64_t now_us) {
  if (!args.empty()) return BadFrame();
  machine.NoteStop(now_us);
  machine.tasks.StopAll(machine, now_us);
  return "0PN";
}

constexpr Command kCommands[] = {{"0RR", ForProgram<StepCount>},
                                 {"0RM", ForProgram<ReadSteps>},
                                 {"0WM", WriteSteps, false, true},
                                 {"0MW", ForProgram<StoreSteps>, true, true},
                                 {"0TN", TaskCount},
                                 {"0TS", TaskPrograms},
                                 {"0PT", ForProgram<TaskStep>},
                                 {"0DM", ForProgram<StartTask>},
                                 {"0PM", ForProgram<StopTask>},
                                 {"0PN", StopAllTasks}};

}  // namespace

std::span<const Command> ProgramCommands() { return kCommands; }

}  // namespace qvr7sim
