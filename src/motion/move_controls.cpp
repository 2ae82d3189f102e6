#include <algorithm>
#include <string>

#include "base/text_helpers.h"
#include "forms/frm_posi.h"
#include "motion/group_range.h"
#include "motion/motion_now.h"
#include "motion/motion_tabs.h"
#include "motion/move_flows.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgWaitRange = 6547, kRowIsDone = 5515;
constexpr int kMostWait = 999;
constexpr int kNumberWidth = 800;  // twips

/// A number that a slider and an up-down both set, and a label shows. A place may lie in the range
/// now, or outside.
void Couple(Slider& slider, UpDown& updown, Label& label) {
  const auto show = [&slider, &updown, &label](int value) {
    slider.Value = updown.Value = value;
    label.Caption = std::to_string(value);
    ShowKeptPlaces();
  };
  slider.Change = [show, &slider] { show(slider.Value); };
  updown.Change = [show, &updown] { show(updown.Value); };
}

void ShowNumber(const Slider& slider, Label& label) {
  label.Caption = std::to_string(slider.Value);
}

void RefuseLongWait(TextBox& wait) {
  if (Val(wait.Text) <= kMostWait) return;
  Tell(kMsgWaitRange);
  wait.Text = std::to_string(kMostWait);
}

bool IsDone(int row, int col) { return col == 1 && row <= MotionNow.RowsDone; }

void MarkDone(Grid& list) {
  list.IsDone = IsDone;
  list.CellToolTip = [](int row, int col) {
    return IsDone(row, col) ? Text(kRowIsDone) : std::string();
  };
  // What is typed into a row has not been moved to.
  list.AcceptEdit = [](int row, int, std::string&) {
    MotionNow.RowsDone = std::min(MotionNow.RowsDone, row - 1);
    return EditVerdict{};
  };
  list.SelChange = ShowKeptPlaces;
}

void FillList(Grid& list) {
  list.SetText(0, 1, "No.");
  for (int row = 1; row <= kSelectRows; ++row) list.SetText(row, 0, std::to_string(row));
  list.SetColWidth(0, kNumberWidth / 2);
  list.SetColWidth(1, kNumberWidth);
  list.SetColAlign(1, ColAlign::Left);
  list.CanEdit = [](int row, int col) { return row > 0 && col == 1; };
  list.MaxLength = [](int) { return 4; };
  list.MoveOn = [&list](bool backwards) {
    const int next = list.Row + (backwards ? -1 : 1);
    list.SelectCell(next < 1 ? kSelectRows : next > kSelectRows ? 1 : next, 1);
  };
}

}  // namespace

void ShowMoveRange() {
  PosiMoveTest& f = frmPosi.Move;
  ShowNumber(f.sldrStartPosiNo, f.lblStartPosiNo);
  ShowNumber(f.sldrEndPosiNo, f.lblEndPosiNo);
}

void ForgetPauses() {
  PosiMoveTest& f = frmPosi.Move;
  f.MoveTempStop = f.MoveTempStop2 = False;
  f.MoveSelectIndex = f.MoveContNo = 0;
  MotionNow.RowsDone = 0;
  f.flgdProgram.Touch();
  ShowKeptPlaces();
}

void InstallMoveControls() {
  PosiMoveTest& f = frmPosi.Move;
  FillList(f.flgdProgram);
  MarkDone(f.flgdProgram);
  for (CheckBox* repeat : {&f.chkRepeat, &f.chkRepeat2}) repeat->Click = ShowKeptPlaces;
  for (OptionButton& way : f.optMoveWay) way.Click = ShowKeptPlaces;
  Couple(f.sldrStartPosiNo, f.updownStartPosiNo, f.lblStartPosiNo);
  Couple(f.sldrEndPosiNo, f.updownEndPosiNo, f.lblEndPosiNo);
  for (TextBox* wait : {&f.txtTimer, &f.txtTimer2}) {
    wait->Enter = [wait] { RefuseLongWait(*wait); };
  }
  f.timerMove.Tick = [] {
    frmPosi.Move.timerMove.Stop();
    frmPosi.Move.MoveTimerUp = True;
  };
  f.sldrGrpNo.Change = ShowGroupRange;
  f.cmdSelectMove.Click = cmdSelectMove_Click;
  f.cmdTmpStop.Click = cmdTmpStop_Click;
  f.cmdStop.Click = cmdStop_Click;
  f.cmdMove.Click = cmdMove_Click;
  f.cmdTempStop2.Click = cmdTempStop2_Click;
  f.cmdStop2.Click = cmdStop2_Click;
  f.cmdGrpMove.Click = cmdGrpMove_Click;
  f.cmdGrpMoveStop.Click = cmdGrpMoveStop_Click;
}

}  // namespace tr7
