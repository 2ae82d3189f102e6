// Going online: the fourteen steps, with the bytes sent and the state left.

#include <algorithm>
#include <functional>

#include "device/dev_setting.h"
#include "device/limits.h"
#include "link/port.h"
#include "posi/device_change.h"
#include "posi/posi_table.h"
#include "posi/unit_change.h"
#include "state/frame_menus.h"
#include "state/online.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

// The lines of each stage; every reader of block 0 takes the command first.
const std::string kVersion = "0CM1 0CM1 0RV ";
const std::string kBlock0 = "0CM1 0RD0 ";
const std::string kDevices = "0RD3 0RD4 0RD6 0RD7 0RD9 0RDA 0RDC 0RDD ";
const std::string kEqual = kVersion + kBlock0 + kBlock0 + kDevices;

/// What the PC holds and a connect may replace.
struct PcState {
  AxisArray<Bool16> muko = AppState.AxisMuko;
  bool mode = AppState.CtMode;
  AxisArray<DevSettingRecord> devices = DevSetting;

  bool SameDevices(const PcState& other) const {
    for (std::size_t a = 0; a < kAxes; ++a) {
      const DevSettingRecord &x = devices[a], &y = other.devices[a];
      if (x.Size != y.Size || x.Speed != y.Speed || x.Stroke != y.Stroke || x.Lead != y.Lead ||
          x.Ppr != y.Ppr || x.WithPG != y.WithPG) {
        return false;
      }
    }
    return true;
  }
  bool operator==(const PcState& other) const {
    return muko == other.muko && mode == other.mode && SameDevices(other);
  }
};

class ConnectTest : public FlowTest {
 protected:
  ConnectTest() { virt.settings.Set("Settings", "PortOccupy", "0"); }

  /// The PC holds what the controller reported, and is offline.
  void StartEqualAndOffline() {
    StartOnline();
    GoOffline();
    ExpectOffline();
    Forget();
  }
  void GoOnline(std::vector<int> choices = {}) {
    Choose(std::move(choices));
    frmMain.mnuSettingOnline.Press();
  }
};

TEST_F(ConnectTest, GoingOfflineIsAskedFirst) {
  AppState.PortOccupy = True;
  virt.settings.Set("Settings", "PortOccupy", "1");
  StartOnline();
  Forget();
  forms.answers = {MsgAnswer::Cancel};
  frmMain.mnuSettingOffline.Press();
  EXPECT_EQ(forms.LastBox(), Text(432));
  ExpectOnline();
  frmPosi.tabCmd.Selected = 1;
  GoOffline();
  ExpectOffline();
  EXPECT_FALSE(port.IsOpen()) << "whatever the setting says";
  EXPECT_EQ(frmPosi.tabCmd.Selected, 0) << "the tab that went off is left";
  EXPECT_EQ(SentLines(), "") << "nothing is said to the controller";
}

struct DifferenceRow {
  const char* name;
  std::function<void()> change;  ///< of the PC, before it goes online
  std::vector<int> choices;
  std::string lines;
  bool online;
  std::vector<MsgId> prompts;  ///<  of the choice boxes
  bool takes_ct;               ///< the PC holds the controller's state at the end
};

void DropAxis4() { AppState.AxisMuko[3] = True; }
void OtherMode() {
  AppState.CtMode = !AppState.CtMode;
  DispControlerMode();
}
void OtherStroke() { DevSetting[0].Stroke = 50; }

TEST_F(ConnectTest, EveryDifferenceAndEveryAnswer) {
  const std::string asked_mode = kVersion + kBlock0;
  const std::string took_mode = asked_mode + kBlock0;
  const std::string take_devices = kBlock0 + kDevices;
  const auto both = [] {
    DropAxis4();
    OtherMode();
  };
  const auto mode_and_device = [] {
    OtherMode();
    OtherStroke();
  };
  const DifferenceRow rows[] = {
      {"nothing", [] {}, {}, kEqual, true, {}, true},
      {"axes, controller's",
       DropAxis4,
       {0},
       asked_mode + kBlock0 + take_devices,
       true,
       {371},
       true},
      {"axes, disregarded", DropAxis4, {1}, asked_mode + kBlock0, true, {371}, false},
      {"axes, no answer", DropAxis4, {-1}, asked_mode + kBlock0, false, {371}, false},
      {"mode, controller's", OtherMode, {0}, took_mode + kBlock0 + kDevices, true, {490}, true},
      {"mode, PC's", OtherMode, {1}, asked_mode + "0RD0 0WD0 ", false, {490}, false},
      {"mode, no answer", OtherMode, {-1}, asked_mode, false, {490}, false},
      {"both, controller's axes come with the mode",
       both,
       {0},
       took_mode + kBlock0 + kDevices,
       true,
       {490},
       true},
      {"both, PC's", both, {1}, asked_mode + "0RD0 0WD0 ", false, {490}, false},
      {"device, controller's", OtherStroke, {0}, kEqual + take_devices, true, {371}, true},
      {"device, disregarded", OtherStroke, {1}, kEqual, true, {371}, false},
      {"device, no answer", OtherStroke, {-1}, kEqual, false, {371}, false},
      {"mode and device, both controller's",
       mode_and_device,
       {0, 0},
       took_mode + kBlock0 + kDevices + take_devices,
       true,
       {490, 371},
       true},
  };
  for (const DifferenceRow& row : rows) {
    SCOPED_TRACE(row.name);
    ResetState();
    AppState.LangOffset = 10000;
    port.Ct().PowerCycle(pump.NowUs());
    StartEqualAndOffline();
    const PcState of_ct;
    row.change();
    const PcState of_pc;
    GoOnline(row.choices);
    // A written block is sent with its data; the data has a test of its own.
    std::string lines = SentLines();
    if (const auto at = lines.find("0WD0"); at != std::string::npos) lines.erase(at + 4, 32);
    EXPECT_EQ(lines, row.lines);
    Texts prompts;
    for (const MsgId id : row.prompts) prompts.push_back(Text(id));
    EXPECT_EQ(asked, prompts);
    EXPECT_EQ(PcState(), row.takes_ct ? of_ct : of_pc);
    row.online ? ExpectOnline() : ExpectOffline();
    EXPECT_TRUE(!row.online || AppState.AxisPattern == 15) << "the controller's in every case";
    EXPECT_EQ(frmMain.lblCtMode.Caption, Text(AppState.CtMode ? MsgId(129) : MsgId(128)));
    EXPECT_EQ(frmMain.mnuViewGrp.Visible, !AppState.CtMode);
    // A choice box that went unanswered counts as closed; nothing else may have come up.
    EXPECT_EQ(forms.unanswered.size(), row.choices == std::vector<int>{-1} ? 1u : 0u);
    forms.unanswered.clear();
  }
}

TEST_F(ConnectTest, EveryComparedFieldOfADeviceCounts) {
  const struct {
    const char* field;
    std::function<void(DevSettingRecord&)> change;
  } rows[] = {
      {"lead", [](DevSettingRecord& d) { d.Lead = 7; }},
      {"pulses a turn", [](DevSettingRecord& d) { d.Ppr = 401; }},
      {"size", [](DevSettingRecord& d) { d.Size = "E35"; }},
      {"speed", [](DevSettingRecord& d) { d.Speed = "X"; }},
      {"stroke", [](DevSettingRecord& d) { d.Stroke = 99; }},
      {"pulse generator", [](DevSettingRecord& d) { d.WithPG = !d.WithPG; }},
      {"stroke in pulses", [](DevSettingRecord&) { AppState.StrokePulse[2] += 1; }},
  };
  StartEqualAndOffline();
  const PcState of_ct;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.field);
    row.change(DevSetting[2]);
    Forget();
    GoOnline({0});
    EXPECT_EQ(asked, Texts{Text(371)});
    EXPECT_EQ(PcState(), of_ct);
    GoOffline();
    Forget();
    GoOnline();
    EXPECT_TRUE(asked.empty()) << "what was taken is equal the next time";
    GoOffline();
  }
}

TEST_F(ConnectTest, WritingThePcsAxesTellsOfThePowerCycle) {
  StartEqualAndOffline();
  DropAxis4();
  OtherMode();
  const std::string block = port.Ct().WrittenBlock(0);
  GoOnline({1});
  std::string expected = block;
  expected.replace(2, 2, "07");
  EXPECT_EQ(port.Ct().WrittenBlock(0), expected);
  EXPECT_EQ(AppState.AxisCount, 3);
  EXPECT_EQ(forms.LastBox(), Text(492) + "\n" + Text(493) + "\n\n" + Text(5973));
  ExpectOffline();
}

TEST_F(ConnectTest, CancelEndsItAfterTheStepThatRuns) {
  StartEqualAndOffline();
  const PcState before;
  pump.After(10'000, [] { frmMain.cmdComCancel.Press(); });
  GoOnline();
  EXPECT_EQ(SentLines(4), "0CM1 ");
  EXPECT_TRUE(forms.boxes.empty());
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], Text(5970));
  EXPECT_EQ(PcState(), before);
  ExpectOffline();
  ExpectCommandsOn();
  GoOnline();
  ExpectOnline();
}

TEST_F(ConnectTest, APortThatDoesNotOpenIsToldByEveryFlowThatNeedsIt) {
  const struct {
    const char* name;
    std::function<void()> flow;
  } rows[] = {
      {"mode", [] { frmMain.mnuSettingCtMode.Press(); }},
      {"version", [] { frmMain.mnuContVersion.Press(); }},
      {"reset", [] { frmMain.cmdReset.Press(); }},
      {"read", [this] { ReadRange(1, 2); }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    ResetState();
    AppState.LangOffset = 10000;
    port.open_fault = PortFault::None;
    StartOnline();
    Forget();
    port.open_fault = PortFault::InUse;
    row.flow();
    EXPECT_TRUE(forms.LastBox().starts_with(Text(109))) << forms.LastBox();
    EXPECT_TRUE(asked.empty());
    ExpectOffline();
    ExpectCommandsOn();
  }
}

TEST_F(ConnectTest, AnotherMarkerIsRefusedAtEveryConnect) {
  StartEqualAndOffline();
  Spoil(FaultKind::kChangedByte, "0RV", 0, 8);  // the last character of the marker
  GoOnline();
  EXPECT_EQ(SentLines(), kVersion);
  EXPECT_EQ(forms.LastBox(), Text(124) + "\n" + Text(125));
  ExpectOffline();
}

TEST_F(ConnectTest, AStrokeOfItsOwnIsTakenOnceAndForAll) {
  // The controller's stroke in pulses is not what its device computes to.
  StartEqualAndOffline();
  AppState.StrokePulse[0] -= 100;
  GoOnline({0});
  EXPECT_EQ(asked.size(), 1u);
  EXPECT_EQ(AppState.StrokePulse[0], 20000);
  ExpectOnline();
}

class EditedTableTest : public ConnectTest {
 protected:
  /// A read table with one line edited and not committed.
  void EditLine2(const std::string& vel, const std::string& way, const std::string& posi) {
    StartOnline();
    ReadRange(1, 4);
    AppState.DispMmUnit = False;
    ShowInNewUnit();
    GoOffline();
    Grid& grid = frmPosi.flgdData;
    grid.SetText(3, kVel, vel);
    grid.SetText(3, kWay, way);
    grid.SetText(3, kPosi, posi);
    frmPosi.PosiChanged = True;
    Forget();
  }
  std::string Cell(int row, int col) const { return frmPosi.flgdData.Text(row, col); }
};

TEST_F(EditedTableTest, TakingTheControllersModeKeepsUnsavedData) {
  EditLine2("31", "2", "123");
  OtherMode();  // the PC's becomes program mode, as if chosen offline
  RebuildPosiViewKeepingEdits();
  EXPECT_EQ(Cell(3, kPosi), "    +123");
  frmPosi.flgdData.SetText(3, kPosi, "    -456");
  frmPosi.flgdData.SetText(3, kComment, "typed");
  GoOnline({0});
  ExpectOnline();
  EXPECT_FALSE(AppState.CtMode);
  EXPECT_EQ(Cell(3, kVel), "31");
  EXPECT_EQ(Cell(3, kWay), "3");
  EXPECT_EQ(Cell(3, kPosi), "456");
  EXPECT_EQ(Cell(3, kComment), "typed");
  EXPECT_TRUE(frmPosi.PosiChanged);
}

TEST_F(EditedTableTest, AnAxisThatComesIntoUseShowsItsOwnData) {
  StartOnline();
  ReadRange(1, 4);
  GoOffline();
  const std::string axis4 = Cell(3, AxisBase(3) + kPosi);
  DropAxis4();
  RecalcLimits();
  RebuildPosiViewKeepingEdits();
  frmPosi.flgdData.SetText(3, kVel, "31");
  frmPosi.PosiChanged = True;
  GoOnline({0});
  ExpectOnline();
  EXPECT_EQ(Cell(3, kVel), "31");
  EXPECT_EQ(Cell(3, AxisBase(3) + kPosi), axis4);
  EXPECT_GT(AppState.MaxPulse[3], 0);
}

TEST_F(EditedTableTest, InMillimetresThePulsesFollowTheControllersLead) {
  StartOnline();
  ReadRange(1, 4);
  GoOffline();
  // The table was made for a lead of 1 mm: its millimetres are half of what they were.
  DevSetting[0].Lead = 1;
  RecalcLimits();
  MmFollowsPulses();
  const std::int32_t pulses = PosiTable.PosiPulse[0][2];
  ASSERT_GT(pulses, 0);
  const std::string mm = Cell(3, kPosi);
  Forget();
  GoOnline({0});
  EXPECT_TRUE(BoxShown(Text(408) + "\n" + Text(409)));
  EXPECT_EQ(Cell(3, kPosi), mm);
  EXPECT_EQ(PosiTable.PosiPulse[0][2] * 2, pulses);
  EXPECT_TRUE(frmPosi.PosiChanged) << "other pulses are unsaved data";
}

TEST_F(EditedTableTest, APositionBeyondTheNewStrokeIsShownAndTheLineIsOnline) {
  EditLine2("30", "1", "20000");
  DevSetting[0].Stroke = 200;  // the PC allowed more than the controller's axis has
  RecalcLimits();
  frmPosi.flgdData.SetText(3, kPosi, "30000");
  forms.on_modal["frmSyogoKekka"] = [](View& view) { view.Visible = false; };
  GoOnline({0});
  EXPECT_EQ(forms.modals.back(), "frmSyogoKekka");
  EXPECT_EQ(forms.LastBox(), Text(1526));
  EXPECT_EQ(Cell(3, kPosi), "30000");
  ExpectOnline();
}

// The read flow's own comparison.

class ReadCompareTest : public ConnectTest {
 protected:
  void ReadAndAnswer(std::vector<int> choices) {
    Forget();
    Choose(std::move(choices));
    ReadRange(1, 2);
  }
};

TEST_F(ReadCompareTest, ADifferenceIsAskedAboutAndMayBeCancelled) {
  StartOnline();
  const PcState of_ct;
  ReadAndAnswer({});
  EXPECT_TRUE(asked.empty());
  EXPECT_EQ(SentLines(), kBlock0 + kDevices + "0RP001 0RP002 ");

  OtherStroke();
  const PcState of_pc;
  ReadAndAnswer({-1});
  EXPECT_EQ(asked, Texts{Text(371)});
  EXPECT_EQ(SentLines(), kBlock0 + kDevices) << "nothing is read after a cancel";
  EXPECT_EQ(PcState(), of_pc);
  ExpectOnline();

  ReadAndAnswer({1});
  EXPECT_EQ(SentLines(), kBlock0 + kDevices + "0RP001 0RP002 ");
  EXPECT_EQ(PcState(), of_pc);

  ReadAndAnswer({0});
  EXPECT_EQ(SentLines(), kBlock0 + kDevices + kBlock0 + kDevices + "0RP001 0RP002 ");
  EXPECT_EQ(PcState(), of_ct);
}

TEST_F(ReadCompareTest, AFailureWhileTakingMarksTheDevices) {
  StartOnline();
  ReadRange(1, 3);
  const auto pulses = PosiTable.PosiPulse;
  DropAxis4();
  OtherStroke();
  const PcState of_pc;
  Spoil(FaultKind::kErrorReply, "0RD7");
  ReadAndAnswer({0});
  EXPECT_EQ(PcState(), of_pc);
  EXPECT_TRUE(DevSetting[0].NotChosen);
  EXPECT_EQ(PosiTable.PosiPulse, pulses);
  EXPECT_EQ(AppState.PosiLastNo, 3);
  ExpectOffline();
}

// The mode change.

class ModeChangeTest : public ConnectTest {
 protected:
  void ChooseMode(int choice) {
    Choose({choice});
    frmMain.lblCtMode.DblClick();
  }
};

TEST_F(ModeChangeTest, WritesTheModeAndAsksForThePowerCycle) {
  StartOnline();
  Forget();
  ChooseMode(1);
  EXPECT_EQ(asked, Texts{Text(476)});
  EXPECT_EQ(port.Ct().CommittedBlock(0).substr(18, 2), "01");
  EXPECT_EQ(port.Ct().RunningMode(), qvr7sim::Mode::kPosition);
  ASSERT_EQ(forms.boxes.size(), 2u);
  EXPECT_EQ(forms.boxes[0].Text, Text(495) + "\n\n" + Text(496));
  EXPECT_EQ(forms.boxes[1].Text, Text(495) + "\n\n" + Text(496) + "\n\n" + Text(497));
  EXPECT_FALSE(AppState.CtMode) << "the PC's own mode stays";
  EXPECT_FALSE(AppState.Offline);
  EXPECT_FALSE(frmPosi.tabCmd.Tabs[1].Enabled);
  ReadRange(1, 2);
  EXPECT_FALSE(frmPosi.tabCmd.Tabs[1].Enabled) << "until the tool has connected anew";

  port.Ct().PowerCycle(pump.NowUs());
  EXPECT_EQ(port.Ct().RunningMode(), qvr7sim::Mode::kProgram);
  GoOffline();
  GoOnline({0});
  EXPECT_TRUE(AppState.CtMode);
  ExpectOnline();
}

TEST_F(ModeChangeTest, CancelAndOfflineDoNothing) {
  StartOnline();
  Forget();
  ChooseMode(-1);
  EXPECT_EQ(SentLines(), "");
  ExpectOnline();
  GoOffline();
  asked.clear();
  frmMain.lblCtMode.DblClick();
  EXPECT_TRUE(asked.empty());
}

TEST_F(ModeChangeTest, TheMenuGoesOnlineFirst) {
  StartEqualAndOffline();
  Choose({0});
  frmMain.mnuSettingCtMode.Press();
  EXPECT_EQ(SentLines().substr(0, kEqual.size()), kEqual);
  GoOffline();
  Forget();
  port.Ct().SetSilent(true);
  frmMain.mnuSettingCtMode.Press();
  EXPECT_TRUE(asked.empty());
  ExpectOffline();
}

TEST_F(ModeChangeTest, AFailedWriteClaimsNothing) {
  StartOnline();
  Forget();
  Spoil(FaultKind::kErrorReply, "0WD0");
  ChooseMode(1);
  EXPECT_FALSE(BoxShown(Text(495)));
  ExpectOffline();
}

// Version and reset.

TEST_F(ConnectTest, VersionsOfTheBoardsInUse) {
  StartOnline();
  AppState.AxisMuko[1] = True;
  Forget();
  frmMain.mnuContVersion.Press();
  EXPECT_EQ(SentLines(), "0CM1 0RV 0RV1 0RV2 0RV3 0RV4 ");
  EXPECT_EQ(forms.LastBox(),
            Text(426) + "\n\n<" + Text(427) + ">  140\n<AXIS1>  120\n<AXIS3>  120\n<AXIS4>  120");
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], "The version of C/T is 140");
  port.open_fault = PortFault::NoSuchPort;
  Forget();
  frmMain.mnuContVersion.Press();
  EXPECT_TRUE(BoxShown(Text(109)));
}

TEST_F(ConnectTest, ResetOfAnAlarmConnectsAnew) {
  StartOnline();
  port.Ct().RaiseAlarm({'1', '0', '9'}, pump.NowUs());
  frmMain.mnuContVersion.Press();
  ExpectOffline();
  EXPECT_TRUE(frmMain.imgAlarm.Visible);
  Forget();
  frmMain.cmdReset.Press();
  EXPECT_EQ(SentLines(), "0AR 0CM1 " + kEqual);
  ExpectOnline();
  EXPECT_FALSE(frmMain.imgAlarm.Visible);
  EXPECT_FALSE(AppState.OfflineTemporarilyLifted);
}

}  // namespace
}  // namespace tr7
