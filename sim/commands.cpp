#include "sim/commands.h"

#include <vector>

#include "sim/io_points.h"
#include "sim/parse.h"
#include "sim/signal_names.h"

namespace qvr7sim {

namespace {

using Words = std::vector<std::string>;

std::string Silence(const Words& words, Controller* controller) {
  if (words.size() != 2 || (words[1] != "on" && words[1] != "off")) return "error silence on|off";
  controller->SetSilent(words[1] == "on");
  return "ok silence " + words[1];
}

std::string RaiseAlarm(const Words& words, Controller* controller, std::int64_t now_us) {
  const bool send_line = words.size() == 4 && words[3] == "line";
  const auto alarm = words.size() == 3 || send_line ? ParseAlarm(words[1], words[2]) : std::nullopt;
  if (!alarm) return "error alarm UNIT CODE [line], unit 0 to 4";
  controller->RaiseAlarm(*alarm, now_us, send_line);
  return "ok alarm " + words[1] + " " + words[2];
}

std::string AddFault(std::string_view line, Controller* controller) {
  std::string error;
  const auto fault = ParseFault(line.substr(line.find("fault") + 5), &error);
  if (!fault) return "error " + error;
  controller->AddFault(*fault);
  return "ok fault " + std::string(FaultName(fault->kind));
}

std::string FailHoming(const Words& words, Controller* controller) {
  const auto axis = words.size() == 2 ? ParseNumber(words[1], 1, kAxes) : std::nullopt;
  if (!axis) return "error fail-homing AXIS, 1 to 4";
  controller->FailNextHoming(static_cast<int>(*axis));
  return "ok fail-homing " + words[1];
}

std::string Place(const Words& words, Controller* controller, std::int64_t now_us) {
  constexpr int kLowest = -10000;
  constexpr int kHighest = 262143;
  const auto axis = words.size() == 3 ? ParseNumber(words[1], 1, kAxes) : std::nullopt;
  const auto pulses = axis ? ParseNumber(words[2], kLowest, kHighest) : std::nullopt;
  if (!pulses) return "error place AXIS PULSES";
  controller->PlaceAxis(static_cast<int>(*axis), static_cast<int>(*pulses), now_us);
  return "ok place " + words[1] + " " + words[2];
}

std::string Push(const Words& words, Controller* controller, std::int64_t now_us) {
  constexpr int kFarthest = 262143;
  const auto axis = words.size() == 3 ? ParseNumber(words[1], 1, kAxes) : std::nullopt;
  const auto pulses = axis ? ParseNumber(words[2], -kFarthest, kFarthest) : std::nullopt;
  if (!pulses) return "error push AXIS PULSES";
  if (!controller->PushAxis(static_cast<int>(*axis), static_cast<int>(*pulses), now_us)) {
    return "error the servo holds the axis";
  }
  return "ok push " + words[1] + " " + words[2];
}

std::string LoseServo(const Words& words, Controller* controller, std::int64_t now_us) {
  const auto axis = words.size() == 2 ? ParseNumber(words[1], 1, kAxes) : std::nullopt;
  if (!axis) return "error lose-servo AXIS, 1 to 4";
  controller->LoseServo(static_cast<int>(*axis), now_us);
  return "ok lose-servo " + words[1];
}

std::string SetInput(const Words& words, Controller* controller, std::int64_t now_us) {
  const auto signal = words.size() == 3 ? ParseSignal(words[1]) : std::nullopt;
  const auto value = signal ? ParseSignalValue(*signal, words[2]) : std::nullopt;
  if (!value) return "error input NAME on|off, or NAME VALUE of a variable; --help names them";
  controller->Set(*signal, *value, now_us);
  return "ok input " + words[1] + " " + words[2];
}

/// " tasks=3:12,5:1 out=1,4 failed=2:7": programs with their step, the outputs that are on, and the
/// step that the last alarm came from.
std::string ProgramStatus(const Controller& controller, std::int64_t now_us) {
  std::string tasks, outputs;
  for (const auto& [program, step] : controller.RunningSteps(now_us)) {
    if (program == 0) continue;
    tasks += (tasks.empty() ? "" : ",") + std::to_string(program) + ":" + std::to_string(step);
  }
  for (int output = 1; output <= kOutputs; ++output) {
    if (!controller.Values(now_us).IsOn({RefKind::kOutput, output}, 0)) continue;
    outputs += (outputs.empty() ? "" : ",") + std::to_string(output);
  }
  std::string text = " tasks=" + (tasks.empty() ? "none" : tasks);
  text += " out=" + (outputs.empty() ? "none" : outputs);
  text += " io=" + PointDigits(controller.Inputs(now_us), kInputDigits) + "," +
          PointDigits(controller.Outputs(now_us), kOutputDigits);
  const auto [program, step] = controller.FailedStep();
  if (program != 0) text += " failed=" + std::to_string(program) + ":" + std::to_string(step);
  return text;
}

std::string Status(const Controller& controller, std::int64_t now_us) {
  std::string text = "ok mode=";
  text += controller.RunningMode() == Mode::kProgram ? "prg" : "pos";
  text += " mask=" + std::to_string(controller.RunningMask());
  text += std::string(" silent=") + (controller.silent() ? "on" : "off");
  const auto alarm = controller.StandingAlarm();
  text += " alarm=";
  text += alarm ? std::string{alarm->unit, alarm->middle, alarm->code} : "none";
  for (int number = 1; number <= kAxes; ++number) {
    const AxisState axis = controller.Axis(number, now_us);
    text += " axis" + std::to_string(number) + "=" + std::to_string(axis.pulses);
    if (axis.moving) text += ",moving";
    if (axis.homed) text += ",homed";
    if (!axis.servo_on) text += ",servo-off";
  }
  return text + ProgramStatus(controller, now_us);
}

}  // namespace

std::string RunCommand(std::string_view line, Controller* controller, std::int64_t now_us,
                       bool* quit) {
  const Words words = Split(line, " \t\r");
  if (words.empty()) return "error empty command";
  const std::string& name = words[0];
  if (name == "silence") return Silence(words, controller);
  if (name == "alarm") return RaiseAlarm(words, controller, now_us);
  if (name == "fault") return AddFault(line, controller);
  if (name == "fail-homing") return FailHoming(words, controller);
  if (name == "place") return Place(words, controller, now_us);
  if (name == "push") return Push(words, controller, now_us);
  if (name == "input") return SetInput(words, controller, now_us);
  if (name == "lose-servo") return LoseServo(words, controller, now_us);
  if (name == "faults" && words.size() == 2 && words[1] == "off") {
    controller->ClearFaults();
    return "ok faults off";
  }
  if (words.size() == 1 && name == "power-cycle") {
    controller->PowerCycle(now_us);
    return "ok power-cycle";
  }
  if (words.size() == 1 && name == "status") return Status(*controller, now_us);
  if (words.size() == 1 && name == "quit") {
    *quit = true;
    return "ok quit";
  }
  return "error unknown command \"" + std::string(line) + "\"";
}

}  // namespace qvr7sim
