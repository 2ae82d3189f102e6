#include "compare/compare_reading.h"

#include "forms/frm_compare.h"
#include "forms/frm_main.h"
#include "state/views.h"

namespace tr7 {
namespace {

void FollowFrame() {
  FrmCompare& f = frmCompare;
  const ProgressBar& bar = frmMain.ProgressBar1;
  const CommandButton& cancel = frmMain.cmdComCancel;
  f.lblCount.Caption = frmMain.lblStatus.Caption;
  f.ProgressBar1.Max = bar.Max;
  f.ProgressBar1.Value = bar.Value;
  f.ProgressBar1.Visible = bar.Visible;
  f.cmdComCancel.Visible = f.cmdComCancel.Enabled = cancel.Visible && cancel.Enabled;
}

void SwitchView(bool on) {
  SwitchControls(frmCompare, on);
  frmCompare.flgdCompare.Enabled = on;
}

}  // namespace

CompareReading::CompareReading() {
  FrmCompare& f = frmCompare;
  SwitchView(false);
  handlers_.Set(f.cmdComCancel.Click, [] { frmMain.cmdComCancel.Press(); });
  handlers_.Set(f.QueryUnload, [](CloseReason) {
    frmMain.cmdComCancel.Press();
    return true;
  });
  handlers_.Set(f.TimerReading.Tick, FollowFrame);
  f.TimerReading.Start();
}

CompareReading::~CompareReading() {
  FrmCompare& f = frmCompare;
  f.TimerReading.Stop();
  SwitchView(true);
  f.ProgressBar1.Visible = f.cmdComCancel.Visible = f.cmdComCancel.Enabled = false;
}

}  // namespace tr7
