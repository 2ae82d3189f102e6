#include "device/device_names.h"

#include "device/ct_device.h"
#include "device/dev_setting_store.h"
#include "device/device_texts.h"
#include "device/take_ct_device.h"
#include "para/take_param_device.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

/// A small catalogue of its own.
class DeviceStoreTest : public StateTest {
 protected:
  DeviceStoreTest() {
    PutList("nqvdevice.lst",
            "6\r\n\" 28L-100\",3,500,1,1\r\n\" 28L-050\",3,500,1,1\r\n\"E35L-100\",4,192,2,0\r\n"
            "\" 42H-010\",8,400,0,2\r\n\" 42H-600\",8,400,0,2\r\n\" 42H-009\",8,400,0,2\r\n");
  }
  void Store(const std::string& key, const std::string& value) {
    virt.settings.Set("Settings", key, value);
  }
  std::string Stored(const std::string& key) { return virt.settings.Get("Settings", key, "-"); }
};

// Settings.

TEST_F(DeviceStoreTest, EachStoredValueIsJudged) {
  /// Of AXIS2 with one value stored otherwise: the device there is not in the list.
  const auto loaded = [this](const char* key, const char* value) {
    virt.settings.values.clear();
    DevSetting.fill(DevSettingRecord{});
    Store("DevSize2", " 35");
    Store("DevSpeed2", "H");
    Store("DevStroke2", "200");
    Store(key, value);
    const int result = LoadDevSetting();
    const DevSettingRecord& device = DevSetting[1];
    EXPECT_EQ(result, device.NotChosen ? 1 : 0);
    EXPECT_FALSE(DevSetting[0].NotChosen || DevSetting[2].NotChosen);
    return (device.NotChosen ? "none " : "") + device.Size + " " + std::to_string(device.Lead) +
           " " + std::to_string(device.Ppr);
  };
  EXPECT_EQ(loaded("DevLead2", "20"), " 35 20 400");
  for (const char* lead : {"21", "1", "x"}) EXPECT_EQ(loaded("DevLead2", lead), "none  35 0 400");
  EXPECT_EQ(loaded("DevPPR2", "192"), " 35 2 192");
  EXPECT_EQ(loaded("DevPPR2", "99999"), "none  35 2 0");
  EXPECT_EQ(loaded("DevSize2", "35"), "none  2 400");
  EXPECT_EQ(loaded("DevStroke2", ""), "none  2 400");
  EXPECT_EQ(loaded("NewType2", "0"), " 35 2 400");
}

TEST_F(DeviceStoreTest, WhatIsSavedComesBack) {
  for (DevSettingRecord& device : DevSetting) {
    SetDevice(device, " 35", "H", 103);
    device.Lead = 6;
    device.Ppr = 192;
    device.Vertical = device.WithPG = True;
  }
  DevSetting[0].NewType = False;
  DevSettei[1].WithPG = True;
  AppState.AxisMuko[2] = True;
  SaveDevSetting();
  EXPECT_EQ(Stored("NewType1") + Stored("NewType2") + Stored("Device2"), "01QV");
  EXPECT_EQ(Stored("Vertical1") + Stored("WithPG1") + Stored("WithPG2"), "001")
      << "of the devices under consideration";
  EXPECT_EQ(Stored("DevPPR1") + Stored("DevSize3"), "--");
  DevSetting.fill(DevSettingRecord{});
  EXPECT_EQ(LoadDevSetting(), 0);
  const DevSettingRecord& device = DevSetting[1];
  EXPECT_EQ(device.Size + device.Speed + std::to_string(device.Stroke), " 35H103");
  EXPECT_EQ(device.Lead, 6);
}

// Names.

/// Options are three letters from character 11 on, or 12 behind three characters of size.
TEST_F(DeviceStoreTest, NamesOfEveryForm) {
  const struct {
    const char *name, *device;  ///< size, speed, stroke
    bool with_pg, vertical;     ///< vertical stands True before
  } rows[] = {{"QV-28L-100E", " 28L100", true, true},     {"QV- 28L-100E", " 28L100", true, true},
              {"QV- 28L-100_", " 28L100", false, true},   {"QV-28L-100--E", " 28L100", true, true},
              {"QV-28L-100---E", " 28L100", false, true}, {"QV-28L-50E", " 28L50", false, true},
              {"QV-28L-50EE", " 28L50", true, true},      {"QV- 28L- 50E", " 28L50", true, true},
              {"QV-E35L-100V", "E35L100", true, false},   {"QV-42H-10", " 42H10", false, true},
              {"QV-42H-600E", " 42H600", false, true},    {"NB-28L-100", " 28L100", false, true}};
  AppState.AxisMukoOfFile = MukoOfMask(1);
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    DevSettingRecord& device = DevSettei[0] = DevSettingRecord{};
    device.NewTypeWord = "OLD";  // a name counts as new all the same
    device.Vertical = True;
    FileDevice[0] = row.name;
    EXPECT_EQ(ParseDeviceNames(), 0);
    EXPECT_EQ(device.Size + device.Speed + std::to_string(device.Stroke), row.device);
    EXPECT_EQ(device.WithPG, row.with_pg);
    EXPECT_EQ(device.Vertical, row.vertical);
    EXPECT_TRUE(device.NewType);
  }
  for (const char* bad :
       {"QV-42H-9", "QV-42H-09", "QV-42H-601", "QV- 42H-601", "QV-42H-99999999999999999999",
        "QV-42H-E10", "QV-42h-100", "qv-28L-100", "QV28L-100", "", "QV-35L-100"}) {
    FileDevice[0] = bad;
    EXPECT_EQ(ParseDeviceNames(), 1) << bad;
    EXPECT_EQ(Boxes(), Texts{Text(4) + "\n" + Text(5)}) << bad;
  }
}

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
  const std::tuple<int, const char*, int, bool, bool> rows[] = {
      {0, " 28", 0, true, true}, {1, " 28", 1, false, true},  {1, "E35", 2, true, true},
      {1, " 20", 0, true, true}, {1, " 42", 1, true, true},   {1, " 50", 2, false, true},
      {2, " 28", 0, true, true}, {3, " 42", 1, false, false}, {255, "E35", 0, false, false}};
  AppState.AxisMuko = MukoOfMask(1);
  for (const auto& [type, size, pg, new_type, known] : rows) {
    SCOPED_TRACE(std::to_string(type) + size);
    DevSetting[0].NewType = DevSettei[0].NewType = !new_type;  // each must be set, not left
    DevSetting[0].Vertical = DevSettei[0].Vertical = DevSetting[0].SeriesOk = !known;
    CtDev[0] = {};
    CtDev[0].Type = type;
    CtDev[0].PgCode = pg;
    CtDev[0].Size = size;
    CtDev[0].Lead = 2;
    CtDev[0].Ppr = 400;
    CtDev[0].MaxPulse = 1001;
    TakeDevFromCt();
    for (const DevSettingRecord& device : {DevSetting[0], DevSettei[0]}) {
      EXPECT_TRUE(device.NewType == new_type && device.Vertical == known);
      EXPECT_EQ(device.WithPG, pg != 0);
    }
    EXPECT_EQ(DevSetting[0].SeriesOk, known);
    EXPECT_EQ(DevSetting[0].NewTypeWord, new_type ? "NEW" : "OLD");
    EXPECT_EQ(AppState.StrokeMm[0], 5.005);
  }
}

TEST_F(DeviceStoreTest, ScaleOfTheFirstAxisInUse) {
  const int leads[] = {2, 2, 8, 12}, pprs[] = {400, 192, 400, 400};
  for (int axis = 0; axis < kAxes; ++axis) {
    SetDevice(DevSetting[axis], " 28", "L", 100);
    DevSetting[axis].Lead = static_cast<std::int16_t>(leads[axis]);
    DevSetting[axis].Ppr = pprs[axis];
  }
  const auto panels = [] {
    const auto& all = frmMain.sbStatusBar.Panels;
    return all[kPanelScale1] + "|" + all[kPanelScale2];
  };
  PulseScaleHyoji();
  EXPECT_EQ(panels(), "<1>1mm = 200.000Pulse|<1>1Pulse= 0.005mm");
  AppState.AxisMuko = MukoOfMask(12);
  PulseScaleHyoji();
  EXPECT_EQ(panels(), "<3>1mm = 50.000Pulse|<3>1Pulse= 0.020mm");
  PulseScaleHyojiAxis(3);
  EXPECT_EQ(panels(), "<4>1mm = 33.333Pulse|<4>1Pulse= 0.030mm");
  PulseScaleHyojiAxis(1);
  EXPECT_EQ(panels(), "|");
  PulseScaleHyoji();
  AppState.AxisMuko = MukoOfMask(0);
  PulseScaleHyoji();
  EXPECT_EQ(panels(), "|");
}

TEST_F(DeviceStoreTest, DevicesPassBetweenTheTwoRecords) {
  for (DevSettingRecord& device : DevSetting) SetDevice(device, "E35", "L", 100);
  for (DevSettingRecord& device : DevSettei) SetDevice(device, "E35", "L", 200);
  AppState.AxisMuko[1] = True;
  LetDevSettingToDevSettei();
  EXPECT_EQ(DevSettei[0].Stroke, 100);
  EXPECT_EQ(DevSettei[1].Stroke, 200);

  AppState.AxisMukoOfFile[3] = True;
  DevSettei[3].Stroke = 300;
  DevSettei[0].NewType = False;
  ReflectFileDevice2PcDevice();
  EXPECT_EQ(AppState.AxisMuko, MukoOfMask(7));
  EXPECT_EQ(DevSetting[1].Stroke, 200);
  EXPECT_EQ(DevSetting[3].Stroke, 100);
  EXPECT_FALSE(DevSetting[0].NewType);
  EXPECT_EQ(DevSetting[0].NewTypeWord, "OLD");
}

}  // namespace
}  // namespace tr7
