#pragma once

#include <array>
#include <cstdint>

#include "link/tusin_wait.h"

namespace tr7 {

inline constexpr int kTaskSlots = 10;
inline constexpr int kTaskStepFields = 5;

/// What the controller does in a program. A number of -1 has come as no number.
struct TaskStep {
  int program = 0;
  int step = 0;  ///< from 1; 0: the program does not run
  /// Command code, operands, condition and result, as they stand in the controller.
  std::array<std::int32_t, kTaskStepFields> fields{};
};

/// "0TN": how many tasks run on the controller, 0 to 15; -1 failure, which the user has been told.
/// It opens the port and closes it.
int ReadTaskCountFromCt();
/// The same within a poll; the port stays as it is. A count of -1 has come as no number.
TusinOutcome ReadTaskCount(int& count);

/// "0TS": the program of every task slot, 0 where none runs, -1 where no number came.
TusinOutcome ReadTaskPrograms(std::array<int, kTaskSlots>& programs);

/// "0PT": the step of a program that runs. The program of the reply is not checked.
TusinOutcome ReadTaskStep(int program, TaskStep& step);

/// "0DM": starts a program. It may set axes in motion, so a stop that overtakes it withdraws it.
TusinOutcome TaskMonitorDataFromCt(int program);
/// "0PM": stops one.
TusinOutcome TaskProgramSelectToCt(int program, TusinPriority priority = TusinPriority::Ordinary);
/// "0PN": stops all. It goes out as the next frame, whatever else waits.
TusinOutcome TaskMonitorStartToCt();

}  // namespace tr7
