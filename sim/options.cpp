#include "sim/options.h"

#include <array>
#include <fstream>
#include <sstream>
#include <string_view>

#include "sim/input_script.h"
#include "sim/parse.h"
#include "sim/program_text.h"
#include "sim/tasks.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr std::int64_t kMicrosecondsPerMillisecond = 1000;
constexpr double kMicrosecondsPerSecond = 1e6;
constexpr std::int64_t kLongestMs = 3'600'000;

/// One option: takes its value (empty for a flag); false when the value is bad.
struct Option {
  std::string_view name;
  std::string_view value;  // how the help names it; empty for a flag
  std::string_view help;
  bool (*take)(const std::string& value, Options* options);
};

bool TakeInt(const std::string& text, int low, int high, int* target) {
  const auto number = ParseNumber(text, low, high);
  if (number) *target = static_cast<int>(*number);
  return number.has_value();
}

bool TakeMs(const std::string& text, std::int64_t* target_us) {
  const auto number = ParseNumber(text, 0, kLongestMs);
  if (number) *target_us = *number * kMicrosecondsPerMillisecond;
  return number.has_value();
}

bool TakeAxes(const std::string& value, Options* options) {
  if (!TakeInt(value, 1, kAxes, &options->setup.axis_count)) return false;
  options->setup.mask = (1U << options->setup.axis_count) - 1U;
  return true;
}

bool TakeMask(const std::string& value, Options* options) {
  int mask = 0;
  if (!TakeInt(value, 1, 15, &mask)) return false;
  options->setup.mask = static_cast<unsigned>(mask);
  return true;
}

bool TakeMode(const std::string& value, Options* options) {
  options->setup.mode = value == "prg" ? Mode::kProgram : Mode::kPosition;
  return value == "prg" || value == "pos";
}

bool TakeDevice(const std::string& value, Options* options) {
  const std::vector<std::string> parts = Split(value, ":");
  int axis = 0;
  if (parts.size() < 6 || parts.size() > 8 || !TakeInt(parts[0], 1, kAxes, &axis)) return false;
  Device device;
  device.size = parts[1].size() == 2 ? " " + parts[1] : parts[1];
  if (parts[2].size() != 1) return false;
  device.speed = parts[2][0];
  bool good = TakeInt(parts[3], 1, 999, &device.stroke_mm) &&
              TakeInt(parts[4], 1, 255, &device.lead) && TakeInt(parts[5], 1, 65535, &device.ppr);
  if (parts.size() > 6) good = good && TakeInt(parts[6], 0, 255, &device.type);
  if (parts.size() > 7) good = good && TakeInt(parts[7], 0, 2, &device.pg);
  options->setup.devices[axis - 1] = device;
  return good;
}

bool TakeAxisVersion(const std::string& value, Options* options) {
  if (value.size() != 5 || value[0] < '1' || value[0] > '4' || value[1] != ':') return false;
  options->setup.axis_versions[value[0] - '1'] = value.substr(2);
  return true;
}

bool TakePosition(const std::string& value, Options* options) {
  const std::vector<std::string> parts = Split(value, ":");
  int number = 0;
  return parts.size() == 2 && TakeInt(parts[0], 1, kPositions, &number) &&
         DecodePosition(parts[1], &options->setup.positions[number]);
}

bool TakeGroup(const std::string& value, Options* options) {
  const std::vector<std::string> parts = Split(value, ":");
  int number = 0;
  std::pair<int, int> range;
  if (parts.size() != 3 || !TakeInt(parts[0], 1, kGroups, &number)) return false;
  if (!TakeInt(parts[1], 0, kPositions, &range.first)) return false;
  if (!TakeInt(parts[2], 0, kPositions, &range.second)) return false;
  options->setup.groups[number] = range;
  return true;
}

bool TakeMacro(const std::string& value, Options* options) {
  const std::vector<std::string> parts = Split(value, ":");
  int number = 0;
  if (parts.size() != 2 || !TakeInt(parts[0], 1, kMacros, &number)) return false;
  const std::string& digits = parts[1];
  if (digits.size() > 2 * kMacroSteps || digits.size() % 2 != 0 || !AllHex(digits)) return false;
  std::vector<std::pair<int, int>> steps;
  for (std::size_t at = 0; at < digits.size(); at += 2) {
    steps.emplace_back(HexValue(digits.substr(at, 1)), HexValue(digits.substr(at + 1, 1)));
  }
  options->setup.macros[number] = steps;
  return true;
}

bool TakeStart(const std::string& value, Options* options) {
  const std::vector<std::string> parts = Split(value, ":");
  int axis = 0;
  return parts.size() == 2 && TakeInt(parts[0], 1, kAxes, &axis) &&
         TakeInt(parts[1], -10000, 262143, &options->setup.start_pulses[axis - 1]);
}

bool TakeAlarmAt(const std::string& value, Options* options) {
  const std::vector<std::string> parts = Split(value, ":");
  if (parts.size() != 3) return false;
  const auto seconds = ParseFraction(parts[0], 0.0, 1e6);
  const auto alarm = ParseAlarm(parts[1], parts[2]);
  if (!seconds || !alarm) return false;
  options->faults.alarms.push_back(
      {static_cast<std::int64_t>(*seconds * kMicrosecondsPerSecond), *alarm, true});
  return true;
}

bool TakePush(const std::string& value, Options* options) {
  const std::vector<std::string> parts = Split(value, ":");
  TimedPush push;
  if (parts.size() != 3 || !TakeInt(parts[0], 1, kAxes, &push.axis)) return false;
  if (!TakeInt(parts[1], -262143, 262143, &push.pulses) || !TakeMs(parts[2], &push.at_us)) {
    return false;
  }
  options->faults.pushes.push_back(push);
  return true;
}

std::optional<std::string> ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

bool TakeProgram(const std::string& value, Options* options) {
  const std::size_t colon = std::min(value.find(':'), value.size());
  int number = 0;
  if (colon == value.size() || !TakeInt(value.substr(0, colon), 1, kPrograms, &number)) {
    return false;
  }
  const auto text = ContentOf(value.substr(colon + 1));
  const auto digits = text ? AssembleProgramFile(*text, &options->wrong) : std::nullopt;
  if (digits) options->setup.programs[number] = *digits;
  return digits.has_value();
}

bool TakeInputs(const std::string& text, Options* options) {
  const auto inputs = ParseInputScript(text, &options->wrong);
  if (!inputs) return false;
  auto& all = options->setup.inputs;
  all.insert(all.end(), inputs->begin(), inputs->end());
  return true;
}

/// "STB=1": from the start on.
bool TakeInput(const std::string& value, Options* options) {
  const std::vector<std::string> parts = Split(value, "=");
  return parts.size() == 2 && TakeInputs("0 " + parts[0] + " " + parts[1], options);
}

bool TakeInputFile(const std::string& value, Options* options) {
  const auto text = ContentOf(value);
  return text && TakeInputs(*text, options);
}

bool TakeFault(const std::string& value, Options* options) {
  std::string error;
  const auto fault = ParseFault(value, &error);
  if (fault) options->faults.on_requests.push_back(*fault);
  return fault.has_value();
}

bool TakeFailHoming(const std::string& value, Options* options) {
  int axis = 0;
  if (!TakeInt(value, 1, kAxes, &axis)) return false;
  options->failing_homings.push_back(axis);
  return true;
}

bool TakeSeed(const std::string& value, Options* options) {
  const auto seed = ParseNumber(value, 0, INT64_MAX);
  if (seed) options->seed = static_cast<std::uint64_t>(*seed);
  return seed.has_value();
}

bool TakeEmpty(const std::string&, Options* options) {
  options->setup.positions.clear();
  options->setup.groups.clear();
  options->setup.macros.clear();
  return true;
}

using Text = const std::string&;

constexpr std::array kOptions{
    Option{"--axes", "N", "axis boards fitted, 1 to 4; all of them in use (default 4)", TakeAxes},
    Option{"--mask", "N", "axes in use, bit 0 for axis 1; 1 to 15, after --axes", TakeMask},
    Option{"--mode", "MODE", "pos or prg (default pos)", TakeMode},
    Option{"--device", "AXIS:SIZE:SPEED:STROKE:LEAD:PPR[:TYPE[:PG]]",
           "actuator of an axis, for example 1:28:L:100:2:400", TakeDevice},
    Option{"--marker", "TEXT", "model marker, 3 characters (default R4M by --axes)",
           [](Text v, Options* o) { return (o->setup.marker = v).size() == 3; }},
    Option{"--main-version", "TEXT", "version of the main board, 3 characters",
           [](Text v, Options* o) { return (o->setup.version = v).size() == 3; }},
    Option{"--axis-version", "AXIS:TEXT", "version of an axis board, 3 characters",
           TakeAxisVersion},
    Option{"--empty", "", "no positions, groups and macros, where it stands", TakeEmpty},
    Option{"--position", "NUMBER:DIGITS", "a position, 60 digits as on the line", TakePosition},
    Option{"--group", "NUMBER:START:END", "a group", TakeGroup},
    Option{"--macro", "NUMBER:DIGITS", "a macro, 2 digits a step", TakeMacro},
    Option{"--start", "AXIS:PULSES", "where an axis stands", TakeStart},
    Option{"--program", "NUMBER:FILE", "a program from its file (.prg)", TakeProgram},
    Option{
        "--tasks", "N", "programs 1 to N run from the start, 0 to 10 (default 0); see below",
        [](Text value, Options* o) { return TakeInt(value, 0, kTasks, &o->setup.running_tasks); }},
    Option{"--step-us", "N", "time of a program step in microseconds (default 1000)",
           [](Text v, Options* o) {
             const auto us = ParseNumber(v, 1, 1'000'000);
             if (us) o->setup.step_us = *us;
             return us.has_value();
           }},
    Option{"--input", "NAME=VALUE", "an input, or another signal or variable, from the start on",
           TakeInput},
    Option{"--inputs", "FILE", "what inputs do: lines of ms, name, value; # begins a remark",
           TakeInputFile},
    Option{"--homed", "", "all axes are homed at the start",
           [](Text, Options* o) { return o->setup.homed = true; }},
    Option{"--rest-f", "", "say F, not the mask, when all axes rest or are homed",
           [](Text, Options* o) { return o->setup.rest_as_f = true; }},
    Option{"--jog-speed", "N", "mm/s at 100 percent (default 30)",
           [](Text v, Options* o) { return TakeInt(v, 1, 1000, &o->setup.jog_mm_s); }},
    Option{"--home-speed", "N", "mm/s (default 20)",
           [](Text v, Options* o) { return TakeInt(v, 1, 1000, &o->setup.home_mm_s); }},
    Option{"--home-search-ms", "N", "search of the home sensor (default 300)",
           [](Text v, Options* o) { return TakeMs(v, &o->setup.home_search_us); }},
    Option{"--input-wait-ms", "N",
           "how long a macro waits for an input (default 300; 0: until it comes)",
           [](Text v, Options* o) { return TakeMs(v, &o->setup.input_wait_us); }},
    Option{"--baud", "N", "rate that paces the bytes (default 9600)",
           [](Text v, Options* o) { return TakeInt(v, 300, 1'000'000, &o->setup.baud); }},
    Option{"--no-pace", "", "bytes take no time",
           [](Text, Options* o) {
             o->setup.paced = false;
             return true;
           }},
    Option{"--processing-ms", "N", "from a request to its reply (default 0)",
           [](Text v, Options* o) { return TakeMs(v, &o->setup.processing_us); }},
    Option{"--commit-ms", "N", "the same for frames that commit (default 50)",
           [](Text v, Options* o) { return TakeMs(v, &o->setup.commit_us); }},
    Option{"--seed", "N", "seed of everything drawn at random (default 1)", TakeSeed},
    Option{"--silent", "", "neither hears nor answers until told to",
           [](Text, Options* o) { return o->silent = true; }},
    Option{"--fault", "FAULT", "a fault, may be given more than once; see below", TakeFault},
    Option{"--alarm-at", "SECONDS:UNIT:CODE", "an alarm comes up and is told unasked", TakeAlarmAt},
    Option{"--fail-homing", "AXIS", "the next homing of the axis fails", TakeFailHoming},
    Option{"--push", "AXIS:PULSES:MS",
           "a hand moves the slide by so much at this time, if its servo is off", TakePush},
    Option{"--tell-motion", "",
           "tell on standard error when axes move and rest, and at the end; see below",
           [](Text, Options* o) { return o->tell_motion = true; }},
    Option{"--quit-on-eof", "", "end when standard input ends",
           [](Text, Options* o) { return o->quit_on_eof = true; }},
    Option{"--help", "", "this text", [](Text, Options* o) { return o->help = true; }},
};

const Option* Find(std::string_view name) {
  for (const Option& option : kOptions) {
    if (option.name == name) return &option;
  }
  return nullptr;
}

}  // namespace

std::string ParseOptions(const std::vector<std::string>& arguments, Options* options) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::size_t equals = arguments[i].find('=');
    const std::string name = arguments[i].substr(0, equals);
    const Option* option = Find(name);
    if (option == nullptr) return "unknown option \"" + name + "\", --help lists them all";
    std::string value;
    if (option->value.empty()) {
      if (equals != std::string::npos) return name + " takes no value";
    } else if (equals != std::string::npos) {
      value = arguments[i].substr(equals + 1);
    } else if (++i < arguments.size()) {
      value = arguments[i];
    } else {
      return name + " needs a value: " + std::string(option->value);
    }
    if (!option->take(value, options)) {
      return "bad value \"" + value + "\" for " + name + ": " + std::string(option->value) + ", " +
             std::string(option->help) + (options->wrong.empty() ? "" : ": " + options->wrong);
    }
  }
  return options->setup.Check();
}

std::string HelpText() {
  constexpr std::size_t kColumn = 28;
  std::string text =
      "qv-r7-sim [options]\n"
      "Plays a QV-R7 controller on a pseudo-terminal. The first output line is its path.\n\n";
  for (const Option& option : kOptions) {
    std::string left = "  " + std::string(option.name);
    if (!option.value.empty()) left += " " + std::string(option.value);
    left += left.size() < kColumn ? std::string(kColumn - left.size(), ' ')
                                  : "\n" + std::string(kColumn, ' ');
    text += left + std::string(option.help) + "\n";
  }
  text +=
      "\nA fault FAULT is a name, then settings separated by commas:\n  " + FaultNames() +
      "\n"
      "  p=0..1 chance for each request, n=COUNT the n-th request once (default n=1),\n"
      "  prefix=TEXT only requests that begin so, ms=TIME for delay, split, moving, power-cycle,\n"
      "  byte=INDEX where it strikes (default at random), unit=C middle=C code=C the error.\n"
      "  Example: --fault lost-byte,p=0.05,prefix=0RP --fault error-reply,n=3,unit=1,code=2\n"
      "  What a write may meet: moving,prefix=0RA,ms=3000 (the inputs start every axis that the\n"
      "  PC does not hold), error-reply,prefix=0WE3 (groups are not stored; 0WA positions, 0WE2\n"
      "  parameters, 0WE1 macros, 0WF tuning), power-cycle,prefix=0WE3,ms=1000 (the power fails\n"
      "  before they are stored), --axes 2 and --mode prg (another machine than was expected).\n"
      "\nPrograms run in program mode, up to 10 at once; docs/simulator.md tells what each "
      "command\n"
      "does. --tasks starts them at power-on; one without steps is a loop that only waits.\n"
      "\nCommands on standard input, one a line, each answered by \"ok\" or \"error\":\n"
      "  silence on|off, alarm UNIT CODE [line], power-cycle, fault FAULT, faults off,\n"
      "  fail-homing AXIS, place AXIS PULSES, push AXIS PULSES (by hand, the servo being off),\n"
      "  lose-servo AXIS, input NAME on|off|VALUE, status, quit\n"
      "\nNames of inputs: 1 to 18, STB, RES, PAUSE, and those of position mode (P1 to P800, STOP,\n"
      "GRP, EXP-IN1 to 4). Names of what else can be set: OUT1 to OUT16, F1, R1, and of a program\n"
      "2:f1, 2:r1, 2:PR1. In position mode STB starts the move to the number on P1 to P800.\n"
      "\n--tell-motion writes lines as \"12.345 moving axis1=0 axis2=100 axis3=0 axis4=0\" and\n"
      "\"12.845 at rest ...\": seconds since the start, and pulses.\n"
      "\nMotion: an axis is held for the PC by the digit 1 of \"0CM\" and has its servo off by 2: "
      "it\n"
      "can then be pushed, and jogs and moves are refused (0%%00C). \"0MP\" runs the macro of its\n"
      "position when the axes have arrived, \"0MS\" does not. Alarms: 0%%n34 no home sensor, "
      "0%%n3D\n"
      "and 0%%n3E a jog ran into the end of an axis whose SOFT LIMIT is off, 0%%n13 faster than "
      "the\n"
      "motor's 10000 pulses a second, 0%%n2A the servo was lost or went off in motion.\n";
  return text;
}

}  // namespace qvr7sim
