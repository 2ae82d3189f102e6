// Devices written to the controller from the device dialogue, with the bytes on the line.

#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

/// Two axes, the first with another device.
void ChooseTwoAxes() {
  PickDevice(frmDevice3, 0, " 42", "H", "200");
  frmDevice3.comboAxisSelect.Pick(1);
}

class DeviceWriteTest : public FlowTest {
 protected:
  explicit DeviceWriteTest(const qvr7sim::Setup& setup = qvr7sim::Setup::Useful())
      : FlowTest(setup) {
    virt.settings.Set("Settings", "PortOccupy", "0");
  }

  /// Opens the dialogue from the menu, chooses, writes and leaves it.
  void Write(
      const std::function<void()>& choose = ChooseTwoAxes,
      const std::function<void()>& leave = [] { frmDevice3.cmdDeviceCancel.Press(); }) {
    port.sent.clear();
    forms.boxes.clear();
    InDialog("frmDevice3", {[&] {
               choose();
               frmDevice3.cmdPrmCtWrite.Press();
               leave();
             }});
    frmMain.mnuSettingDeviceOnline.Press();
  }
};

const std::string kHeld = "0RA 0CM0 ";
const std::string kMask = "0RD0 0WD0 ";
const std::string kReadBack = "0CM1 0RD0 ";
const std::string kReadTwoAxes = "0RD0 0RD1 0RD2 0RD3 0RD4 0RD5 0RD6 0RD7 ";
const std::string kWriteTwoAxes = kReadTwoAxes + "0WD0 0WD1 0WD2 0WD3 0WD4 0WD5 0WD6 0WD7 0WE2 ";

TEST_F(DeviceWriteTest, AxesAndParametersGoOutAndComeIntoUse) {
  StartOnline();
  const std::string before = port.Ct().CommittedBlock(0);
  Write([] {});
  EXPECT_EQ(port.Ct().CommittedBlock(0), before) << "of what no device tells";
  Write([] {
    ChooseTwoAxes();
    frmDevice3.chkDevPgUse[0].Set(true);
  });
  EXPECT_EQ(SentLines(4), kHeld + kMask + kReadBack + kReadTwoAxes + kWriteTwoAxes + "0CM0 ");
  EXPECT_EQ(Boxes(), Texts{Text(1527) + "\n\n" + Text(496)}) << "it is to start anew with two axes";
  // The controller has stored the mask, and the device of AXIS1: lead 8, 400 pulses.
  EXPECT_EQ(port.Ct().CommittedBlock(0).substr(2, 2), "03");
  EXPECT_EQ(port.Ct().CommittedBlock(4).substr(2, 6), "080190");
  EXPECT_EQ(AppState.AxisMuko, MukoOfMask(3));
  EXPECT_EQ(ParamSet.Actuator[0], " 42H200");
  EXPECT_EQ(AppState.MaxPulse[0], 10000);
  EXPECT_EQ(frmPosi.lblDeviceType[0]->Caption, "QV- 42H-200E");
  GoOffline();
  port.Ct().PowerCycle(pump.NowUs());
  asked.clear();
  frmMain.mnuSettingOnline.Press();
  EXPECT_EQ(asked, Texts{}) << "the controller says what was written";
  ExpectOnline();
}

TEST_F(DeviceWriteTest, AValueOfTheControllersOwnThatDoesNotFitPutsTheAxesBack) {
  StartOnline();
  // ZONE1 of AXIS1 becomes 0.
  const std::string block = port.Ct().WrittenBlock(3);
  port.Ct().Receive("0WD3000000" + block.substr(6) + "\r\n", pump.NowUs());
  pump.RunFor(200'000);
  port.ReadAll();
  Write();
  EXPECT_EQ(Boxes(), Texts{Text(1524) + "\n" + Text(1525)});
  EXPECT_EQ(SentLines(4), kHeld + kMask + kReadBack + kReadTwoAxes + kMask + "0CM0 ");
  EXPECT_EQ(port.Ct().WrittenBlock(0), port.Ct().CommittedBlock(0));
}

TEST_F(DeviceWriteTest, ParametersThatCannotBeMadeEndItBeforeTheLine) {
  const std::string header = "\"QV-R7\",\"QV-STDPRM\"\r\n";
  const std::string misfit = Text(1524) + "\n" + Text(1525);
  const std::string good = *virt.files.Content(ProgramFile("tr7nqvstpr.lst"));
  const struct {
    const char* what;
    std::string list;  ///< of standard rows; empty: there is none
    Texts boxes;
    int axes = 15;
  } rows[] = {
      {"no list", "", {Text(28) + "\n" + Text(29), Text(36)}},
      {"no row", header + "0,13\r\n", {Text(36) + "\n\n" + Text(6340, "AXIS1", " 42H-200")}},
      {"axes with a gap", good, {misfit}, 5},
  };
  StartOnline();
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    AppState.AxisMuko = MukoOfMask(row.axes);
    const PcState before;
    const ParamSetRecord parameters = ParamSet;
    virt.files.Remove(ProgramFile("tr7nqvstpr.lst"));
    if (!row.list.empty()) PutList("tr7nqvstpr.lst", row.list);
    Write([&] {
      if (row.axes != 15) return;
      ChooseTwoAxes();
      PickDevice(frmDevice3, 1, " 28", "L", "100");
    });
    EXPECT_EQ(Boxes(), row.boxes);
    EXPECT_EQ(port.sent, "");
    EXPECT_TRUE(PcState() == before && ParamSet == parameters);
  }
}

qvr7sim::Setup ThreeAxes() {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.mask = 0x7;
  return setup;
}

/// A controller with three axes, which answers with their mask.
class ThreeAxesWriteTest : public DeviceWriteTest {
 protected:
  ThreeAxesWriteTest() : DeviceWriteTest(ThreeAxes()) {}
};

TEST_F(ThreeAxesWriteTest, AWriteBegunOfflineAsksForTheControllersAxesAndEndsOffline) {
  InDialog("frmDevice3", {[] {
             ChooseTwoAxes();
             frmDevice3.cmdPrmCtWrite.Press();
             frmDevice3.cmdDeviceSet.Press();
           }});
  StartOffline();
  EXPECT_EQ(SentLines(4).substr(0, 19), "0CM1 0RD0 " + kHeld);
  EXPECT_TRUE(BoxShown(Text(1527))) << "its axes stand still";
  EXPECT_EQ(port.Ct().CommittedBlock(0).substr(2, 2), "03");
  EXPECT_EQ(DevSetting[0].Size, " 42");
  EXPECT_EQ(AppState.AxisMuko, MukoOfMask(3));
  ExpectOffline();
}

TEST_F(DeviceWriteTest, InTheMillimetreViewTheUserIsWarned) {
  virt.settings.Set("Settings", "DispMmUnit", "1");
  StartOnline();
  ReadRange(1, 3);
  const auto mm = PosiTable.PosiMm[0];
  const std::int32_t pulses = PosiTable.PosiPulse[0][2];
  for (const MsgAnswer answer : {MsgAnswer::Cancel, MsgAnswer::Ok}) {
    forms.answers = {answer};
    Write();
    EXPECT_EQ(forms.boxes.front().Text, Text(1505) + "\n" + Text(1506));
    EXPECT_EQ(port.sent.empty(), answer == MsgAnswer::Cancel);
    EXPECT_EQ(PosiTable.PosiMm[0], mm);
    EXPECT_EQ(PosiTable.PosiPulse[0][2] == pulses, answer == MsgAnswer::Cancel);
  }
}

}  // namespace
}  // namespace tr7
