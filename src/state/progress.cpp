#include "state/progress.h"

#include <algorithm>

#include "forms/frm_main.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

constexpr double kGap = 30;            // twips
constexpr double kCancelWidth = 1275;  // twips

void WidenStatusLabel(double less) { frmMain.lblStatus.Width = frmMain.Width / 2 - less; }

void ShowCancel(bool on) {
  frmMain.cmdComCancel.Enabled = on;
  frmMain.cmdComCancel.Visible = on;
}

}  // namespace

void Disp_ProgressBar() {
  ShowCancel(AppState.ProgressWriting);
  WidenStatusLabel(AppState.ProgressWriting ? kCancelWidth + kGap : kGap);
  frmMain.ProgressBar1.Value = 0;
  frmMain.ProgressBar1.Visible = true;
}

void Hide_ProgressBar() {
  frmMain.ProgressBar1.Visible = false;
  frmMain.ProgressBar1.Value = 0;
  frmMain.lblStatus.Caption.clear();
  ShowCancel(false);
  WidenStatusLabel(kGap);
}

ProgressScope::ProgressScope(const std::string& status, int maximum, bool may_cancel) {
  AppState.ProgressWriting = may_cancel;
  if (may_cancel) AppState.CancelRequested = False;
  frmMain.ProgressBar1.Max = std::max(maximum, 1);
  frmMain.lblStatus.Caption = status;
  Disp_ProgressBar();
}

ProgressScope::~ProgressScope() {
  Hide_ProgressBar();
  AppState.ProgressWriting = False;
}

void ProgressScope::Set(int value) {
  frmMain.ProgressBar1.Value = std::min(value, frmMain.ProgressBar1.Max);
}

void ProgressScope::Advance() { Set(frmMain.ProgressBar1.Value + 1); }

}  // namespace tr7
