#include "device/device_names.h"

#include <string>

#include "device/dev_setting.h"
#include "device/dev_setting_store.h"
#include "device/device_list.h"
#include "state/text.h"
#include "state/text_file.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

/// A small catalogue of its own.
class DeviceStoreTest : public StateTest {
 protected:
  DeviceStoreTest() {
    PutList(
        "7\r\n\" 28L-100\",3,500,1,1\r\n\" 28L-050\",3,500,1,1\r\n\"E35L-100\",4,192,2,0\r\n"
        "\" 42H-010\",8,400,0,2\r\n\" 42H-600\",8,400,0,2\r\n\" 42H-009\",8,400,0,2\r\n"
        "\" 42H-601\",8,400,0,2\r\n");
  }
  void PutList(const std::string& content) {
    virt.files.Put(ProgramFile("nqvdevice.lst"), content);
  }
  void Store(const std::string& key, const std::string& value) {
    virt.settings.Set("Settings", key, value);
  }
  std::string Stored(const std::string& key) { return virt.settings.Get("Settings", key, "-"); }
};

// Settings.

TEST_F(DeviceStoreTest, FormatBounds) {
  const struct {
    const char *size, *speed;
    double stroke;
    int result;
  } rows[] = {{" 28", "L", 100, 0}, {"E35", "A", 10, 0},   {"型28", "Z", 600, 0},
              {" 28", "L", 9, 1},   {" 28", "L", 601, 1},  {" 28", "L", -100, 1},
              {"28", "L", 100, 1},  {"  28", "L", 100, 1}, {"", "L", 100, 1},
              {" 28", "", 100, 1},  {" 28", "@", 100, 1},  {" 28", "[", 100, 1},
              {" 28", "l", 100, 1}, {" 28", "LH", 100, 1}, {" 28", "L", 1e300, 1}};
  for (const auto& row : rows) {
    EXPECT_EQ(CheckDeviceFormat(row.size, row.speed, row.stroke), row.result)
        << row.size << row.speed << row.stroke;
  }
}

TEST_F(DeviceStoreTest, AnEmptyStoreGivesTheDefaultDevice) {
  for (const bool in_list : {true, false}) {
    PutList(in_list ? "1\r\n\" 28L-100\",3,500,1,1\r\n" : "0\r\n");
    DevSetting.fill(DevSettingRecord{});
    EXPECT_EQ(LoadDevSetting(), 0);
    for (int axis = 0; axis < kAxes; ++axis) {
      const DevSettingRecord& device = DevSetting[axis];
      EXPECT_EQ(device.Size, " 28");
      EXPECT_EQ(device.Speed, "L");
      EXPECT_EQ(device.Stroke, 100);
      EXPECT_EQ(device.Lead, in_list ? 3 : 2);
      EXPECT_EQ(device.Ppr, in_list ? 500 : 400);
      EXPECT_EQ(device.MmPerPulse, in_list ? 0.006 : 0.005);
      EXPECT_TRUE(device.NewType && device.Vertical && device.SeriesOk);
      EXPECT_EQ(device.NewTypeWord, "NEW");
      EXPECT_FALSE(device.WithPG || device.NotChosen);
      EXPECT_EQ(DevSettei[axis].Size + DevSettei[axis].Speed, " 28L");
      EXPECT_EQ(DevSettei[axis].Stroke, 100);
      EXPECT_TRUE(DevSettei[axis].NewType);
    }
  }
}

TEST_F(DeviceStoreTest, EachStoredValueIsJudged) {
  const struct {
    const char *key, *value;  ///< of axis 2; the device there is " 35" "H" 200, not in the list
    int result;
    const char* size;
    int stroke, lead, ppr;
  } rows[] = {
      {"DevLead2", "6", 0, " 35", 200, 6, 400},     {"DevLead2", "20", 0, " 35", 200, 20, 400},
      {"DevLead2", "21", 1, " 35", 200, 0, 400},    {"DevLead2", "1", 1, " 35", 200, 0, 400},
      {"DevLead2", "99999", 1, " 35", 200, 0, 400}, {"DevLead2", "x", 1, " 35", 200, 0, 400},
      {"DevPPR2", "192", 0, " 35", 200, 2, 192},    {"DevPPR2", "0", 1, " 35", 200, 2, 0},
      {"DevPPR2", "99999", 1, " 35", 200, 2, 0},    {"DevSize2", "35", 1, "", 0, 2, 400},
      {"DevSpeed2", "h", 1, "", 0, 2, 400},         {"DevStroke2", "601", 1, "", 0, 2, 400},
      {"DevStroke2", "", 1, "", 0, 2, 400},         {"NewType2", "0", 0, " 35", 200, 2, 400}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.key) + " " + row.value);
    virt.settings.values.clear();
    DevSetting.fill(DevSettingRecord{});
    Store("DevSize2", " 35");
    Store("DevSpeed2", "H");
    Store("DevStroke2", "200");
    Store(row.key, row.value);
    EXPECT_EQ(LoadDevSetting(), row.result);
    const DevSettingRecord& device = DevSetting[1];
    EXPECT_EQ(device.NotChosen, row.result == 1);
    EXPECT_EQ(device.Size, row.size);
    EXPECT_EQ(device.Stroke, row.stroke);
    EXPECT_EQ(device.Lead, row.lead);
    EXPECT_EQ(device.Ppr, row.ppr);
    EXPECT_FALSE(DevSetting[0].NotChosen || DevSetting[2].NotChosen);
  }
}

TEST_F(DeviceStoreTest, TheNewListWinsWhateverTheStoreSays) {
  Store("NewType1", "0");
  Store("DevLead1", "21");  // not looked at
  Store("DevPPR1", "0");
  Store("Vertical1", "0");
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

TEST_F(DeviceStoreTest, WithoutAListTheStoredLeadsServe) {
  virt.files.Remove(ProgramFile("nqvdevice.lst"));
  Store("DevLead4", "12");
  EXPECT_EQ(LoadDevSetting(), 0);
  EXPECT_EQ(DevSetting[0].Lead, 2);
  EXPECT_EQ(DevSetting[3].Lead, 12);
  ASSERT_EQ(forms.boxes.size(), 1u);
  EXPECT_EQ(forms.LastBox(), Text(15));
}

TEST_F(DeviceStoreTest, WhatIsSavedComesBack) {
  for (int axis = 0; axis < kAxes; ++axis) {
    DevSettingRecord& device = DevSetting[axis];
    device.Size = " 35";
    device.Speed = "H";
    device.Stroke = static_cast<std::int16_t>(100 + axis);
    device.Lead = 6;
    device.Ppr = 192;
    device.NewType = axis == 1;
    device.Vertical = device.WithPG = True;
    DevSettei[axis].Vertical = False;
    DevSettei[axis].WithPG = axis == 1;
  }
  AppState.AxisMuko[2] = True;
  SaveDevSetting();
  EXPECT_EQ(Stored("DevSize1"), " 35");
  EXPECT_EQ(Stored("DevStroke4"), "103");
  EXPECT_EQ(Stored("NewType1"), "0");
  EXPECT_EQ(Stored("NewType2"), "1");
  EXPECT_EQ(Stored("Device2"), "QV");
  EXPECT_EQ(Stored("Vertical1"), "0");  // of the device under consideration
  EXPECT_EQ(Stored("WithPG2"), "1");
  EXPECT_EQ(Stored("DevPPR1"), "-");
  for (const char* key : {"DevSize3", "DevSpeed3", "DevStroke3", "DevLead3", "NewType3"}) {
    EXPECT_EQ(Stored(key), "-");
  }
  DevSetting.fill(DevSettingRecord{});
  EXPECT_EQ(LoadDevSetting(), 0);
  EXPECT_EQ(DevSetting[1].Size + DevSetting[1].Speed, " 35H");
  EXPECT_EQ(DevSetting[1].Stroke, 101);
  EXPECT_EQ(DevSetting[1].Lead, 6);
  EXPECT_EQ(DevSetting[1].Ppr, 400);
  EXPECT_EQ(DevSetting[2].Size, " 28");
}

void SetDevice(DevSettingRecord& device, std::int16_t stroke) {
  device.Size = "E35";
  device.Speed = "L";
  device.Stroke = stroke;
  device.NewType = device.Vertical = device.WithPG = True;
}

TEST_F(DeviceStoreTest, DevicesPassBetweenTheTwoRecords) {
  for (DevSettingRecord& device : DevSetting) SetDevice(device, 100);
  for (DevSettingRecord& device : DevSettei) SetDevice(device, 200);
  AppState.AxisMuko[1] = True;
  LetDevSettingToDevSettei();
  EXPECT_EQ(DevSettei[0].Stroke, 100);
  EXPECT_EQ(DevSettei[1].Stroke, 200);

  AppState.AxisMukoOfFile[3] = True;
  DevSettei[3].Stroke = 300;
  DevSettei[0].NewType = False;
  ReflectFileDevice2PcDevice();
  EXPECT_FALSE(AppState.AxisMuko[1]);
  EXPECT_TRUE(AppState.AxisMuko[3]);
  EXPECT_EQ(DevSetting[1].Stroke, 200);
  EXPECT_EQ(DevSetting[3].Stroke, 100);
  EXPECT_FALSE(DevSetting[0].NewType);
  EXPECT_EQ(DevSetting[0].NewTypeWord, "OLD");
}

TEST_F(DeviceStoreTest, EachOfTheSixFieldsIsCompared) {
  using Change = void (*)(DevSettingRecord&);
  const struct {
    Change change;
    int result;
  } rows[] = {{[](DevSettingRecord&) {}, 0},
              {[](DevSettingRecord& d) { d.NewType = False; }, 1},
              {[](DevSettingRecord& d) { d.Size = "35"; }, 1},
              {[](DevSettingRecord& d) { d.Speed = "H"; }, 1},
              {[](DevSettingRecord& d) { d.Stroke = 101; }, 1},
              {[](DevSettingRecord& d) { d.WithPG = False; }, 1},
              {[](DevSettingRecord& d) { d.Vertical = False; }, 1},
              {[](DevSettingRecord& d) { d.Lead = 7; }, 0}};
  for (const auto& row : rows) {
    for (const bool in_file : {true, false}) {
      for (int axis = 0; axis < kAxes; ++axis) SetDevice(DevSetting[axis], 100);
      for (int axis = 0; axis < kAxes; ++axis) SetDevice(DevSettei[axis], 100);
      row.change(DevSettei[3]);
      AppState.AxisMukoOfFile[3] = !in_file;
      EXPECT_EQ(CompareActuatorSettingOfPosifile2PC(), in_file ? row.result : 0);
    }
  }
}

// Names.

TEST_F(DeviceStoreTest, NamesOfEveryForm) {
  const struct {
    const char *name, *word;
    bool good;
    const char* device;  ///< size and speed
    int stroke;
    bool with_pg, vertical;  ///< vertical stands True before
  } rows[] = {{"QV-28L-100", "NEW", true, " 28L", 100, false, true},
              {"QV- 28L-100", "NEW", true, " 28L", 100, false, true},
              {"QV-28L-100E", "OLD", true, " 28L", 100, true, true},
              {"QV- 28L-100E", "NEW", true, " 28L", 100, true, true},
              {"QV- 28L-100 ", "NEW", true, " 28L", 100, false, true},
              {"QV- 28L-100_", "NEW", true, " 28L", 100, false, true},
              {"QV-28L-100--E", "NEW", true, " 28L", 100, true, true},
              {"QV-28L-100---E", "NEW", true, " 28L", 100, false, true},  // the fourth letter
              {"QV-28L-50", "NEW", true, " 28L", 50, false, true},
              {"QV-28L-50E", "NEW", true, " 28L", 50, false, true},  // stands at character 10
              {"QV-28L-50EE", "NEW", true, " 28L", 50, true, true},
              {"QV- 28L- 50E", "NEW", true, " 28L", 50, true, true},
              {"QV-E35L-100", "NEW", true, "E35L", 100, true, false},
              {"QV-E35L-100V", "NEW", true, "E35L", 100, true, false},
              {"QV-42H-10", "NEW", true, " 42H", 10, false, true},
              {"QV- 42H- 10E", "NEW", true, " 42H", 10, false, true},
              {"QV-42H-600E", "NEW", true, " 42H", 600, false, true},
              {"NB-28L-100", "NEW", true, " 28L", 100, false, true},
              {"QV-42H-9", "NEW", false, "", 0, false, true},  // no stroke: 8 characters
              {"QV-42H-09", "NEW", false, "", 0, false, true},
              {"QV-42H-601", "NEW", false, "", 0, false, true},
              {"QV- 42H-601", "NEW", false, "", 0, false, true},
              {"QV-42H-99999999999999999999", "NEW", false, "", 0, false, true},
              {"QV-42H-", "NEW", false, "", 0, false, true},
              {"QV-42H-E10", "NEW", false, "", 0, false, true},
              {"QV-42h-100", "NEW", false, "", 0, false, true},
              {"qv-28L-100", "NEW", false, "", 0, false, true},
              {"QX-28L-100", "NEW", false, "", 0, false, true},
              {"QV28L-100", "NEW", false, "", 0, false, true},
              {"QV-", "NEW", false, "", 0, false, true},
              {"", "NEW", false, "", 0, false, true},
              {"QV-35L-100", "NEW", false, " 35L", 100, false, true}};  // not in the list
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    DevSettei.fill(DevSettingRecord{});
    DevSettei[0].NewTypeWord = row.word;
    DevSettei[0].Vertical = True;
    FileDevice[0] = row.name;
    for (int axis = 1; axis < kAxes; ++axis) AppState.AxisMukoOfFile[axis] = True;
    EXPECT_EQ(ParseDeviceNames(), row.good ? 0 : 1);
    EXPECT_EQ(forms.boxes.size(), row.good ? 0u : 1u);
    EXPECT_EQ(forms.LastBox(), row.good ? "" : Text(4) + "\n" + Text(5));
    forms.boxes.clear();
    EXPECT_EQ(DevSettei[0].Size + DevSettei[0].Speed, row.device);
    EXPECT_EQ(DevSettei[0].Stroke, row.stroke);
    EXPECT_EQ(DevSettei[0].WithPG, row.with_pg);
    EXPECT_EQ(DevSettei[0].Vertical, row.vertical);
    EXPECT_TRUE(DevSettei[0].NewType || !row.good);
  }
}

TEST_F(DeviceStoreTest, AVerticalLetterCountsWhereTheDeviceLeavesAChoice) {
  const struct {
    const char* name;
    bool before, after;
  } rows[] = {{"QV-28L-100V", false, true},  {"QV-28L-100EV", false, true},
              {"QV-28L-100", false, false},  {"QV-28L-100", true, true},
              {"QV-E35L-100V", true, false}, {"QV-42H-600", false, true}};
  for (const auto& row : rows) {
    AppState.AxisMuko = {False, True, True, True};
    DevSettei[0].Vertical = row.before;
    FileDevice[0] = row.name;
    EXPECT_EQ(ParseDeviceNames(), 0);
    EXPECT_EQ(DevSettei[0].Vertical, row.after) << row.name;
  }
}

TEST_F(DeviceStoreTest, SeriesAndAxesOfNames) {
  DevSetting[0].Series = DevSettei[0].Series = "";
  DevSetting[1].Series = DevSettei[1].Series = "";
  AppState.AxisMuko[2] = True;
  AppState.AxisMukoOfFile[3] = True;
  FileDevice = {"QV-28L-100", "NB-28L-100", "never looked at", ""};
  EXPECT_EQ(ParseDeviceNames(), 0);
  EXPECT_EQ(DevSetting[0].Series + DevSettei[0].Series, "QVQV");
  EXPECT_EQ(DevSetting[1].Series + DevSettei[1].Series, "");

  // The first bad name ends the parse; the header's word shows only then.
  DevSettei[0].NewTypeWord = "OLD";
  DevSettei[1].NewTypeWord = "NEW";
  DevSettei[0].NewType = True;
  FileDevice = {"QV-28L-9", "QV-28L-050", "", ""};
  DevSettei[1].Stroke = 100;
  EXPECT_EQ(ParseDeviceNames(), 1);
  EXPECT_FALSE(DevSettei[0].NewType);
  EXPECT_EQ(DevSettei[1].Stroke, 100);
}

TEST_F(DeviceStoreTest, WithoutAListNoNameIsGood) {
  virt.files.Remove(ProgramFile("nqvdevice.lst"));
  FileDevice.fill("QV-28L-100");
  EXPECT_EQ(ParseDeviceNames(), 1);
  ASSERT_EQ(forms.boxes.size(), 2u);
  EXPECT_EQ(forms.boxes[0].Text, Text(15));
  EXPECT_EQ(forms.boxes[1].Text, Text(4) + "\n" + Text(5));
}

}  // namespace
}  // namespace tr7
