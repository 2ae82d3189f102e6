// The flows that talk to the controller: what is done first, and what they may change. A new flow
// costs a row.

#pragma once

#include "data/grp_commands.h"
#include "data/grp_table.h"
#include "data/sm_commands.h"
#include "data/sm_table.h"
#include "device/ct_device.h"
#include "forms/frm_compare.h"
#include "forms/frm_io_check_fg.h"
#include "forms/frm_prog_no.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "monitor/io_state.h"
#include "monitor/task_monitor.h"
#include "motion/motion_tabs.h"
#include "para/para_transfer_commands.h"
#include "para/sys_para.h"
#include "para/sys_para_commands.h"
#include "prog/prog_view.h"
#include "state/busy_scope.h"
#include "state/frame_menus.h"
#include "state/online.h"
#include "steps/transfer_scope.h"
#include "tests/support/flow_test.h"

namespace tr7 {

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
    InDialog("frmCompare", {[] {
               frmCompare.cmdCompare.Press();
               frmCompare.Visible = false;
             }});
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
  void ShowTab(int tab) { ClickTab(frmPosi.SSTabCommand(), tab); }
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

inline std::string TextsOf(const ParaTableRecord& table) {
  std::string text;
  for (std::size_t column = 0; column < ParaTableRecord::kColumns; ++column) {
    for (std::size_t row = 1; row < ParaTableRecord::kRows; ++row) {
      text += TextOf(table[column][row]) + ",";
    }
  }
  return text;
}

inline Fields MachineOfPc() {
  return {std::to_string(MaskOfMuko(AppState.AxisMuko)), PcState::Of(DevSetting),
          AppState.CtMode ? "program" : "position"};
}

inline Fields MachineAndParameters() {
  Fields fields = MachineOfPc();
  fields.push_back(TextsOf(ParaTableOf(ParamSet)));
  return fields;
}

inline Fields Stages() {
  Fields fields{TextsOf(ParaTable), {}, {}, {}};
  for (const std::int16_t end : GrpStage.GrpEnd) fields[1] += std::to_string(end) + ",";
  for (const auto& macro : SmStage) {
    for (const auto& step : macro) fields[2] += std::to_string(step.Value) + ",";
  }
  for (const double value : SysParaRead) fields[3] += std::to_string(value) + ",";
  return fields;
}

/// The axes that the controller's block 0 holds for whoever reads it next.
inline Fields AxesAsRead() {
  const TransferScope transfer;
  LiftOffline();
  static_cast<void>(TusinPortOpen());
  static_cast<void>(AlarmResetToCt());
  const int result = ReadCtModeAndAxis();
  return {std::to_string(result) + " " + std::to_string(AppState.AxisPatternOfCt)};
}

inline Fields ShownPositions() {
  Fields fields(1);
  for (int row = kPosiHeaderRows; row < frmPosi.flgdData.Rows(); ++row) {
    for (int col = 0; col < kPosiColumns; ++col) fields[0] += frmPosi.flgdData.Text(row, col) + ",";
  }
  return fields;
}

inline Fields Polled() { return {IoMonitor.TrueAt}; }

/// The first program of the views, from the last one on.
inline Fields ShownProgram() {
  Fields fields(1);
  for (const View* view : AllViews()) {
    const auto* program = dynamic_cast<const ProgView*>(view);
    if (program && program->Loaded) fields[0] = program->flgdProg.Text(1, kProgOperand1);
  }
  return fields;
}

inline Fields TasksKnown() { return {std::to_string(TaskMonitor.Seen.TaskProgNo[0])}; }
inline Fields HomeState() { return {AppState.HomeDone ? "home" : ""}; }
inline Fields ReachedLast() {
  return {frmPosi.Readout.lblkanryoNo.Caption == "3" ? "reached" : ""};
}

/// All that the controller keeps through a loss of power.
inline std::string Committed(const qvr7sim::Controller& ct) {
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

inline constexpr SweptFlow kFlows[] = {
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

}  // namespace tr7
