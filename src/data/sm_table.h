#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tr7 {

inline constexpr int kMacros = 20;
inline constexpr int kMacroSteps = 16;
inline constexpr int kSmEnd = 0, kSmBlank = 15;

/// The commands by their code, as the controller's own panel names them.
inline constexpr std::array kSmCommands = {"0. END",     "1. IN-ON", "2. IN-OFF", "3. OUT-ON",
                                           "4. OUT-OFF", "5. TIMER", "6. TIMER10"};

/// One step of a sequence macro. Commands: 0 end, 1 and 2 wait for an input on or off, 3 and 4
/// output on or off, 5 timer, 6 timer times ten; 15 is a blank cell of the controller.
struct SmStep {
  std::int16_t Command = 0;
  std::int16_t Value = 0;  ///< 1 to 4, of the timers 1 to 9
  bool operator==(const SmStep&) const = default;
};

/// Macro number n stands at index n - 1, step s (from 1) at s - 1.
using SmTableRecord = std::array<std::array<SmStep, kMacroSteps>, kMacros>;

extern SmTableRecord SmTable;
/// Where data from the controller or a file lands first.
extern SmTableRecord SmStage;

/// What a file or the controller holds too: as last read, written, opened or saved.
extern SmTableRecord SmSaved;

void SmStageCommit();     ///< stage to table
void SmStageFromTable();  ///< table to stage

/// What the macro flows leave for one another.
struct SmFlagsRecord {
  std::string SmBadList;        ///< macros that the check refuses: "<3>,<7>,"
  std::string SmSyogoList;      ///< macros that differ: "3,7,"
  std::string SmFilePath;       ///< the file that the table is from; empty: none
  std::string SmFileFaultText;  ///< why a file could not be read or saved
};

extern SmFlagsRecord SmFlags;

/// The highest value of a step command, whose lowest is 1; 0: it takes none, or is no command.
int SmHighestValue(int command);

/// An end, or a command with a value within its range.
bool SmStepIsGood(const SmStep& step);

/// True for a macro that does something.
bool MacroHoldsData(const SmTableRecord::value_type& macro);

/// Every step of `SmTable` within its range: 0, or 1 with `SmBadList`. A blank cell of the
/// controller becomes an end, and the value of an end 0.
int SmData_Check();

/// True when two steps are not the same. The values of an end do not count.
bool SmStepDiffers(const SmStep& held, const SmStep& staged);

/// Compares table and stage into `SmSyogoList`.
void SmStageCompare();

}  // namespace tr7
