#include "para/para_show.h"

#include <regex>

#include "para/para_actuator.h"
#include "para/para_axis_show.h"
#include "para/para_content.h"
#include "para/std_lists.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

/// The view over a set from the standard lists: " 28L-100" on every axis, lead 2, 400 pulses.
class ParaShow : public StateTest {
 protected:
  ParaShow() {
    for (DevSettingRecord& device : DevSettei) SetDevice(device, " 28", "L", 100);
    EXPECT_EQ(ReadDeviceListNew(), 0);
    EXPECT_EQ(IniParaFromStd(), 0);
    FillParaLists();
    InstallActuatorLists();
  }
  FrmParameta2& f = frmParameta2;
};

TEST_F(ParaShow, ASetComesBackAsItWasShown) {
  ParamSet.HomeOffset[0] = 65535;
  ParamSet.ZoneEnable[1] = 2;
  ParamSet.AxisType[2] = 1;
  ParamSet.PgFunction[3] = 1;
  ParamSet.EmgLogic = ParamSet.Alm1Clear = ParamSet.PosPrg = ParamSet.PputWrite = 1;
  ParamSet.AutoStartPrg = 77;
  ParametaHyoji();
  TorikomiParametaValue();  // fills in what belongs to the rows
  const ParamSetRecord once = ParamSet;
  EXPECT_EQ(once.Zone2[1], 200);
  EXPECT_EQ(once.MmZone2[1], 1.0);
  EXPECT_EQ(once.MmStrokeText[0], "100.000");
  for (const ParaOptionField& field : ParaOptionFields()) {
    EXPECT_EQ(ParaValue(once, field.Row, 0), 1) << field.Row;
  }
  ParametaHyoji();
  EXPECT_FALSE((MarkParaSaved(), ParaIsChanged()));
  TorikomiParametaValue();
  EXPECT_EQ(ParamSet, once);
  EXPECT_FALSE(ParaIsChanged());
  EXPECT_EQ(ParametaumuKakunin(), 0);
}

TEST_F(ParaShow, LengthsInMmWin) {
  ParametaHyoji();
  const auto take = [this](const char* typed, const char* mm, double pulses) {
    f.txtAxisMmStroke[1].Text = typed;
    f.txtAxisStroke[1].Text = "777";  // beside the mm field it does not count
    TorikomiParametaValue();
    EXPECT_EQ(ParamSet.AxisStroke[1], pulses) << typed;
    EXPECT_EQ(f.txtAxisStroke[1].Text, PlainDecimal(pulses)) << typed;
    EXPECT_EQ(ParamSet.MmStrokeText[1], mm) << typed;
    EXPECT_EQ(ParamSet.MmStroke[1], Val(mm)) << typed;
  };
  take("100.12345", "100.125", 20025);  // cut to 100.123, 20024.6 pulses
  take("0.002", "  0.000", 0);
  take("0.003", "  0.005", 1);
  take(" 12.5", " 12.500", 2500);
  take("12345678.5", "1234567.000", 246913400);
}

TEST_F(ParaShow, PulsesFinerThanAMicrometreKeepTheirCount) {
  ParamSet.AxisLead[0] = 1;
  ParamSet.AxisPulse[0] = 65535;
  ParamSet.Zone1[0] = 100;  // 0.0015 mm
  ParametaHyoji();
  EXPECT_EQ(f.txtMmZone1[0].Text, "  0.002");
  TorikomiParametaValue();
  EXPECT_EQ(ParamSet.Zone1[0], 100);
}

TEST_F(ParaShow, EveryFieldOfALiveAxisMustHoldSomething) {
  f.chkTokuParaChange.Value = true;
  ParametaHyoji();
  ASSERT_EQ(ParametaumuKakunin(), 0);
  // Each field in turn. A device chosen in part is none; what follows other fields does not count.
  const std::regex follows(R"(txtActuator.*|.*Mm.*|comboM0.*|comboOneAxis)");
  for (Control* control : f.Controls) {
    const int demanded = std::regex_match(control->Name, follows) ? 0 : 1;
    if (auto* box = dynamic_cast<TextBox*>(control)) {
      const std::string text = std::exchange(box->Text, " ");
      EXPECT_EQ(ParametaumuKakunin(), demanded) << box->Name;
      box->Text = text;
    } else if (auto* list = dynamic_cast<ComboBox*>(control)) {
      const int index = std::exchange(list->ListIndex, -1);
      EXPECT_EQ(ParametaumuKakunin(), demanded) << list->Name;
      list->ListIndex = index;
    }
  }
  for (const ParaOptionField& field : ParaOptionFields()) {
    (f.*field.Place).Clear();
    EXPECT_EQ(ParametaumuKakunin(), 1) << field.Row;
    (f.*field.Place)[0].Choose();
  }
  f.txtHomeOffset[3].Text.clear();
  EXPECT_EQ(ParametaumuKakunin(), 1);
  f.comboOneAxis.ListIndex = 2;  // three axes are asked for: the fourth does not count
  EXPECT_EQ(ParametaumuKakunin(), 0);
}

TEST_F(ParaShow, ADeviceThatTheListLacksIsKept) {
  ParamSet.Actuator = {" 99Z123", "28L100", "", " 28L100"};  // the second is cut to size " 28"
  for (int axis = 0; axis < 3; ++axis) CutActuator(ParamSet, axis);
  ParametaHyoji();
  f.comboActSize[0].Pick(0);
  EXPECT_EQ(f.comboActSpeed[0].Text(), "L");
  EXPECT_TRUE(f.comboActSize[0].ShowText(" 99"));
  f.comboActSize[0].Pick(f.comboActSize[0].ListIndex);
  EXPECT_EQ(f.comboActSize[2].ListIndex, -1);
  TorikomiParametaValue();
  EXPECT_EQ(ParamSet.Actuator, (AxisArray<std::string>{" 99Z123", " 28L100", "", " 28L100"}));
}

}  // namespace
}  // namespace tr7
