#include "device/device_names.h"

#include "device/dev_setting_store.h"
#include "device/device_list.h"
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

TEST_F(DeviceStoreTest, AnEmptyStoreGivesTheDefaultDevice) {
  EXPECT_EQ(LoadDevSetting(), 0);
  for (const DevSettingRecord& device : {DevSetting[3], DevSettei[3]}) {
    EXPECT_EQ(device.Size + device.Speed + std::to_string(device.Stroke), " 28L100");
    EXPECT_TRUE(device.NewType);
  }
  EXPECT_EQ(DevSetting[3].Lead, 3) << "that of the list";
  EXPECT_EQ(DevSetting[3].MmPerPulse, 0.006);
  EXPECT_TRUE(DevSetting[3].Vertical && DevSetting[3].SeriesOk);
  EXPECT_FALSE(DevSetting[3].WithPG || DevSetting[3].NotChosen);
}

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

TEST_F(DeviceStoreTest, TheNewListWinsWhateverTheStoreSays) {
  for (const char* key : {"NewType1", "DevLead1", "DevPPR1", "Vertical1"}) Store(key, "0");
  Store("WithPG1", "1");
  Store("Device1", "NB");
  EXPECT_EQ(LoadDevSetting(), 0);
  const DevSettingRecord& device = DevSetting[0];
  EXPECT_EQ(device.Lead, 3);
  EXPECT_EQ(device.Ppr, 500);
  EXPECT_FALSE(device.NewType || DevSettei[0].NewType || device.Vertical || device.SeriesOk);
  EXPECT_EQ(device.NewTypeWord, "OLD");
  EXPECT_TRUE(device.WithPG);
}

TEST_F(DeviceStoreTest, WithoutAListTheStoredLeadsServeAndNoNameIsGood) {
  virt.files.Remove(ProgramFile("nqvdevice.lst"));
  Store("DevLead4", "12");
  EXPECT_EQ(LoadDevSetting(), 0);
  EXPECT_EQ(DevSetting[0].Lead, 2);
  EXPECT_EQ(DevSetting[3].Lead, 12);
  EXPECT_EQ(Boxes(), Texts{Text(15)});
  FileDevice.fill("QV-28L-100");
  EXPECT_EQ(ParseDeviceNames(), 1);
  EXPECT_EQ(Boxes(), (Texts{Text(15), Text(4) + "\n" + Text(5)}));
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
  for (const char* key : {"DevPPR1", "DevSize3", "DevLead3", "NewType3"}) {
    EXPECT_EQ(Stored(key), "-") << key;
  }
  DevSetting.fill(DevSettingRecord{});
  EXPECT_EQ(LoadDevSetting(), 0);
  const DevSettingRecord& device = DevSetting[1];
  EXPECT_EQ(device.Size + device.Speed + std::to_string(device.Stroke), " 35H103");
  EXPECT_EQ(device.Lead, 6);
  EXPECT_EQ(device.Ppr, 400);
  EXPECT_EQ(DevSetting[2].Size, " 28");
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

TEST_F(DeviceStoreTest, EachOfTheSixFieldsIsCompared) {
  const auto differs = [](void (*change)(DevSettingRecord&), bool in_file = true) {
    for (DevSettingRecord& device : DevSetting) SetDevice(device, "E35", "L", 100);
    DevSettei = DevSetting;
    change(DevSettei[3]);
    AppState.AxisMukoOfFile[3] = !in_file;
    return CompareActuatorSettingOfPosifile2PC() == 1;
  };
  EXPECT_TRUE(differs([](DevSettingRecord& d) { d.NewType = False; }));
  EXPECT_TRUE(differs([](DevSettingRecord& d) { d.Size = "35"; }));
  EXPECT_TRUE(differs([](DevSettingRecord& d) { d.Speed = "H"; }));
  EXPECT_TRUE(differs([](DevSettingRecord& d) { d.Stroke = 101; }));
  EXPECT_TRUE(differs([](DevSettingRecord& d) { d.WithPG = True; }));
  EXPECT_TRUE(differs([](DevSettingRecord& d) { d.Vertical = True; }));
  EXPECT_FALSE(differs([](DevSettingRecord& d) { d.Lead = 7; }));
  EXPECT_FALSE(differs([](DevSettingRecord& d) { d.Stroke = 101; }, false));
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

TEST_F(DeviceStoreTest, SeriesAndAxesOfNames) {
  DevSetting[0].Series = DevSettei[0].Series = DevSetting[1].Series = DevSettei[1].Series = "";
  AppState.AxisMuko[2] = True;
  AppState.AxisMukoOfFile[3] = True;
  FileDevice = {"QV-28L-100", "NB-28L-100", "never looked at", ""};
  EXPECT_EQ(ParseDeviceNames(), 0);
  EXPECT_EQ(DevSetting[0].Series + DevSettei[0].Series, "QVQV");
  EXPECT_EQ(DevSetting[1].Series + DevSettei[1].Series, "");

  // The first bad name ends the parse; the header's word shows only then.
  DevSettei[0].NewTypeWord = "OLD";
  FileDevice = {"QV-28L-9", "QV-28L-050", "", ""};
  EXPECT_EQ(ParseDeviceNames(), 1);
  EXPECT_FALSE(DevSettei[0].NewType);
  EXPECT_EQ(DevSettei[1].Stroke, 100);
}

}  // namespace
}  // namespace tr7
