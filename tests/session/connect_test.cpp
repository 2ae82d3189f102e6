// Going online: the fourteen steps, with the bytes sent and the state left.

#include "posi/device_change.h"
#include "posi/unit_change.h"
#include "state/frame_menus.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

// The lines of each stage; every reader of block 0 takes the command first.
const std::string kVersion = "0CM1 0CM1 0RV ";
const std::string kBlock0 = "0CM1 0RD0 ";
const std::string kDevices = "0RD3 0RD4 0RD6 0RD7 0RD9 0RDA 0RDC 0RDD ";
const std::string kEqual = kVersion + kBlock0 + kBlock0 + kDevices;

class ConnectTest : public FlowTest {
 protected:
  ConnectTest() { virt.settings.Set("Settings", "PortOccupy", "0"); }

  /// The PC holds what the controller reported, and is offline.
  void StartEqualAndOffline() {
    StartOnline();
    GoOffline();
    Forget();
  }
  void GoOnline(std::vector<int> choices = {}) {
    Choose(std::move(choices));
    frmMain.mnuSettingOnline.Press();
  }
};

TEST_F(ConnectTest, GoingOfflineIsAskedFirst) {
  virt.settings.Set("Settings", "PortOccupy", "1");
  StartOnline();
  Forget();
  forms.answers = {MsgAnswer::Cancel};
  frmMain.mnuSettingOffline.Press();
  EXPECT_EQ(forms.LastBox(), Text(432));
  ExpectOnline();
  GoOffline();
  EXPECT_FALSE(port.IsOpen()) << "whatever the setting says";
  EXPECT_EQ(SentLines(), "") << "nothing is said to the controller";
}

void DropAxis4() { AppState.AxisMuko[3] = True; }
void OtherMode() {
  AppState.CtMode = !AppState.CtMode;
  DispControlerMode();
}
void OtherStroke() { DevSetting[0].Stroke = 50; }
/// An axis not in use has no limits.
void ModeAndAxes() {
  DropAxis4();
  OtherMode();
  RecalcLimits();
}
void Everything() {
  ModeAndAxes();
  OtherStroke();
}

TEST_F(ConnectTest, EveryDifferenceAndEveryAnswer) {
  using Prompts = std::vector<MsgId>;
  constexpr MsgId kMode = 490, kDevs = 371;
  const std::string mode = kVersion + kBlock0, write = mode + "0RD0 0WD0 ";
  const std::string take = kBlock0 + kDevices, took_mode = mode + kBlock0 + take;
  const struct {
    const char* name;
    std::function<void()> change;  ///< of the PC, before it goes online
    std::vector<int> choices;      ///< 0: the controller's, 1: the PC's, -1: no answer
    std::string lines;
    bool online;
    Prompts prompts;
    bool takes_ct;  ///< the PC holds the controller's state at the end
  } rows[] = {
      {"nothing", [] {}, {}, kEqual, true, {}, true},
      {"axes, Ct's", DropAxis4, {0}, took_mode, true, {kDevs}, true},
      {"axes, PC's", DropAxis4, {1}, mode + kBlock0, true, {kDevs}, false},
      {"mode, Ct's", OtherMode, {0}, took_mode, true, {kMode}, true},
      {"mode, PC's", OtherMode, {1}, write, false, {kMode}, false},
      {"mode, none", OtherMode, {-1}, mode, false, {kMode}, false},
      {"mode and axes, Ct's", ModeAndAxes, {0}, took_mode, true, {kMode}, true},
      {"device, Ct's", OtherStroke, {0}, kEqual + take, true, {kDevs}, true},
      {"device, PC's", OtherStroke, {1}, kEqual, true, {kDevs}, false},
      {"device, none", OtherStroke, {-1}, kEqual, false, {kDevs}, false},
      {"all, Ct's", Everything, {0, 0}, took_mode + take, true, {kMode, kDevs}, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    StartAnew();
    port.Ct().PowerCycle(pump.NowUs());
    StartEqualAndOffline();
    const PcState of_ct;
    row.change();
    const PcState of_pc;
    GoOnline(row.choices);
    std::string lines = SentLines();
    // A written block is sent with its data, which has a test of its own.
    if (const auto at = lines.find("0WD0"); at != std::string::npos) lines.erase(at + 4, 32);
    EXPECT_EQ(lines, row.lines);
    Texts prompts;
    for (const MsgId id : row.prompts) prompts.push_back(Text(id));
    EXPECT_EQ(asked, prompts);
    EXPECT_EQ(PcState(), row.takes_ct ? of_ct : of_pc);
    row.online ? ExpectOnline() : ExpectOffline();
    EXPECT_TRUE(!row.online || AppState.AxisPattern == 15) << "the controller's in every case";
    EXPECT_EQ(frmMain.mnuViewGrp.Visible, !AppState.CtMode);
    // A choice box that went unanswered counts as closed; nothing else may have come up.
    EXPECT_EQ(forms.unanswered.size(), row.choices == std::vector<int>{-1} ? 1u : 0u);
    forms.unanswered.clear();
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

class EditedTableTest : public ConnectTest {
 protected:
  /// A read table of four positions, offline.
  void ReadAndGoOffline() {
    StartOnline();
    ReadRange(1, 4);
    GoOffline();
    Forget();
  }
  static void Edit(int col, const std::string& text) {
    frmPosi.flgdData.SetText(3, col, text);
    frmPosi.PosiChanged = True;
  }
  static std::string Cell(int col) { return FlowTest::Cell(2, col); }
};

TEST_F(EditedTableTest, TakingTheControllersModeKeepsUnsavedData) {
  ReadAndGoOffline();
  ShowInUnit(false);
  Edit(kWay, "2");
  OtherMode();  // the PC's becomes program mode, as if chosen offline
  RebuildPosiViewKeepingEdits();
  Edit(kVel, "31");
  Edit(kPosi, "    -456");
  Edit(kComment, "typed");
  GoOnline({0});
  ExpectOnline();
  EXPECT_FALSE(AppState.CtMode);
  EXPECT_EQ(Cell(kVel) + Cell(kWay) + Cell(kPosi) + Cell(kComment), "313456typed");
  EXPECT_TRUE(frmPosi.PosiChanged);
}

TEST_F(EditedTableTest, InMillimetresThePulsesFollowTheControllersLead) {
  ReadAndGoOffline();
  // The table was made for a lead of 1 mm: its millimetres are half of what they were.
  DevSetting[0].Lead = 1;
  RecalcLimits();
  MmFollowsPulses();
  const std::int32_t pulses = PosiTable.PosiPulse[0][2];
  ASSERT_GT(pulses, 0);
  const std::string mm = Cell(kPosi);
  GoOnline({0});
  EXPECT_TRUE(BoxShown(Text(408) + "\n" + Text(409)));
  EXPECT_EQ(Cell(kPosi), mm);
  EXPECT_EQ(PosiTable.PosiPulse[0][2] * 2, pulses);
  EXPECT_TRUE(frmPosi.PosiChanged) << "other pulses are unsaved data";
}

// The read flow's own comparison.

class ReadCompareTest : public ConnectTest {
 protected:
  /// Reads two positions with these answers; what was sent.
  std::string Read(std::vector<int> choices) {
    Forget();
    Choose(std::move(choices));
    ReadRange(1, 2);
    return SentLines();
  }
};

TEST_F(ReadCompareTest, ADifferenceIsAskedAboutAndMayBeCancelled) {
  const std::string compare = kBlock0 + kDevices, read = "0RP001 0RP002 ";
  StartOnline();
  const PcState of_ct;
  EXPECT_EQ(Read({}), compare + read);
  OtherStroke();
  const PcState of_pc;
  EXPECT_EQ(Read({-1}), compare) << "nothing is read after a cancel";
  EXPECT_EQ(asked, Texts{Text(371)});
  EXPECT_TRUE(frmSelection.lblDetails.Caption.starts_with("AXIS1: here "))
      << frmSelection.lblDetails.Caption;
  ExpectOnline();
  EXPECT_EQ(Read({1}), compare + read);
  EXPECT_EQ(PcState(), of_pc);
  EXPECT_EQ(Read({0}), compare + compare + read);
  EXPECT_EQ(PcState(), of_ct);
}

// The mode change.

TEST_F(ConnectTest, WritesTheModeAndAsksForThePowerCycle) {
  StartOnline();
  Forget();
  Choose({1});
  frmMain.lblCtMode.DblClick();
  EXPECT_EQ(asked, Texts{Text(476)});
  EXPECT_EQ(port.Ct().CommittedBlock(0).substr(18, 2), "01");
  const std::string changed = Text(495) + "\n\n" + Text(496);
  EXPECT_EQ(Boxes(), (Texts{changed, changed + "\n\n" + Text(497)}));
  EXPECT_FALSE(AppState.CtMode) << "the PC's own mode stays";
  EXPECT_FALSE(AppState.Offline);
  EXPECT_FALSE(frmPosi.tabCmd.Tabs[1].Enabled);
  ReadRange(1, 2);
  EXPECT_FALSE(frmPosi.tabCmd.Tabs[1].Enabled) << "until the tool has connected anew";

  port.Ct().PowerCycle(pump.NowUs());
  GoOffline();
  GoOnline({0});
  EXPECT_TRUE(AppState.CtMode);
  ExpectOnline();
}

TEST_F(ConnectTest, TheMenuGoesOnlineFirstAndTheLampDoesNot) {
  StartEqualAndOffline();
  frmMain.lblCtMode.DblClick();
  EXPECT_TRUE(asked.empty());
  Choose({-1});
  frmMain.mnuSettingCtMode.Press();
  EXPECT_EQ(SentLines(), kEqual) << "and a cancel writes nothing";
  ExpectOnline();
  GoOffline();
  Forget();
  port.Ct().SetSilent(true);
  frmMain.mnuSettingCtMode.Press();
  EXPECT_TRUE(asked.empty());
  ExpectOffline();
}

// Version and reset.

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
}

TEST_F(ReadCompareTest, AFailureWhileTakingMarksTheDevices) {
  StartOnline();
  DropAxis4();
  OtherStroke();
  const PcState of_pc;
  Spoil(FaultKind::kErrorReply, "0RD7");
  Read({0});
  EXPECT_EQ(PcState(), of_pc);
  EXPECT_TRUE(DevSetting[0].NotChosen);
  ExpectOffline();
}

TEST_F(EditedTableTest, AnAxisThatComesIntoUseShowsItsOwnData) {
  ReadAndGoOffline();
  const std::string axis4 = Cell(AxisBase(3) + kPosi);
  DropAxis4();
  RecalcLimits();
  RebuildPosiViewKeepingEdits();
  Edit(kVel, "31");
  GoOnline({0});
  EXPECT_EQ(Cell(kVel), "31");
  EXPECT_EQ(Cell(AxisBase(3) + kPosi), axis4);
  EXPECT_GT(AppState.MaxPulse[3], 0);
}

}  // namespace
}  // namespace tr7
