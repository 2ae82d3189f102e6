// The monitor of inputs and outputs: what it asks and shows, what it forces, and how it ends.

#include "forms/frm_io_check_fg.h"
#include "link/task_commands.h"
#include "monitor/io_state.h"
#include "monitor/plot_data.h"
#include "sim/signal_names.h"
#include "state/settings.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;
constexpr std::int64_t kMs = 1000;

class IoMonitorTest : public FlowTest {
 protected:
  explicit IoMonitorTest(const qvr7sim::Setup& setup = InProgramMode()) : FlowTest(setup) {}
  void SetUp() override {
    StartOnline();
    frmMain.mnuMonitorIO.Press();
    ASSERT_TRUE(f.Visible);
    Forget();
  }
  void Start() {
    f.cmdIoMonitor.Press();
    After(3000);
  }
  void ShowTab(int tab) { ClickTab(f.tabIo, tab); }
  void After(int ms) { pump.RunFor(ms * kMs); }
  void Set(const std::string& name, std::int32_t value) {
    port.Ct().Set(*qvr7sim::ParseSignal(name), value, pump.NowUs());
  }
  /// The names of the rows that are on.
  static std::string On(const Grid& grid) {
    std::string on;
    for (int row = 0; row < grid.Rows(); ++row) {
      if (grid.Text(row, kPointState) == "O") on += grid.Text(row, kPointName) + " ";
    }
    return on;
  }
  static int RowOf(const Grid& grid, const std::string& name) {
    int row = 0;
    while (grid.Text(row, kPointName) != name) ++row;
    return row;
  }
  void Flip(const std::string& name) { io.flgdOutput.CellClick(RowOf(io.flgdOutput, name), 1); }
  /// Adds an item as a user does.
  static void Add(WatchPane& pane, const std::string& program, const std::string& number) {
    pane.txtProgram.Text = program;
    pane.txtNumber.Text = number;
    pane.cmdAdd.Press();
  }
  static std::string Rows(const Grid& grid) {
    std::string rows;
    for (int row = 1; row < grid.Rows(); ++row) {
      rows += grid.Text(row, 0) + " " + grid.Text(row, 1) + " " + grid.Text(row, 2) + "; ";
    }
    return rows;
  }

  /// The simulator has a table of its own.
  void EveryInputLightsItsRow() {
    for (int row = 0; row < kInputRows; ++row) {
      const std::string name = io.flgdInput.Text(row, kPointName);
      const bool acts = name == "STB" || name == "STOP" || name == "PAUSE" || name == "RES";
      if (acts || name.starts_with("HOME")) continue;
      Set(name, 1);
      After(600);
      EXPECT_EQ(On(io.flgdInput), name + " HOME LS1 HOME LS2 HOME LS3 HOME LS4 ");
      Set(name, 0);
    }
  }
  /// Two clicks between polls are one flip; a flip and another one leave it as it was.
  void EveryOutputTurnsRound() {
    for (int row = 0; row < kOutputRows; ++row) {
      const std::string name = io.flgdOutput.Text(row, kPointName);
      const std::string before = On(io.flgdOutput);
      Flip(name);
      Flip(name);
      EXPECT_EQ(io.flgdOutput.Text(row, kPointForced), "Waiting");
      After(1200);
      EXPECT_EQ(On(io.flgdOutput).find(name + " ") == std::string::npos,
                before.find(name + " ") != std::string::npos)
          << name;
      Flip(name);
      After(1200);
      EXPECT_EQ(On(io.flgdOutput), before) << "turned round twice";
    }
  }

  FrmIOCheckFG& f = frmIOCheckFG;
  IoPage& io = frmIOCheckFG.Io;
  WatchPage& watched = frmIOCheckFG.Watched;
};

class IoInPositionMode : public IoMonitorTest {
 protected:
  IoInPositionMode() : IoMonitorTest(qvr7sim::Setup::Useful()) {}
};

TEST_F(IoMonitorTest, TheFirstTickSendsTheModeAndLaterOnesDoNot) {
  f.cmdIoMonitor.Press();
  After(1450);
  EXPECT_EQ(SentLines(), "");
  After(150);
  EXPECT_EQ(SentLines(), "0CM00000 0RI 0RO 0RCF ");
  After(620);
  EXPECT_EQ(SentLines(), "0CM00000 0RI 0RO 0RCF 0RI 0RO 0RCF ");
  EXPECT_NE(f.lblPace.Caption.find("Updated"), std::string::npos);
  f.cmdIoMonitor.Press();
  EXPECT_EQ(On(io.flgdOutput) + On(io.flgdInput), "");
  EXPECT_EQ(io.flgdInput.Text(0, kPointState), "-");
}

TEST_F(IoMonitorTest, EveryPointOfProgramModeInItsRow) {
  Start();
  EveryInputLightsItsRow();
  for (int n = 1; n <= 16; ++n) {
    const std::string name = "OUT" + std::to_string(n);
    Set(name, 1);
    After(600);
    EXPECT_EQ(On(io.flgdOutput), "RDY IN-P " + name + " ");
    Set(name, 0);
  }
  EveryOutputTurnsRound();
}

TEST_F(IoInPositionMode, EveryPointOfPositionModeInItsRow) {
  Start();
  EveryInputLightsItsRow();
  EveryOutputTurnsRound();
}

TEST_F(IoMonitorTest, NothingIsForcedBeforeThePointsAreKnownNorWhenTheyAreNot) {
  Set("OUT3", 1);
  Flip("OUT1");
  f.cmdIoMonitor.Press();
  Flip("OUT1");
  io.flgdOutput.CellClick(3, kPointOwnName);
  After(3000);
  EXPECT_EQ(SentLines(3).find("0WO"), std::string::npos);
  Spoil(FaultKind::kSilence, "0RO", 0);
  pump.After(3500 * kMs, [this] {
    EXPECT_TRUE(io.flgdInput.IsUnused(0, kPointState) && !io.lblCurrentPos[0].Enabled);
    EXPECT_EQ(f.lblPace.Caption, Text(7197, IoMonitor.TrueAt));
    port.Ct().ClearFaults();
  });
  After(12'000);
  EXPECT_TRUE(!io.flgdInput.IsUnused(0, kPointState) && io.lblCurrentPos[0].Enabled);
  Spoil(FaultKind::kSilence, "0RO", 0);
  After(30'000);
  EXPECT_EQ(forms.boxes.size(), 1u);
  ExpectOffline();
  EXPECT_FALSE(f.timerInputOutput1.Enabled);
  EXPECT_TRUE(io.flgdInput.IsUnused(0, kPointState));
  Flip("OUT1");
  port.Ct().ClearFaults();
  frmMain.mnuSettingOnline.Press();
  Start();
  EXPECT_EQ(On(io.flgdOutput), "RDY IN-P OUT3 ");
  EXPECT_FALSE(io.flgdInput.IsUnused(0, kPointState));
}

TEST_F(IoMonitorTest, AFlipThatAStopCutsShortGoesOutWithTheNextPoll) {
  Start();
  Spoil(FaultKind::kDeaf, "0WO");
  Flip("OUT1");
  pump.After(600 * kMs, [] { static_cast<void>(TaskMonitorStartToCt()); });
  After(3000);
  EXPECT_EQ(On(io.flgdOutput), "RDY IN-P OUT1 ");
}

TEST_F(IoMonitorTest, TheOverrideIsOnAgainBehindOtherFlowsAndIsTakenBackByWhoeverLeaves) {
  const std::string note = Text(7312);
  const std::string& panel = frmMain.sbStatusBar.Panels[kPanelOverride];
  const auto spoil_digits = [this] {  // a reply without sense on a line in order
    for (int byte = 4; byte < 24; ++byte) Spoil(FaultKind::kChangedByte, "0RC", 1, byte);
  };
  const std::function<void()> ends[] = {[&] { f.cmdIoMonitor.Press(); },
                                        [&] { f.cmdIoWinClose.Press(); },
                                        [&] { CloseView(f, CloseReason::ControlMenu); },
                                        [&] { CloseView(f, CloseReason::Code); },
                                        spoil_digits,
                                        [&] { GoOffline(); }};
  for (const auto& end : ends) {
    if (!f.Visible) frmMain.mnuMonitorIO.Press();
    Start();
    f.chkIgnore.Set(true);
    EXPECT_EQ(panel, "");
    After(700);
    EXPECT_EQ(panel, note);
    EXPECT_EQ(port.Ct().ControlDigits(), "1111");
    pump.After(100 * kMs, [&] { EXPECT_TRUE(io.flgdInput.IsUnused(0, kPointState)) << "old"; });
    ReadRange(1, 9);
    forms.answers = {MsgAnswer::Ok};
    AnswerRange("frmSelectPosiNo3", 1, 1);
    frmPosi.cmdPosiWrite.Press();
    EXPECT_EQ(port.Ct().ControlDigits(), "0000");
    After(700);
    EXPECT_EQ(port.Ct().ControlDigits(), "1111");
    Forget();
    end();
    After(3000);
    EXPECT_EQ(port.Ct().ControlDigits(), "0000");
    EXPECT_TRUE(BoxShown(Text(7313)));
    EXPECT_EQ(panel, "");
    EXPECT_FALSE(f.chkIgnore.Value);
  }
  frmMain.mnuSettingOnline.Press();
  for (int ms = 0; ms < 700; ms += 50) {  // at any moment of its first frame
    Start();
    Spoil(FaultKind::kDelay, "0CM01");
    f.chkIgnore.Set(true);
    pump.After(ms * kMs, [&] { f.cmdIoMonitor.Press(); });
    After(3000);
    EXPECT_EQ(port.Ct().ControlDigits() + panel, "0000") << ms;
  }
}

TEST_F(IoMonitorTest, TheListsTakeWhatTheyMayAndAreKept) {
  const struct {
    WatchPane& pane;
    OptionButton* scope;
    const char *program, *number, *row;
    MsgId refusal;
  } rows[] = {
      {watched.Flags, &watched.optFlag[0], "", "1", "(Global) F1 X; ", {}},
      {watched.Flags, &watched.optFlag[0], "0", "100", "(Global) F1 X; (Global) F100 X; ", {}},
      {watched.Flags, &watched.optFlag[0], "1", "1", nullptr, 1038},
      {watched.Flags, &watched.optFlag[1], "0", "1", nullptr, 1038},
      {watched.Variables, &watched.optHensu[1], "100", "0", nullptr, 1037},
      {watched.Variables, &watched.optHensu[1], "100", "7", "100 r7 X; ", {}},
      {watched.PosVariables, nullptr, "1", "5", nullptr, 1037},
      {watched.PosVariables, nullptr, "1", "4", "1 PR4 X; ", {}},
  };
  ShowTab(1);
  EXPECT_FALSE(watched.Flags.cmdAdd.Enabled);
  watched.chkEditItem.Set(true);
  EXPECT_EQ(watched.chkEditItem.Caption, "Restart");
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.program) + "," + row.number);
    if (row.scope) row.scope->Press();
    const std::string before = Rows(row.pane.List);
    Forget();
    Add(row.pane, row.program, row.number);
    EXPECT_EQ(Rows(row.pane.List), row.row ? row.row : before);
    EXPECT_EQ(forms.LastBox(), row.refusal ? Text(row.refusal) : "");
  }
  watched.Flags.List.SelectCell(1, 0);
  watched.Flags.cmdDown.Press();
  watched.Flags.List.SelectCell(1, 0);
  watched.optFlag[1].Press();
  watched.Flags.txtProgram.Text = "9";
  watched.Flags.cmdChange.Press();
  EXPECT_EQ(Rows(watched.Flags.List), "9 f100 X; (Global) F1 X; ");
  CloseView(f, CloseReason::Code);
  frmMain.mnuMonitorHensu.Press();
  EXPECT_EQ(Rows(watched.Flags.List), "9 f100 X; (Global) F1 X; ");
  EXPECT_EQ(GetSetting("Flag0", "") + " " + GetSetting("Pvar0", ""), "9,100 1,4");
}

TEST_F(IoMonitorTest, ValuesComeAtEveryTickButWhileTheUserEdits) {
  PutSetting("Flag0", "0,2");
  PutSetting("Flag1", "1,60");
  PutSetting("Vari0", "0,1");
  PutSetting("Pvar0", "1,2");
  PutSetting("Pvar1", "1,9");
  CloseView(f, CloseReason::Code);
  frmMain.mnuMonitorHensu.Press();
  Set("F2", 1);
  Set("R1", -5);
  Set("1:PR2", 12345);
  Start();
  EXPECT_EQ(Rows(watched.Flags.List), "(Global) F2 O; 1 f60 X; ");
  EXPECT_EQ(Rows(watched.Variables.List) + Rows(watched.PosVariables.List),
            "(Global) R1 -5; 1 PR2 12.345; ");
  EXPECT_EQ(io.lblCurrentPos[0].Caption, "0.000");
  watched.chkEditItem.Set(true);
  Set("R1", 6);
  After(1500);
  EXPECT_EQ(Rows(watched.Variables.List), "(Global) R1 -5; ");
  watched.chkEditItem.Set(false);
  f.cmdIoMonitor.Press();
  EXPECT_EQ(Rows(watched.Variables.List), "(Global) R1 X; ");
}

TEST_F(IoMonitorTest, NamesOfTheUsersOwnAreKeptAndTravel) {
  EXPECT_EQ(io.flgdInput.TypeInto(4, kPointOwnName, " door\nclosed "), 0);
  EXPECT_EQ(io.flgdOutput.TypeInto(18, kPointOwnName, "horn"), 0);
  EXPECT_EQ(io.flgdInput.TypeInto(4, kPointState, "O"), 1);
  EXPECT_EQ(GetSetting("IoNameIn4", ""), "door closed");
  forms.file_answers = {"/work/n.ion"};
  io.cmdNamesSave.Press();
  io.flgdInput.TypeInto(4, kPointOwnName, "");
  forms.file_answers = {"/work/n.ion"};
  io.cmdNamesLoad.Press();
  EXPECT_EQ(io.flgdInput.Text(4, kPointOwnName), "door closed");
  EXPECT_EQ(frmIOCheckFG.Chart.flgdPlot.Text(5, 1), "In IN1 door closed");
  const std::string other = With(virt.files.Content("/work/n.ion").value(), "door", "gate");
  for (const std::string& damaged :
       {With(other, "ION", "GRP"), With(other, "QV-R7", "QV-R8"), With(other, "gate", "\"gate"),
        other.substr(0, other.size() - 4), other + "\"more\"\r\n", std::string()}) {
    virt.files.Put("/work/n.ion", damaged);
    forms.file_answers = {"/work/n.ion"};
    io.cmdNamesLoad.Press();
    EXPECT_TRUE(forms.LastBox().starts_with(Text(7336))) << damaged;
    EXPECT_EQ(io.flgdInput.Text(4, kPointOwnName), "door closed");
  }
}

TEST_F(IoMonitorTest, ThePlotKeepsTenMinutesAndTellsThemAtItsCursors) {
  PlotPage& chart = f.Chart;
  ShowTab(2);
  Start();
  chart.flgdPlot.CellClick(5, 0);  // IN1
  Set("IN1", 1);
  After(700'000);
  const PlotTrace& trace = *chart.plotIo.Shown.at(0);
  EXPECT_LE(trace.Samples.back().AtMs - trace.Samples.front().AtMs, kPlotKeepsMs);
  Set("IN1", 0);
  After(20'000);
  chart.chkPlotPause.Set(true);
  const std::int64_t held = chart.plotIo.ToMs;
  After(5000);
  EXPECT_EQ(chart.plotIo.ToMs, held);
  chart.plotIo.Pick(held, false);
  chart.plotIo.Pick(held - 30'000, true);
  EXPECT_EQ(chart.flgdPlot.Text(5, 2) + chart.flgdPlot.Text(5, 3), "-O");
  forms.file_answers = {"/work/p.csv"};
  chart.cmdPlotCsv.Press();
  const std::string csv = virt.files.Content("/work/p.csv").value();
  EXPECT_TRUE(csv.starts_with("\"Time [s]\",\"In IN1\"\r\n")) << csv.substr(0, 60);
  EXPECT_TRUE(csv.ends_with(",0\r\n"));
  chart.plotIo.Picture = [] { return "as it is drawn"; };
  forms.file_answers = {"/work/p.png"};
  chart.cmdPlotPicture.Press();
  EXPECT_EQ(virt.files.Content("/work/p.png"), "as it is drawn");
}

}  // namespace
}  // namespace tr7
