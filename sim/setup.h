#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "sim/program_step.h"

namespace qvr7sim {

inline constexpr int kAxes = 4;
inline constexpr int kPositions = 999;       ///< Position numbers run from 1 to 999.
inline constexpr int kGroups = 99;           ///< Group numbers run from 1 to 99.
inline constexpr int kMacros = 20;           ///< Macro numbers run from 1 to 20.
inline constexpr int kMacroSteps = 16;       ///< Steps of one macro, index from 0.
inline constexpr int kParameterBlocks = 14;  ///< Blocks "0" to "9" and "A" to "D".
inline constexpr int kSystemBlocks = 7;      ///< Blocks "0" to "6".
inline constexpr int kPrograms = 100;        ///< Program numbers run from 1 to 100.

/// Steps that a program of this number (1 to 100) may have.
int ProgramLimit(int number);

enum class Mode { kPosition = 0, kProgram = 1 };

/// The actuator on one axis.
struct Device {
  std::string size = " 28";  ///< Three characters; "E35" is carried by its own speed mark.
  char speed = 'L';          ///< Upper-case letter.
  int stroke_mm = 100;
  int lead = 2;   ///< mm per turn, 1 to 255.
  int ppr = 400;  ///< Pulses per turn, 1 to 65535.
  int type = 0;   ///< Type value, 0 to 255.
  int pg = 0;     ///< 0 none, 1 or 2 fitted.
};

/// Stroke in pulses, rounded up to a whole pulse.
int MaxPulses(const Device& device);

/// One axis within a position record.
struct AxisTarget {
  int vel = 30;    ///< mm/s
  int acc = 10;    ///< 10 ms
  int way = 0;     ///< 0 no move, 1 absolute, 2 forward by, 3 back by.
  int pulses = 0;  ///< 0 to 262143
  int pf = 0;
  int ps = 0;
};

struct PositionRecord {
  std::array<AxisTarget, kAxes> axis;
  int itpl = 0;
  int out = 0;
  int sm = 0;
};

/// The 60 digits that follow the position number on the line.
std::string EncodePosition(const PositionRecord& record);
/// False when `digits` is not 60 upper-case hexadecimal digits.
bool DecodePosition(const std::string& digits, PositionRecord* record);

/// An input, or another signal or variable, changes by itself.
struct TimedInput {
  std::int64_t at_us = 0;
  Signal signal;
  std::int32_t value = 0;  ///< signals: 0 off, else on; position variables: thousandths
};

/// What stands in the controller when it starts.
struct Setup {
  int axis_count = 4;   ///< Axis boards fitted, 1 to 4; the digit inside the model marker.
  unsigned mask = 0xF;  ///< Axes in use, bit i for axis i + 1.
  Mode mode = Mode::kPosition;
  std::array<Device, kAxes> devices{};
  std::string marker;           ///< Three characters; empty stands for "R" axis count "M".
  std::string version = "140";  ///< Three characters.
  std::array<std::string, kAxes> axis_versions{"120", "120", "120", "120"};

  std::map<int, PositionRecord> positions;    ///< By number 1 to 999; others hold defaults.
  std::map<int, std::pair<int, int>> groups;  ///< Start and end by number 1 to 99.
  std::map<int, std::vector<std::pair<int, int>>> macros;  ///< Command and value by number.
  std::map<int, std::string> programs;  ///< By number 1 to 100: the steps' digits, without end.

  int baud = 9600;
  bool paced = true;               ///< False: bytes take no time on the line.
  std::int64_t processing_us = 0;  ///< From the request's last byte to the reply's start.
  std::int64_t commit_us = 50000;  ///< The same for a frame that commits.
  int jog_mm_s = 30;               ///< Jog at 100 percent.
  int home_mm_s = 20;
  std::int64_t home_search_us = 300000;  ///< Search of the sensor, on top of the way home.
  std::int64_t input_wait_us = 300000;   ///< Longest wait of a macro for an input; 0: for ever.
  std::array<int, kAxes> start_pulses{};
  std::int64_t step_us = 1000;     ///< Time of one program step, above 0.
  std::vector<TimedInput> inputs;  ///< What the inputs do, in any order.
  int running_tasks = 0;   ///< Programs 1 to this one run from the start, 0 to 10. Those without
                           ///< steps are filled with a loop that does nothing.
  bool homed = false;      ///< All axes homed at the start.
  bool rest_as_f = false;  ///< "0RA" and "0RH" say "F", not the mask, when it holds for all axes.

  /// Four axes, position mode, 40 positions of a pick-and-place job, some groups and macros.
  static Setup Useful();
  /// Empty when the setup can run, else what is wrong with it.
  std::string Check() const;
};

}  // namespace qvr7sim
