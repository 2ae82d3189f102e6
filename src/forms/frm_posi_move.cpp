#include "forms/frm_posi_move.h"

namespace tr7 {
namespace {

constexpr int kMoveWayGroup = 11;
constexpr int kMostWait = 3;  ///< characters
constexpr const char* kDigits = "0123456789";

}  // namespace

PosiMoveTest::PosiMoveTest(View& owner)
    : controls(owner),
      framHome(owner, "framHome", 5272),
      cmdHome(owner, "cmdHome", 5273),
      lblNextCaption(owner, "lblNextCaption", 5275),
      lblNextNo(owner, "lblNextNo"),
      framSelect(owner, "framSelect", 5260),
      flgdProgram(owner, "flgdProgram", 1 + kSelectRows, 2, 1, 1),
      chkRepeat(owner, "chkRepeat", 5261),
      chkNoSqMcr1(owner, "chkNoSqMcr1", 5262),
      chkTimerUse(owner, "chkTimerUse", 5263),
      txtTimer(owner, "txtTimer"),
      lblTimerUnit(owner, "lblTimerUnit", 5264),
      cmdSelectMove(owner, "cmdSelectMove", 5216),
      cmdTmpStop(owner, "cmdTmpStop", 5265),
      cmdStop(owner, "cmdStop", 5266),
      framContinue(owner, "framContinue", 5267),
      optMoveWay{OptionButton(owner, "optMoveWay0", kMoveWayGroup, 535),
                 OptionButton(owner, "optMoveWay1", kMoveWayGroup, 536)},
      lblStartCaption(owner, "lblStartCaption", 5268),
      lblStartPosiNo(owner, "lblStartPosiNo"),
      sldrStartPosiNo(owner, "sldrStartPosiNo", 1, 999),
      updownStartPosiNo(owner, "updownStartPosiNo", 1, 999),
      lblEndCaption(owner, "lblEndCaption", 5269),
      lblEndPosiNo(owner, "lblEndPosiNo"),
      sldrEndPosiNo(owner, "sldrEndPosiNo", 1, 999),
      updownEndPosiNo(owner, "updownEndPosiNo", 1, 999),
      chkRepeat2(owner, "chkRepeat2", 5261),
      chkNoSqMcr2(owner, "chkNoSqMcr2", 5262),
      chkTimerUse2(owner, "chkTimerUse2", 5263),
      txtTimer2(owner, "txtTimer2"),
      lblTimerUnit2(owner, "lblTimerUnit2", 5264),
      cmdMove(owner, "cmdMove", 5217),
      cmdTempStop2(owner, "cmdTempStop2", 5265),
      cmdStop2(owner, "cmdStop2", 5266),
      framGroup(owner, "framGroup", 5270),
      lblGrpCaption(owner, "lblGrpCaption", 5280),
      lblGrpNo(owner, "lblGrpNo"),
      sldrGrpNo(owner, "sldrGrpNo", 1, 99),
      lblGrpRange(owner, "lblGrpRange"),
      cmdGrpMove(owner, "cmdGrpMove", 5271),
      cmdGrpMoveStop(owner, "cmdGrpMoveStop", 5266) {
  controls.Close();
  optMoveWay[0].Value = true;
  for (CommandButton* stop : {&cmdTmpStop, &cmdStop, &cmdTempStop2, &cmdStop2, &cmdGrpMoveStop}) {
    stop->Urgent = true;
  }
  for (TextBox* wait : {&txtTimer, &txtTimer2}) {
    wait->AllowedChars = kDigits;
    wait->MaxLength = kMostWait;
    wait->Text = "0";
  }
}

}  // namespace tr7
