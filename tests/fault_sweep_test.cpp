// Every fault at every line of every flow that talks to the controller: whatever befalls it, the
// flow ends at rest, the PC and the controller are as before or as after, the user is told, and
// after a refusal nothing more is sent. A new flow costs a row.

#include <algorithm>
#include <functional>
#include <memory>

#include "data/grp_commands.h"
#include "data/grp_table.h"
#include "data/sm_commands.h"
#include "data/sm_table.h"
#include "device/ct_device.h"
#include "forms/frm_compare.h"
#include "forms/frm_device.h"
#include "forms/frm_io_check_fg.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_prog_no.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "monitor/io_state.h"
#include "monitor/task_monitor.h"
#include "motion/motion_tabs.h"
#include "para/para_transfer_commands.h"
#include "para/param_set.h"
#include "para/sys_para.h"
#include "para/sys_para_commands.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "prog/prog_view.h"
#include "state/busy_scope.h"
#include "state/frame_menus.h"
#include "state/message_box.h"
#include "state/online.h"
#include "steps/transfer_scope.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

/// A tool that has connected, and one flow in it.
class Trial : public FlowTest {
 public:
  Trial() {
    virt.settings.Set("Settings", "PortOccupy", "0");
    allow_unanswered = true;  // a line that lies may bring up other questions
    StartOnline();
    Forget();
  }
  void TestBody() override {}
  void End() { TearDown(); }
  using FlowTest::BoxShown;
  using FlowTest::Forget;
  using FlowTest::Spoil;
  void DieAt(int line) { port.writes_until_dead = line; }
  void LetLineServe() {
    port.Ct().ClearFaults();
    port.writes_until_dead = -1;
    port.open_fault = PortFault::None;
  }
  /// Past the ramp of a stop.
  bool RunsUnheardOf() {
    pump.RunFor(100'000);
    return Ct().AnyMoving(pump.NowUs()) && !frmMain.cmdStopNow.Enabled;
  }
  void TakePort() { port.open_fault = PortFault::InUse; }
  qvr7sim::Controller& Ct() { return port.Ct(); }
  std::size_t BoxCount() const { return forms.boxes.size(); }
  using FlowTest::Lines;

  // What is done first, on a good line, and the flow.
  void Nothing() {}
  void OtherModeAndDevice() {
    GoOffline();
    AppState.CtMode = !AppState.CtMode;
    DispControlerMode();
    DevSetting[0].Stroke = 50;
  }
  void OtherAxes() {
    GoOffline();
    AppState.AxisMuko[3] = True;
  }
  void OtherDevice() { DevSetting[0].Stroke = 50; }
  void Connect() {
    Choose({0, 0});
    frmMain.mnuSettingOnline.Press();
  }
  void ChangeMode() {
    Choose({1});
    frmMain.lblCtMode.DblClick();
  }
  void ShowVersion() { frmMain.mnuContVersion.Press(); }
  void ResetAlarm() { frmMain.cmdReset.Press(); }
  void WriteDevices() {
    forms.on_modal["frmDevice3"] = [](View&) {
      Pick(frmDevice3.comboDeviceSize[0], " 42");
      frmDevice3.comboAxisSelect.Pick(1);
      frmDevice3.cmdPrmCtWrite.Press();
      frmDevice3.cmdDeviceCancel.Press();
    };
    frmMain.mnuSettingDeviceOnline.Press();
  }
  void ReadPositions() {
    Choose({0});
    ReadRange(1, 5);
  }
  void EditPositions() {
    ReadRange(1, 5);
    for (int n = 1; n <= 5; ++n) frmPosi.flgdData.SetText(RowOfPosition(n), kVel, "47");
  }
  void WritePositions() {
    AnswerRange("frmSelectPosiNo3", 2, 4);
    forms.answers = {MsgAnswer::Ok};
    frmPosi.cmdPosiWrite.Press();
  }
  void CompareBy(CommandButton& button) {
    InDialog("frmCompare",
             {[] { frmCompare.cmdCompare.Press(); }, [] { frmCompare.Visible = false; }});
    button.Press();
  }
  void ComparePositions() { CompareBy(frmPosi.cmdPosiCompare); }
  void EditTables() {
    GrpTable.GrpEnd[1] = 77;
    SmTable[0][0] = {3, 3};
    SysPara[1] = 777;
  }
  /// The parameter view holds the controller's, and a change; the PC another device.
  void ParaView() {
    frmMain.mnuViewPara.Press();
    frmParameta2.cmdParaRead.Press();
    frmParameta2.txtHomePush[0].Type("77");
    OtherDevice();
  }
  void ReadPara() {
    forms.answers = {MsgAnswer::No, MsgAnswer::Ok};
    frmParameta2.cmdParaRead.Press();
  }
  void WritePara() {
    forms.answers = {MsgAnswer::Yes, MsgAnswer::Yes};
    frmParameta2.cmdParaWrite.Press();
  }
  void AxesInView() {
    ParaView();
    AppState.AxisMuko[3] = True;
    AllViewsCmdYuko();
    forms.answers = {MsgAnswer::Yes};
    frmParameta2.chkTokuParaChange.Set(true);
    frmParameta2.comboOneAxis.Pick(2);
  }
  void WriteAxesAndPara() {
    Choose({0});
    WritePara();
  }
  void VerifyPara() { frmParameta2.cmdConpareCT.Press(); }
  void ShowTab(int tab) {
    TabStrip& strip = frmPosi.SSTabCommand();
    strip.Selected = tab;
    strip.Click();
  }
  void MoveTab() {
    ReadRange(1, 5);
    ShowTab(1);
  }
  /// All three moves end at position 3.
  void HomedOnMoveTab() {
    MoveTab();
    Home();
    PosiMoveTest& f = frmPosi.Move;
    f.flgdProgram.SetText(1, 1, "1");
    f.flgdProgram.SetText(2, 1, "3");
    f.updownStartPosiNo.Set(2);
    f.updownEndPosiNo.Set(3);
    GrpTable.GrpStart[1] = 2;
    GrpTable.GrpEnd[1] = 3;
    ShowMotionTabs();
  }
  void TeachingTab() {
    MoveTab();
    Home();
    ShowTab(2);
    frmPosi.flgdData.SelectCell(RowOfPosition(1), 1);
    port.Ct().PlaceAxis(1, 1234, pump.NowUs());
  }
  void Home() { frmPosi.Move.cmdHome.Press(); }
  void MoveByList() { frmPosi.Move.cmdSelectMove.Press(); }
  void MoveByRange() { frmPosi.Move.cmdMove.Press(); }
  void MoveGroup() { frmPosi.Move.cmdGrpMove.Press(); }
  void Teach() {
    frmPosi.Teach.cmdJOGST.Press();
    frmPosi.Teach.cmdJOGWrite.Press();
    frmPosi.Teach.cmdJOGend.Press();
  }
  /// An item on each list, and the inputs are to start nothing.
  void IoView() {
    for (const char* key : {"Flag0", "Vari0", "Pvar0"}) {
      virt.settings.Set("Settings", key, key[0] == 'P' ? "1,1" : "0,1");
    }
    frmMain.mnuMonitorIO.Press();
    frmIOCheckFG.chkIgnore.Set(true);
  }
  void PollOnce() {
    frmIOCheckFG.cmdIoMonitor.Press();
    for (int s = 0; s < 100 && IoMonitor.IoMonOn && IoMonitor.TrueAt.empty(); ++s) {
      pump.RunFor(1'000'000);
    }
    if (IoMonitor.IoMonOn) frmIOCheckFG.cmdIoMonitor.Press();
  }
  void ProgramView() {
    forms.on_modal["frmProgNo"] = [](View&) { frmProgNo.cmdOk.Press(); };
    AppState.ProgStepsRead = True;
    NewProgram();
    for (const char* number : {"1", "999"}) {  // the controller keeps the first
      Program().flgdProg.SetText(1, kProgCommand, "MVP");
      Program().flgdProg.SetText(1, kProgOperand1, number);
      if (number[1] == 0) WriteProgram();
    }
  }
  static ProgView& Program() { return *dynamic_cast<ProgView*>(ActiveView()); }
  void WriteProgram() { Program().cmdProgWrite.Press(); }
  void ReadProgram() {
    AppState.ProgStepsRead = False;
    frmMain.mnuContProgRead.Click();
  }
  void CompareProgram() { CompareBy(Program().cmdProgCompare); }
  void InProgramsOfCt() {
    HoldProgram(virt, 1, "103FF00100000000000");
    AppState.CtMode = AppState.ProgStepsRead = True;
    DispControlerMode();
    ChangeMenuDisp(True);
    AllViewsLayoutChanged();
  }
  void WatchTasks() {
    frmMain.mnuContProgTask.Press();
    frmProgTask.flgdProgTask.SelectCell(1, 1);
    frmProgTask.cmdStartTask.Press();
    pump.RunFor(6'000'000);
    CloseView(frmProgTask, CloseReason::Code);
  }
  template <auto kTransfer>
  void Transfer() {
    const CommandsOff commands_off;
    static_cast<void>(kTransfer());
  }
};

// What a flow may change, field by field.

using Fields = std::vector<std::string>;

std::string TextsOf(const ParaTableRecord& table) {
  std::string text;
  for (std::size_t column = 0; column < ParaTableRecord::kColumns; ++column) {
    for (std::size_t row = 1; row < ParaTableRecord::kRows; ++row) {
      text += TextOf(table[column][row]) + ",";
    }
  }
  return text;
}

Fields MachineOfPc() {
  Fields fields(3);
  for (int axis = 0; axis < kAxes; ++axis) {
    const DevSettingRecord& device = DevSetting[axis];
    fields[0] += AppState.AxisMuko[axis] ? "-" : "x";
    fields[1] += device.Size + device.Speed + std::to_string(device.Stroke) + " " +
                 std::to_string(device.Lead) + " " + std::to_string(device.Ppr) +
                 (device.WithPG ? "E" : "_");
  }
  fields[2] = AppState.CtMode ? "program" : "position";
  return fields;
}

Fields MachineAndParameters() {
  Fields fields = MachineOfPc();
  fields.push_back(TextsOf(ParaTableOf(ParamSet)));
  return fields;
}

Fields Stages() {
  Fields fields{TextsOf(ParaTable), {}, {}, {}};
  for (const std::int16_t end : GrpStage.GrpEnd) fields[1] += std::to_string(end) + ",";
  for (const auto& macro : SmStage) {
    for (const auto& step : macro) fields[2] += std::to_string(step.Value) + ",";
  }
  for (const double value : SysParaRead) fields[3] += std::to_string(value) + ",";
  return fields;
}

/// The axes that the controller's block 0 holds for whoever reads it next.
Fields AxesAsRead() {
  const TransferScope transfer;
  LiftOffline();
  static_cast<void>(TusinPortOpen());
  static_cast<void>(AlarmResetToCt());
  const int result = ReadCtModeAndAxis();
  return {std::to_string(result) + " " + std::to_string(AppState.AxisPatternOfCt)};
}

Fields ShownPositions() {
  Fields fields(1);
  for (int row = kPosiHeaderRows; row < frmPosi.flgdData.Rows(); ++row) {
    for (int col = 0; col < kPosiColumns; ++col) fields[0] += frmPosi.flgdData.Text(row, col) + ",";
  }
  return fields;
}

Fields Polled() { return {IoMonitor.TrueAt}; }

/// The first program of the views, from the last one on.
Fields ShownProgram() {
  Fields fields(1);
  for (const View* view : AllViews()) {
    const auto* program = dynamic_cast<const ProgView*>(view);
    if (program && program->Loaded) fields[0] = program->flgdProg.Text(1, kProgOperand1);
  }
  return fields;
}

Fields TasksKnown() { return {std::to_string(TaskMonitor.Seen.TaskProgNo[0])}; }
Fields HomeState() { return {AppState.HomeDone ? "home" : ""}; }
Fields ReachedLast() { return {frmPosi.Readout.lblkanryoNo.Caption == "3" ? "reached" : ""}; }

/// All that the controller keeps through a loss of power.
std::string Committed(const qvr7sim::Controller& ct) {
  std::string memory;
  for (const char* frame : {"0WP", "0WD", "0WG", "0WS", "0WK", "0WM"}) {
    for (const std::string& cell : ct.Cells(frame, true)) memory += cell;
  }
  return memory;
}

struct AfterFlow {
  Fields pc;
  std::string ct;
  bool operator==(const AfterFlow&) const = default;
};

struct SweptFlow {
  const char* name;
  void (Trial::*prepare)();
  void (Trial::*flow)();
  Fields (*look)();
  bool in_steps;  ///< may stop between one field and the next
};

constexpr SweptFlow kFlows[] = {
    {"connect, other mode", &Trial::OtherModeAndDevice, &Trial::Connect, MachineOfPc, true},
    {"connect, other axes", &Trial::OtherAxes, &Trial::Connect, MachineOfPc, false},
    {"change mode", &Trial::Nothing, &Trial::ChangeMode, MachineOfPc, false},
    {"version", &Trial::Nothing, &Trial::ShowVersion, MachineOfPc, false},
    {"reset", &Trial::Nothing, &Trial::ResetAlarm, MachineOfPc, false},
    {"write devices", &Trial::Nothing, &Trial::WriteDevices, MachineAndParameters, false},
    {"read positions", &Trial::OtherDevice, &Trial::ReadPositions, ShownPositions, false},
    {"write positions", &Trial::EditPositions, &Trial::WritePositions, ShownPositions, false},
    {"compare positions", &Trial::EditPositions, &Trial::ComparePositions, ShownPositions, false},
    {"homing", &Trial::MoveTab, &Trial::Home, HomeState, false},
    {"selective move", &Trial::HomedOnMoveTab, &Trial::MoveByList, ReachedLast, false},
    {"continuous move", &Trial::HomedOnMoveTab, &Trial::MoveByRange, ReachedLast, false},
    {"group move", &Trial::HomedOnMoveTab, &Trial::MoveGroup, ReachedLast, false},
    {"io poll", &Trial::IoView, &Trial::PollOnce, Polled, false},
    {"teach", &Trial::TeachingTab, &Trial::Teach, ShownPositions, false},
    {"watch tasks", &Trial::InProgramsOfCt, &Trial::WatchTasks, TasksKnown, false},
    {"read parameters", &Trial::ParaView, &Trial::ReadPara, MachineAndParameters, false},
    {"verify parameters", &Trial::ParaView, &Trial::VerifyPara, Stages, false},
    {"read groups", &Trial::Nothing, &Trial::Transfer<ReadGrpFromCt>, Stages, false},
    {"read macros", &Trial::Nothing, &Trial::Transfer<ReadSmFromCt>, Stages, false},
    {"read tuning", &Trial::Nothing, &Trial::Transfer<ReadSysParaFromCt>, Stages, false},
    {"read program", &Trial::ProgramView, &Trial::ReadProgram, ShownProgram, false},
    {"compare program", &Trial::ProgramView, &Trial::CompareProgram, ShownProgram, false},
    {"write program", &Trial::ProgramView, &Trial::WriteProgram, ShownProgram, false},
    {"write parameters", &Trial::ParaView, &Trial::WritePara, MachineOfPc, false},
    {"write axes", &Trial::AxesInView, &Trial::WriteAxesAndPara, AxesAsRead, false},
    {"write groups", &Trial::EditTables, &Trial::Transfer<WriteGrpToCt>, Stages, false},
    {"write macros", &Trial::EditTables, &Trial::Transfer<WriteSmToCt>, Stages, false},
    {"write tuning", &Trial::EditTables, &Trial::Transfer<WriteSysParaToCt>, Stages, false},
};

constexpr FaultKind kOnce[] = {
    FaultKind::kSilence,     FaultKind::kDelay, FaultKind::kLostByte, FaultKind::kChangedByte,
    FaultKind::kExtraByte,   FaultKind::kSplit, FaultKind::kDoubled,  FaultKind::kWrongPrefix,
    FaultKind::kWrongLength, FaultKind::kAlarm};

/// A long transfer says the same in its middle.
bool Counts(std::size_t line, std::size_t lines) {
  return lines < 40 || line <= 5 || line + 5 > lines || line % 23 == 0;
}

class FaultSweep : public ::testing::TestWithParam<SweptFlow> {
 protected:
  /// Runs the flow with what `spoil` does to the line.
  AfterFlow Try(const std::function<void(Trial&)>& spoil) {
    const auto run = std::make_unique<Trial>();
    (run.get()->*GetParam().prepare)();
    before_ = {GetParam().look(), Committed(run->Ct())};
    run->Forget();
    spoil(*run);
    (run.get()->*GetParam().flow)();
    EXPECT_TRUE(run->Ct().ControlDigits() == "0000" || AppState.AxesMayBeHeld) << "left held";
    sent_ = run->Lines();
    EXPECT_FALSE(run->RunsUnheardOf());
    boxes_ = run->BoxCount();
    run->LetLineServe();
    bad_data_ = run->BoxShown(TwoLines(384, 385));
    AfterFlow outcome{GetParam().look(), Committed(run->Ct())};
    run->End();
    return outcome;
  }
  void ExpectOneOrTheOther(const AfterFlow& now, const AfterFlow& good) {
    EXPECT_TRUE(now.ct == before_.ct || now.ct == good.ct) << "the controller keeps a half";
    for (std::size_t i = 0; i < now.pc.size(); ++i) {
      EXPECT_TRUE(now.pc[i] == before_.pc[i] || now.pc[i] == good.pc[i])
          << "half of field " << i << ": " << now.pc[i].substr(0, 60);
    }
    EXPECT_TRUE(GetParam().in_steps || now.pc == before_.pc || now.pc == good.pc) << "half taken";
    EXPECT_TRUE(now == good || boxes_ > 0) << "nobody is told";
  }

  AfterFlow before_;
  Texts sent_;
  std::size_t boxes_ = 0;
  bool bad_data_ = false;  ///< told of
};

TEST_P(FaultSweep, EveryFaultAtEveryLine) {
  const AfterFlow good = Try([](Trial&) {});
  const Texts lines = sent_;
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(Try([](Trial& trial) { trial.TakePort(); }), before_) << "without a port";
  EXPECT_GT(boxes_, 0u);
  for (std::size_t at = 1; at <= lines.size(); ++at) {
    if (!Counts(at, lines.size())) continue;
    SCOPED_TRACE("line " + std::to_string(at) + ": " + lines[at - 1]);
    const int n = static_cast<int>(at);
    ExpectOneOrTheOther(Try([&](Trial& trial) { trial.Spoil(FaultKind::kErrorReply, "", n); }),
                        good);
    // What may move is stopped all the same.
    EXPECT_TRUE(sent_.size() == at || sent_[at] == "0SP") << "sent after a refusal";
    ExpectOneOrTheOther(Try([&](Trial& trial) { trial.Spoil(FaultKind::kDeaf, lines[at - 1], 0); }),
                        good);
    EXPECT_GT(boxes_, 0u);
    const bool carries_data = lines[at - 1].starts_with("0W") && lines[at - 1].size() > 10;
    if (carries_data) {
      const AfterFlow misheard =
          Try([&](Trial& trial) { trial.Spoil(FaultKind::kChangedByte, lines[at - 1], 1, 3); });
      EXPECT_TRUE(misheard.ct == before_.ct || !bad_data_) << "stored all the same";
    }
    ExpectOneOrTheOther(Try([&](Trial& trial) { trial.DieAt(n); }), good);
    const FaultKind kind = kOnce[at % std::size(kOnce)];
    SCOPED_TRACE(qvr7sim::FaultName(kind));
    const AfterFlow now = Try([&](Trial& trial) { trial.Spoil(kind, "", n); });
    if (kind != FaultKind::kChangedByte) ExpectOneOrTheOther(now, good);
  }
}

INSTANTIATE_TEST_SUITE_P(Flows, FaultSweep, ::testing::ValuesIn(kFlows), [](const auto& info) {
  std::string name = info.param.name;
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == ' ' || c == ','; }, '_');
  return name;
});

}  // namespace
}  // namespace tr7
