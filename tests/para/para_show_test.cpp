#include "para/para_show.h"

#include <string>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/device_list.h"
#include "para/para_actuator.h"
#include "para/para_axis_show.h"
#include "para/para_columns.h"
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
  ParamSet.OneAxis = 7;
  ParametaHyoji();
  TorikomiParametaValue();  // fills in what belongs to the rows
  const ParamSetRecord once = ParamSet;
  EXPECT_EQ(once.Zone2[1], 200);
  EXPECT_EQ(once.MmZone2[1], 1.0);
  EXPECT_EQ(once.MmStrokeText[0], "100.000");
  EXPECT_EQ(once.AutoStartPrg, 77);
  EXPECT_EQ(once.OneAxis, 7);
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
  const struct {
    const char* typed;
    const char* mm;
    double pulses;
  } rows[] = {
      {"100.12345", "100.125", 20025},  // cut to 100.123, 20024.6 pulses
      {"100.122", "100.120", 20024},
      {"50", " 50.000", 10000},
      {"0.002", "  0.000", 0},
      {"0.003", "  0.005", 1},
      {"1234567", "1234567.000", 246913400},
      {" 12.5", " 12.500", 2500},
      {"12345678.5", "1234567.000", 246913400},
  };
  for (const auto& row : rows) {
    f.txtAxisMmStroke[1].Text = row.typed;
    f.txtAxisStroke[1].Text = "777";  // beside the mm field it does not count
    TorikomiParametaValue();
    EXPECT_EQ(ParamSet.AxisStroke[1], row.pulses) << row.typed;
    EXPECT_EQ(f.txtAxisStroke[1].Text, PlainDecimal(row.pulses)) << row.typed;
    EXPECT_EQ(f.txtAxisMmStroke[1].Text, row.mm) << row.typed;
    EXPECT_EQ(ParamSet.MmStrokeText[1], row.mm) << row.typed;
    EXPECT_EQ(ParamSet.MmStroke[1], Val(row.mm)) << row.typed;
  }
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

TEST_F(ParaShow, WithoutLeadAndPulseThereIsNoMm) {
  ParamSet.AxisLead[0] = ParamSet.AxisPulse[1] = 0;
  ParametaHyoji();
  for (int axis : {0u, 1u}) EXPECT_EQ(f.txtAxisMmStroke[axis].Text, "");
  f.txtAxisMmStroke[1].Text = "55";
  TorikomiParametaValue();
  EXPECT_EQ(ParamSet.AxisStroke[0], 20000);
  EXPECT_EQ(ParamSet.AxisStroke[1], 20000);  // nothing can be converted: both stay
  EXPECT_EQ(f.txtAxisMmStroke[1].Text, "55");
}

TEST_F(ParaShow, ValuesBeyondALists) {
  ParamSet.PgFunction[0] = 2;  // the check lets it pass, the list has no name for it
  ParamSet.AxisType[0] = 4;
  ParamSet.AutoDrive[0] = 2;
  ParamSet.ZoneEnable[0] = -1;
  ParamSet.OneAxis = 5;
  ParametaHyoji();
  EXPECT_EQ(f.comboPgFunc[0].Text(), "2");
  EXPECT_EQ(f.comboEtcMaOrXa[0].Text(), "4");
  EXPECT_EQ(f.comboAxisAutoDrv[0].ListIndex, -1);
  EXPECT_EQ(f.comboZoneEnable[0].ListIndex, -1);
  EXPECT_EQ(f.comboOneAxis.ListIndex, -1);
  EXPECT_EQ(f.txtOneAxis.Text, "5");
  TorikomiParametaValue();
  EXPECT_EQ(ParamSet.PgFunction[0], 2);
  EXPECT_EQ(ParamSet.AxisType[0], 4);
  EXPECT_EQ(ParamSet.AutoDrive[0], 0);
  EXPECT_EQ(ParamSet.ZoneEnable[0], 0);
  EXPECT_EQ(ParamSet.OneAxis, 0);
}

TEST_F(ParaShow, AListIsTakenBelowItsGuardOnly) {
  const struct {
    PerAxis<ComboBox> FrmParameta2::*list;
    int row, highest;
  } rows[] = {{&FrmParameta2::comboAxisAutoDrv, 11, 1},
              {&FrmParameta2::comboEtcMaOrXa, 12, 4},
              {&FrmParameta2::comboPgFunc, 14, 2},
              {&FrmParameta2::comboZoneEnable, 20, 2},
              {&FrmParameta2::comboSoftLimit, 30, 2}};
  ParametaHyoji();
  for (const auto& row : rows) {
    ComboBox& list = (f.*row.list)[2];
    while (list.List.size() < 6) list.AddItem("more", static_cast<int>(list.List.size()));
    for (int index = -1; index < 6; ++index) {
      list.ListIndex = index;
      TorikomiParametaValue();
      EXPECT_EQ(ParaValue(ParamSet, row.row, 2), index <= row.highest ? std::max(index, 0) : 0)
          << row.row << " " << index;
    }
  }
}

TEST_F(ParaShow, AxesNotInUseAreEmptyOffAndLeftAlone) {
  AppState.AxisMuko[1] = AppState.AxisMuko[3] = True;
  const ParamSetRecord before = ParamSet;
  ParametaHyoji();
  for (int axis = 0; axis < kAxes; ++axis) {
    const bool live = axis % 2 == 0;
    for (const ParaTextField& field : ParaTextFields()) {
      if (!IsAxisRow(field.Row)) continue;
      const TextBox& box = ParaControl(field.Place, axis);
      EXPECT_EQ(box.Text.empty(), !live) << box.Name;
      EXPECT_EQ(box.Enabled, live && field.MaxLength > 0 && field.Row < 25) << box.Name;
    }
    for (const ParaListField& field : ParaListFields()) {
      if (!IsAxisRow(field.Row)) continue;
      const ComboBox& list = ParaControl(field.Place, axis);
      EXPECT_EQ(list.ListIndex < 0, !live) << list.Name;
      EXPECT_EQ(list.Enabled, live && field.Row < 25) << list.Name;
    }
    for (const ParaMmField& field : ParaMmFields()) {
      EXPECT_EQ(field.MmBox(axis).Enabled, live);
      EXPECT_EQ(field.MmBox(axis).Text.empty(), !live);
    }
    for (const ComboBox* list : {&f.comboActSize[axis], &f.comboActSpeed[axis]}) {
      EXPECT_EQ(list->Enabled, live);
      EXPECT_EQ(list->ListIndex < 0, !live);
    }
  }
  TorikomiParametaValue();
  EXPECT_EQ(ParamSet.Actuator, before.Actuator);
  EXPECT_EQ(ParamSet.AxisStroke, before.AxisStroke);
  f.txtHomeOffset[3].Text = "9";
  f.txtHomeOffset[2].Text = "9";
  TorikomiParametaValue();
  EXPECT_EQ(ParamSet.HomeOffset[3], before.HomeOffset[3]);
  EXPECT_EQ(ParamSet.HomeOffset[2], 9);
}

TEST_F(ParaShow, ColumnsFollowTheNumberOfAxes) {
  ParametaHyoji();
  MarkParaSaved();
  YukoJikuHyojiSettei2(2);
  EXPECT_EQ(LiveAxisMask(), 3);
  EXPECT_EQ(f.txtHomeOffset[2].Text, "");
  EXPECT_FALSE(f.txtHomeOffset[2].Enabled);
  YukoJikuHyojiSettei2(3);
  EXPECT_EQ(f.txtHomeOffset[2].Text, "400");  // a column that comes back shows its set again
  EXPECT_TRUE(f.txtHomeOffset[2].Enabled);
  EXPECT_FALSE(f.txtHomeOffset[3].Enabled);
  YukoJikuHyojiSettei();
  EXPECT_EQ(LiveAxisMask(), 15);
  EXPECT_TRUE(f.txtHomeOffset[3].Enabled);
  EXPECT_FALSE(ParaIsChanged());
}

TEST_F(ParaShow, EveryFieldOfALiveAxisMustHoldSomething) {
  f.chkTokuParaChange.Value = true;
  ParametaHyoji();
  ASSERT_EQ(ParametaumuKakunin(), 0);
  // Each field in turn. A device chosen in part is none; what follows other fields does not count.
  int demanded = 0;
  for (Control* control : f.Controls) {
    const std::string& name = control->Name;
    bool expected = true;
    if (name.rfind("txtActuator", 0) == 0 || name.find("Mm") != std::string::npos ||
        name.rfind("comboM0", 0) == 0 || name == "comboOneAxis") {
      expected = false;
    }
    if (auto* box = dynamic_cast<TextBox*>(control)) {
      const std::string text = box->Text;
      box->Text = " ";
      EXPECT_EQ(ParametaumuKakunin(), expected ? 1 : 0) << name;
      box->Text = text;
    } else if (auto* list = dynamic_cast<ComboBox*>(control)) {
      const int index = list->ListIndex;
      list->ListIndex = -1;
      EXPECT_EQ(ParametaumuKakunin(), expected ? 1 : 0) << name;
      list->ListIndex = index;
    } else {
      continue;
    }
    demanded += expected;
  }
  EXPECT_EQ(demanded, 25 * 4 + 7);
  for (const ParaOptionField& field : ParaOptionFields()) {
    const int chosen = (f.*field.Place).Chosen();
    (f.*field.Place).Clear();
    EXPECT_EQ(ParametaumuKakunin(), 1) << field.Row;
    (f.*field.Place)[static_cast<std::size_t>(chosen)].Choose();
  }
  f.txtHomeOffset[3].Text.clear();
  EXPECT_EQ(ParametaumuKakunin(), 1);
  f.comboOneAxis.ListIndex = 2;  // three axes are asked for: the fourth does not count
  EXPECT_EQ(ParametaumuKakunin(), 0);
}

TEST_F(ParaShow, DeviceListsNarrowOneAnother) {
  ParametaHyoji();
  f.comboActSize[0].Pick(0);
  EXPECT_EQ(f.comboActSize[0].Text(), " 20");
  EXPECT_EQ(f.comboActSpeed[0].Text(), "L");     // still listed
  EXPECT_EQ(f.comboActStroke[0].Text(), "100");  // still listed
  EXPECT_EQ(f.txtActuator[0].Text, " 20L100");
  ASSERT_TRUE(f.comboActStroke[0].ShowText("10"));
  f.comboActSpeed[0].Pick(1);
  EXPECT_EQ(f.comboActSpeed[0].Text(), "H");
  EXPECT_EQ(f.comboActStroke[0].Text(), "25");  // the first: 10 is not listed for it
  EXPECT_EQ(f.txtActuator[0].Text, " 20H025");
  f.comboActStroke[0].Pick(1);
  TorikomiParametaValue();
  EXPECT_EQ(ParamSet.Actuator[0], " 20H050");
  EXPECT_EQ(ParamSet.ActSize[0], " 20");
  EXPECT_EQ(ParamSet.ActStroke[0], 50);
  EXPECT_EQ(DevSettei[0].Size, " 20");
  EXPECT_EQ(DevSettei[0].Speed, "H");
  EXPECT_EQ(DevSettei[0].Stroke, 50);
}

TEST_F(ParaShow, ADeviceThatTheListLacksIsKept) {
  ParamSet.Actuator[0] = " 99Z123";
  ParamSet.Actuator[1] = "28L100";  // cut to size " 28"
  ParamSet.Actuator[2] = "";
  for (int axis = 0; axis < 3; ++axis) CutActuator(ParamSet, axis);
  ParametaHyoji();
  EXPECT_EQ(f.comboActSize[0].Text() + f.comboActSpeed[0].Text() + f.comboActStroke[0].Text(),
            " 99Z123");
  f.comboActSize[0].Pick(0);
  EXPECT_EQ(f.comboActSpeed[0].Text(), "L");
  EXPECT_TRUE(f.comboActSize[0].ShowText(" 99"));
  f.comboActSize[0].Pick(f.comboActSize[0].ListIndex);
  EXPECT_EQ(f.txtActuator[0].Text, " 99Z123");
  EXPECT_EQ(f.comboActSize[2].ListIndex, -1);
  EXPECT_GT(f.comboActSize[2].List.size(), 1u);
  TorikomiParametaValue();
  EXPECT_EQ(ParamSet.Actuator[0], " 99Z123");
  EXPECT_EQ(ParamSet.Actuator[1], " 28L100");
  EXPECT_EQ(ParamSet.Actuator[2], "");
}

TEST_F(ParaShow, AnOldListHasSizesByNumber) {
  ASSERT_EQ(ReadDeviceListOldAxis(0), 0);
  ParametaHyoji();
  EXPECT_EQ(f.comboActSize[0].Text(), " 28");
  EXPECT_EQ(f.comboActSpeed[0].List.size(), 2u);
  f.comboActSpeed[0].Pick(1);
  EXPECT_EQ(f.txtActuator[0].Text.substr(0, 4), " 28H");
}

}  // namespace
}  // namespace tr7
