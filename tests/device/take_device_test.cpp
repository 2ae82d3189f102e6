// Devices out of the parameters and out of the controller's device blocks.

#include <string>

#include "device/ct_device.h"
#include "device/dev_setting.h"
#include "device/take_ct_device.h"
#include "para/param_set.h"
#include "para/take_param_device.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class TakeDevice : public StateTest {};

TEST_F(TakeDevice, TheDeviceTextIsCutByItsLength) {
  const struct {
    const char *text, *size, *speed;
    int stroke;
  } rows[] = {
      {" 28L100", " 28", "L", 100}, {"28L100", " 28", "L", 100},
      {"E35L050", "E35", "L", 50},  {" 50H600", " 50", "H", 600},
      {"28L 50", " 28", "L", 50},   {"28 100", " 28", "", 100},  // no speed
      {"28L1000", "28L", "1", 0},   // seven characters are a size of three, whatever they hold
      {" 28L1000", "  2", "8", 0},  // eight are one of two
      {"28L10", " 28", "L", 10},    // short of a digit
      {"28Lx00", " 28", "L", 0},    // no number
      {"28", " 28", "", 0},         {"", " ", "", 0},
  };
  for (const auto& row : rows) {
    ParamSetRecord set;
    set.ActStroke[2] = -1;
    set.Actuator[2] = row.text;
    CutActuator(set, 2);
    EXPECT_EQ(set.ActSize[2], row.size) << row.text;
    EXPECT_EQ(set.ActSpeed[2], row.speed) << row.text;
    EXPECT_EQ(set.ActStroke[2], row.stroke) << row.text;
  }
}

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
  for (auto* take : {TakeDevFromParam, TakeDevFromParam2}) {
    FillParameters();
    DevSetting.fill(DevSettingRecord{});
    DevSetting[1].NotChosen = True;
    AppState.AxisMuko = {True, True, True, False};
    take();
    EXPECT_EQ(AppState.AxisMuko, (AxisArray<Bool16>{False, False, False, True}));
    EXPECT_EQ(DevSetting[1].Size + DevSetting[1].Speed, " 42H");
    EXPECT_EQ(DevSetting[1].Stroke, 200);
    EXPECT_EQ(DevSetting[1].Lead, 4);
    EXPECT_EQ(DevSetting[1].Ppr, 400);
    EXPECT_EQ(DevSetting[1].MmPerPulse, 0.01);
    EXPECT_FALSE(DevSetting[1].NotChosen);
    EXPECT_EQ(AppState.StrokePulse[1], 1001);
    EXPECT_EQ(AppState.StrokeMm[1], 10.01);
    EXPECT_EQ(DevSetting[3].Size, "") << "an axis that AXIS does not name";
  }
}

TEST_F(TakeDevice, AnAxisWithoutDeviceTextEndsIt) {
  FillParameters();
  ParamSet.Actuator[1].clear();
  TakeDevFromParam2();
  EXPECT_EQ(DevSetting[0].Size, " 28");
  EXPECT_TRUE(DevSetting[1].NotChosen);
  EXPECT_EQ(DevSetting[2].Size, "");
}

TEST_F(TakeDevice, TypeAndPgOfParameters) {
  const struct {
    int type, block_pg, function;
    bool known, pg, pg2;
  } rows[] = {{0, 0, 0, true, false, false},
              {1, 1, 0, true, true, false},
              {2, 0, 1, false, false, true},
              {255, 2, 2, false, true, true}};
  for (const auto& row : rows) {
    FillParameters();
    ParamSet.PgFunction[0] = static_cast<std::int16_t>(row.function);
    CtDev[0].Type = row.type;
    CtDev[0].PgCode = row.block_pg;
    for (const bool block : {true, false}) {
      SCOPED_TRACE(std::to_string(row.type) + (block ? " block" : " FUNCTION"));
      block ? TakeDevFromParam() : TakeDevFromParam2();
      EXPECT_EQ(DevSetting[0].SeriesOk, row.known);
      for (const DevSettingRecord& device : {DevSetting[0], DevSettei[0]}) {
        EXPECT_EQ(device.Vertical, row.known);
        EXPECT_EQ(device.WithPG, block ? row.pg : row.pg2);
      }
    }
  }
}

TEST_F(TakeDevice, TypeAndPgOfTheControllersBlock) {
  const struct {
    int type;
    const char* size;
    bool new_type, known;
  } rows[] = {{0, " 28", true, true}, {1, " 28", false, true},  {1, "E35", true, true},
              {1, " 20", true, true}, {1, " 42", true, true},   {1, " 50", false, true},
              {2, " 28", true, true}, {3, " 42", false, false}, {255, "E35", false, false}};
  for (const auto& row : rows) {
    for (const int pg : {0, 1, 2}) {
      SCOPED_TRACE(std::to_string(row.type) + row.size + " pg " + std::to_string(pg));
      const bool before = !row.new_type;  // each must be set, not left
      for (DevSettingRecord* device : {&DevSetting[0], &DevSettei[0]}) {
        device->NewType = device->Vertical = device->SeriesOk = before;
      }
      CtDev[0] = {};
      CtDev[0].Type = row.type;
      CtDev[0].PgCode = pg;
      CtDev[0].Size = row.size;
      CtDev[0].Speed = "L";
      CtDev[0].Lead = 2;
      CtDev[0].Ppr = 400;
      CtDev[0].MaxPulse = 1001;
      AppState.AxisMuko = {False, True, True, True};
      TakeDevFromCt();
      for (const DevSettingRecord& device : {DevSetting[0], DevSettei[0]}) {
        EXPECT_EQ(device.NewType, row.new_type);
        EXPECT_EQ(device.Vertical, row.known);
        EXPECT_EQ(device.WithPG, pg != 0);
      }
      EXPECT_EQ(DevSetting[0].SeriesOk, row.known);
      EXPECT_EQ(DevSetting[0].NewTypeWord, row.new_type ? "NEW" : "OLD");
      EXPECT_EQ(AppState.StrokePulse[0], 1001);
      EXPECT_EQ(AppState.StrokeMm[0], 5.005);
    }
  }
}

}  // namespace
}  // namespace tr7
