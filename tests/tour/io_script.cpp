#include "forms/frm_io_check_fg.h"
#include "tests/tour/scripts.h"
#include "tests/tour/steps.h"

namespace tr7::tour {
namespace {

constexpr int kRdyRow = 1, kOut7Row = 9, kOverrideMsg = 7312, kTakenBack = 7313;

void StartWatching(User& user, const char* picture) {
  user.Choose(frmMain.mnuMonitor, frmMain.mnuMonitorIO);
  user.SeeOn(frmIOCheckFG.cmdIoMonitor);
  user.Click(frmIOCheckFG.cmdIoMonitor);
  user.SeeCell(frmIOCheckFG.Io.flgdOutput, kRdyRow, kPointState, "O");
  user.Picture(picture);
}

void NamePoints(User& user) {
  Grid& inputs = frmIOCheckFG.Io.flgdInput;
  user.ClickCell(inputs, 4, kPointOwnName);
  user.Keys("door closed");
  user.Key(Qt::Key_Return);
  user.SeeCell(inputs, 4, kPointOwnName, "door closed");
}

void ForceOutput(User& user, int row) {
  Grid& outputs = frmIOCheckFG.Io.flgdOutput;
  user.ClickCell(outputs, row, kPointState);
  user.SeeCell(outputs, row, kPointState, "O");
  user.Picture("output-forced");
}

void Override(User& user) {
  user.Click(frmIOCheckFG.chkIgnore);
  user.SeePanel(kPanelOverride, Text(kOverrideMsg));
  user.Picture("override");
}

void AddItem(User& user, WatchPane& pane, const char* program, const char* number) {
  if (*program) user.Type(pane.txtProgram, program);
  user.Type(pane.txtNumber, number);
  user.Click(pane.cmdAdd);
}

void FillLists(User& user) {
  WatchPage& f = frmIOCheckFG.Watched;
  user.ClickTab(frmIOCheckFG.tabIo, 1);
  user.Click(f.chkEditItem);
  AddItem(user, f.Flags, "", "1");
  user.Click(f.optFlag[1]);
  AddItem(user, f.Flags, "1", "1");
  AddItem(user, f.Variables, "", "1");
  AddItem(user, f.Variables, "", "2");
  AddItem(user, f.PosVariables, "1", "2");
  user.Picture("lists-edited");
  user.Click(f.chkEditItem);
  user.TellSim("input 1 on");
  user.See(
      "a pocket filled", [&f] { return f.Variables.List.Text(1, 2) == "1"; }, User::kTransferMs);
  user.Picture("lists-live");
}

void ShowThePlot(User& user, std::initializer_list<int> rows) {
  PlotPage& f = frmIOCheckFG.Chart;
  user.ClickTab(frmIOCheckFG.tabIo, 2);
  for (const int row : rows) {
    InTool([&f, row] { return f.flgdPlot.TopRow = row; });
    user.ClickCell(f.flgdPlot, row, 0);
  }
  user.Click(f.cmdPlotIn);
  user.See(
      "some seconds of the plot",
      [] {
        const auto& shown = frmIOCheckFG.Chart.plotIo.Shown;
        return !shown.empty() && shown[0]->Samples.size() > 20;
      },
      User::kTransferMs);
  user.Click(f.chkPlotPause);
  InTool([] {
    const Plot& plot = frmIOCheckFG.Chart.plotIo;
    plot.Pick(plot.ToMs - 9000, false);
    plot.Pick(plot.ToMs - 3000, true);
    return 0;
  });
  user.Picture("plot");
}

}  // namespace

void WatchProgram(User& user) {
  StartOnline(user, true);
  StartWatching(user, "io-program");
  NamePoints(user);
  ForceOutput(user, kOut7Row);
  FillLists(user);
  ShowThePlot(user, {5, 29, 46, 47, 50});
  user.ClickTab(frmIOCheckFG.tabIo, 0);
  Override(user);
  user.Click(frmIOCheckFG.cmdIoWinClose);
  user.AnswerBox(Text(kTakenBack), MsgAnswer::Ok, "override-taken-back");
  user.SeeGone(frmIOCheckFG);
  LeaveByMenu(user);
}

void WatchHandshake(User& user) {
  Grid& outputs = frmIOCheckFG.Io.flgdOutput;
  StartOnline(user);
  StartWatching(user, "io-position");
  user.TellSim("input P1 on");
  user.TellSim("input P2 on");
  user.TellSim("input STB on");
  user.SeeCell(outputs, 2, kPointState, "-");
  user.Picture("io-moving");
  user.SeeCell(outputs, 2, kPointState, "O");
  ShowThePlot(user, {1, 28, 45, 46});
  user.TellSim("silence on");
  user.AnswerBox(Text(100), MsgAnswer::Ok, nullptr, User::kTransferMs);
  user.ClickTab(frmIOCheckFG.tabIo, 0);
  user.See("values gone grey", [] { return !frmIOCheckFG.Io.lblCurrentPos[0].Enabled; });
  user.Picture("io-not-renewed");
  LeaveByMenu(user);
}

}  // namespace tr7::tour
