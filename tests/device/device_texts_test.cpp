#include "device/device_texts.h"

#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class DeviceTexts : public StateTest {
 protected:
  DeviceTexts() {
    virt.files.Put(ProgramFile("nqvdevice.lst"),
                   "4\r\n\" 28L-100\",2,400,1,0\r\n\"E35L-050\",2,400,2,0\r\n"
                   "\" 42H-600\",8,400,0,0\r\n\" 50L-100\",4,400,1,0\r\n");
    Set(0, " 28", "L", 100, 2, 400);
    Set(1, "E35", "L", 50, 2, 192);
    Set(2, " 42", "H", 600, 8, 400);
    Set(3, " 50", "L", 100, 12, 400);
  }
  static void Set(int axis, const char* size, const char* speed, int stroke, std::int16_t lead,
                  std::int32_t ppr) {
    SetDevice(DevSetting[axis], size, speed, stroke);
    DevSetting[axis].Lead = lead;
    DevSetting[axis].Ppr = ppr;
    DevSetting[axis].SeriesOk = True;
    DevSetting[axis].NewType = axis != 1;
  }
  static std::string Caption(int axis) { return frmPosi.lblDeviceType[axis]->Caption; }
  static std::string Age(int axis) { return frmPosi.lblAge[axis]->Caption; }
  static std::string Panels() {
    const auto& panels = frmMain.sbStatusBar.Panels;
    return panels[kPanelScale1] + "|" + panels[kPanelScale2];
  }
};

TEST_F(DeviceTexts, EveryAxisHasItsRows) {
  DevSettei[0].WithPG = DevSettei[1].WithPG = DevSettei[2].WithPG = True;
  DeviceTextHyoji();
  const char* rows[] = {"AXIS1:QV- 28L-100E", "AXIS2:QV-E35L- 50 ", "AXIS3:QV- 42H-600 ",
                        "AXIS4:QV- 50L-100_"};
  for (std::size_t row = 0; row < frmPosi.DeviceRows.size(); ++row) {
    EXPECT_EQ(frmPosi.DeviceRows[row], rows[row / 6]) << row;
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    EXPECT_EQ("AXIS" + std::to_string(axis + 1) + ":" + Caption(axis), rows[axis]);
    EXPECT_EQ(Age(axis), axis == 1 ? "(Old)" : "(New)");
  }
}

TEST_F(DeviceTexts, ScaleOfTheFirstAxisInUse) {
  PulseScaleHyoji();
  EXPECT_EQ(Panels(), "<1>1mm = 200.000Pulse|<1>1Pulse= 0.005mm");
  AppState.AxisMuko = MukoOfMask(12);
  PulseScaleHyoji();
  EXPECT_EQ(Panels(), "<3>1mm = 50.000Pulse|<3>1Pulse= 0.020mm");
  PulseScaleHyojiAxis(3);
  EXPECT_EQ(Panels(), "<4>1mm = 33.333Pulse|<4>1Pulse= 0.030mm");
  PulseScaleHyojiAxis(1);
  EXPECT_EQ(Panels(), "|");
  PulseScaleHyoji();
  AppState.AxisMuko = MukoOfMask(0);
  PulseScaleHyoji();
  EXPECT_EQ(Panels(), "|");
}

TEST_F(DeviceTexts, ScaleOfOddGears) {
  const auto panels = [](int lead, int ppr) {
    Set(0, " 28", "L", 100, static_cast<std::int16_t>(lead), ppr);
    PulseScaleHyoji();
    return Panels();
  };
  EXPECT_EQ(panels(2, 40000), "<1>1mm = 20000.000Pulse|<1>1Pulse= 0.000mm");
  EXPECT_EQ(panels(9, 2000), "<1>1mm = 222.222Pulse|<1>1Pulse= 0.005mm") << "the half goes up";
  EXPECT_EQ(panels(255, 1), "<1>1mm = 0.004Pulse|<1>1Pulse= 255.000mm");
  EXPECT_EQ(panels(0, 400) + panels(2, 0), "||");
}

}  // namespace
}  // namespace tr7
