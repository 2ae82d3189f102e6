// Devices out of the parameters and out of the controller's device blocks.

#include <map>

#include "device/ct_device.h"
#include "device/take_ct_device.h"
#include "para/param_set.h"
#include "para/take_param_device.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class TakeDevice : public StateTest {};

/// AXIS1 to AXIS3 in the parameters, each with a device of its own.
void FillParameters() {
  ParamSet.OneAxis = 7;
  const char* texts[] = {" 28L100", " 42H200", "E35L050", ""};
  for (int axis = 0; axis < kAxes; ++axis) {
    ParamSet.Actuator[axis] = texts[axis];
    CutActuator(ParamSet, axis);
    ParamSet.AxisLead[axis] = static_cast<std::int16_t>(2 + 2 * axis);
    ParamSet.AxisPulse[axis] = 400;
    ParamSet.AxisStroke[axis] = 1001;
  }
}

TEST_F(TakeDevice, ParametersBringAxesDevicesAndStrokes) {
  FillParameters();
  DevSetting[1].NotChosen = True;
  AppState.AxisMuko = MukoOfMask(8);
  TakeDevFromParam2();
  EXPECT_EQ(AppState.AxisMuko, MukoOfMask(7));
  EXPECT_EQ(DevSetting[1].Size + DevSetting[1].Speed, " 42H");
  EXPECT_EQ(DevSetting[1].Stroke, 200);
  EXPECT_EQ(DevSetting[1].MmPerPulse, 0.01);
  EXPECT_FALSE(DevSetting[1].NotChosen);
  EXPECT_EQ(AppState.StrokePulse[1], 1001);
  EXPECT_EQ(AppState.StrokeMm[1], 10.01);
  EXPECT_EQ(DevSetting[3].Size, "") << "an axis that AXIS does not name";
  ParamSet.Actuator[1].clear();
  ParamSet.ActSize[0] = "E35";
  ParamSet.ActSize[2] = " 50";
  TakeDevFromParam2();
  EXPECT_EQ(DevSetting[0].Size, "E35");
  EXPECT_TRUE(DevSetting[1].NotChosen) << "an axis without device text ends it";
  EXPECT_EQ(DevSetting[2].Size, "E35");
}

TEST_F(TakeDevice, TypeAndPgOfTheControllersBlock) {
  const struct {
    int type;
    const char* size;
    int pg;
    bool new_type, known;
  } rows[] = {
      {0, " 28", 0, true, true}, {1, " 28", 1, false, true},  {1, "E35", 2, true, true},
      {1, " 20", 0, true, true}, {1, " 42", 1, true, true},   {1, " 50", 2, false, true},
      {2, " 28", 0, true, true}, {3, " 42", 1, false, false}, {255, "E35", 0, false, false}};
  AppState.AxisMuko = MukoOfMask(1);
  for (const auto& row : rows) {
    SCOPED_TRACE(std::to_string(row.type) + row.size);
    DevSetting[0].NewType = DevSettei[0].NewType = !row.new_type;  // each must be set, not left
    DevSetting[0].Vertical = DevSettei[0].Vertical = DevSetting[0].SeriesOk = !row.known;
    CtDev[0] = {};
    CtDev[0].Type = row.type;
    CtDev[0].PgCode = row.pg;
    CtDev[0].Size = row.size;
    CtDev[0].Lead = 2;
    CtDev[0].Ppr = 400;
    CtDev[0].MaxPulse = 1001;
    TakeDevFromCt();
    for (const DevSettingRecord& device : {DevSetting[0], DevSettei[0]}) {
      EXPECT_TRUE(device.NewType == row.new_type && device.Vertical == row.known);
      EXPECT_EQ(device.WithPG, row.pg != 0);
    }
    EXPECT_EQ(DevSetting[0].SeriesOk, row.known);
    EXPECT_EQ(DevSetting[0].NewTypeWord, row.new_type ? "NEW" : "OLD");
    EXPECT_EQ(AppState.StrokeMm[0], 5.005);
  }
}

}  // namespace
}  // namespace tr7
