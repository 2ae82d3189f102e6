#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/bool16.h"
#include "forms/control.h"
#include "forms/grid.h"
#include "forms/timer.h"

namespace tr7 {

inline constexpr int kSelectRows = 16;  ///< of the list of the selective move

/// The move tab of the position view: selective, continuous and group move, homing.
struct PosiMoveTest {
  explicit PosiMoveTest(View& owner);

  ControlSpan controls;  ///< all below

  Frame framHome;
  CommandButton cmdHome;
  Label lblNextCaption;
  Label lblNextNo;  ///< what the running move goes to, or a pressed start would

  Frame framSelect;
  Grid flgdProgram;  ///< one header row and column; position numbers in column 1
  CheckBox chkRepeat;
  CheckBox chkNoSqMcr1;
  CheckBox chkTimerUse;
  TextBox txtTimer;  ///< 0 to 999
  Label lblTimerUnit;
  CommandButton cmdSelectMove;
  CommandButton cmdTmpStop;
  CommandButton cmdStop;

  Frame framContinue;
  std::array<OptionButton, 2> optMoveWay;
  Label lblStartCaption;
  Label lblStartPosiNo;
  Slider sldrStartPosiNo;
  UpDown updownStartPosiNo;
  Label lblEndCaption;
  Label lblEndPosiNo;
  Slider sldrEndPosiNo;
  UpDown updownEndPosiNo;
  CheckBox chkRepeat2;
  CheckBox chkNoSqMcr2;
  CheckBox chkTimerUse2;
  TextBox txtTimer2;
  Label lblTimerUnit2;
  CommandButton cmdMove;
  CommandButton cmdTempStop2;
  CommandButton cmdStop2;

  Frame framGroup;
  Label lblGrpCaption;
  Label lblGrpNo;
  Slider sldrGrpNo;  ///< 1 to 99
  Label lblGrpRange;
  CommandButton cmdGrpMove;
  CommandButton cmdGrpMoveStop;

  Timer timerMove{100};
  Timer timerEventCheck{500, true};

  std::int16_t MoveSelectIndex = 0;  ///< current row of the list, 0 to 15
  std::int16_t MovePosiNo = 0;       ///< position of the current step
  std::int16_t MoveContNo = 0;       ///< current number of the continuous move
  Bool16 MoveStopReq;
  Bool16 MoveStop2Req;
  Bool16 MoveTempStop;   ///< a pause of the selective move: its place is kept
  Bool16 MoveTempStop2;  ///< the same of the continuous move
  Bool16 GrpStopReq;
  Bool16 MoveTimerUp;
};

}  // namespace tr7
