#include "para/para_file.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/job.qvd";
const std::string kParaPath = "/data/axes.pmt";

struct FileText {
  std::string mode = "POS MODE";
  AxisArray<std::string> devices;
  std::string words = "\"NEW\",\"NEW\",\"NEW\",\"NEW\"\r\n";  ///< line 4
  std::vector<int> numbers{1, 2};
  std::string way = "1";
  int pulses = 1000;
};

/// A file as any program would write it: axis 1 moves, the others hold what a new line holds.
std::string Bytes(const FileText& file) {
  std::string text = "\"QV-R7\"\r\n\"" + file.mode + "\"\r\n";
  for (const std::string& device : file.devices) text += "\"" + device + "\",";
  text.pop_back();
  text += "\r\n" + file.words;
  const std::string still = ",\" 30\",\" 10\",\" 0\",\" 0\",\" 0\",\" 0\"";
  for (const int n : file.numbers) {
    text += std::to_string(n) + ",\" 30\",\" 10\",\" " + file.way + "\",\" " +
            std::to_string(file.pulses + n) + "\",0,\" 0\"" + still + still + still +
            ",\" 0\",\" 0\",\" 0\",\"No " + std::to_string(n) + "\"\r\n";
  }
  return text;
}

std::string DeviceOf(const DevSettingRecord& device) {
  return device.Size + device.Speed + std::to_string(device.Stroke) + device.NewTypeWord;
}

/// All that a failed open leaves as it was.
std::string Everything() {
  std::string all = PosiTable.Name + frmPosi.Caption + (frmPosi.PosiChanged ? "*" : "");
  for (const int number : {int{AppState.PosiFirstNo}, int{AppState.PosiLastNo},
                           int{AppState.AxisCount}, MaskOfMuko(AppState.AxisMuko)}) {
    all += std::to_string(number) + " ";
  }
  for (int axis = 0; axis < kAxes; ++axis) {
    all += DeviceOf(DevSetting[axis]) + DeviceOf(DevSettei[axis]) +
           std::to_string(AppState.StrokePulse[axis]) + frmPosi.lblDeviceType[axis]->Caption +
           frmPosi.lblAge[axis]->Caption;
  }
  for (int row = 0; row < frmPosi.flgdData.Rows(); ++row) {
    for (int col = 0; col < kPosiColumns; ++col) all += frmPosi.flgdData.Text(row, col) + ",";
  }
  return all;
}

class OpenTest : public FlowTest {
 protected:
  /// Online, with a table of positions 3 to 5 that the user has changed.
  void SetUp() override {
    StartOnline();
    for (int axis = 0; axis < kAxes; ++axis) {
      own.devices[axis] = frmPosi.lblDeviceType[axis]->Caption;
    }
    ReadRange(3, 5);
    frmPosi.flgdData.TypeInto(RowOfPosition(4), kComment, "mine");
    Forget();
  }
  void Open(const std::string& bytes) {
    virt.files.Put(kPath, bytes);
    forms.file_answers.emplace_front(kPath);
    if (frmPosi.PosiChanged) forms.answers = {MsgAnswer::No};
    frmPosi.cmdPosiOpen.Press();
    EXPECT_EQ(forms.focus, &frmPosi.flgdData);
    EXPECT_EQ(port.sent, "") << "a file is no matter of the line";
  }
  void Open(const FileText& file) { Open(Bytes(file)); }
  /// Its strokes have been taken when it turns out that an axis has no device.
  void ChooseParaFileWithoutDevices() {
    const ParamSetRecord good = ParamSet;
    ParamSet.OneAxis = 15;
    ParamSet.Actuator[0] = " 28H200";
    ParamSet.AxisLead.fill(6);
    ParamSet.AxisPulse.fill(400);
    ParamSet.AxisStroke.fill(12345);
    EXPECT_EQ(WriteParaFile(kParaPath), 0);
    ParamSet = good;
    forms.file_answers = {kParaPath};
  }
  FileText own;  ///< a file of the devices in use
};

TEST_F(OpenTest, AFileReplacesTheTable) {
  for (const bool mm : {false, true}) {
    AppState.DispMmUnit = mm;
    own.numbers = {5, 6, 7};
    own.pulses += 10;
    Open(own);
    EXPECT_TRUE(asked.empty()) << "the devices are the same";
    EXPECT_EQ(frmPosi.Caption, "Position Data-[job]");
    EXPECT_FALSE(frmPosi.PosiChanged);
    EXPECT_EQ(OperationRange(), (PosiRange{5, 7}));
    EXPECT_EQ(Cell(6, kPosi) + Cell(6, kAcc), mm ? "   5.130100" : "1016100");
    EXPECT_EQ(frmPosi.lblAge1.Caption, "(New)");
    frmPosi.cmdPosiSave.Press();
    EXPECT_EQ(virt.files.Content(kPath), Bytes(own)) << "saved again it is the same file";
  }
  EXPECT_EQ(Boxes(), Texts{Text(6450)});
  for (const MsgAnswer answer : {MsgAnswer::No, MsgAnswer::Yes}) {
    virt.files.Put(kPath, std::string(answer == MsgAnswer::No ? 5 << 20 : 9, ' '));
    frmPosi.PosiChanged = True;
    forms.answers = {answer};
    frmPosi.cmdPosiSave.Press();
    EXPECT_EQ(Boxes(), Texts{Text(7193, "job.qvd")});
    EXPECT_EQ(virt.files.Content(kPath) == Bytes(own), answer == MsgAnswer::Yes);
    EXPECT_EQ(frmPosi.PosiChanged, answer == MsgAnswer::No);
  }
  own.way = "9";
  Open(own);
  EXPECT_EQ(Boxes(), Texts{Text(7195, "5-7")});
}

TEST_F(OpenTest, WhateverFailsEverythingIsAsItWas) {
  const auto with_device = [this](const std::string& device) {
    FileText file = own;
    device.empty() ? file.devices.fill("") : void(file.devices[0] = device);
    return Bytes(file);
  };
  FileText other_mode = own;
  other_mode.mode = "PRG MODE";
  const std::string otherwise = with_device("QV- 28H-200_");
  // The list lacks the device, which shows only after the common values have been taken.
  const auto short_list = [&] {
    virt.files.Put("/program/tr7nqvstpr.lst",
                   "\"QV-R7\",\"QV-STDPRM\"\r\n1,13\r\n"
                   "\" 20L-010\",192,40,10,5,5,1,960,2,192,15,0,\" 20L010\"\r\n");
  };
  const auto no_para = [&] { forms.file_answers = {std::nullopt}; };
  const auto no_actuator = [&] { ChooseParaFileWithoutDevices(); };
  const struct {
    const char* what;
    std::string bytes;
    std::string box;
    int choice = -2;  ///< -2: the devices are not asked about
    std::function<void()> prepare = [] {};
  } rows[] = {
      {"wrong magic", "\"QV-R8\"\r\n", Text(21) + "\n" + Text(20)},
      {"cut short", Bytes(own).substr(0, 300),
       Text(484) + "\n\n" + Text(6321, "6", Text(6452, "2"))},
      {"other mode", Bytes(other_mode), Text(330) + "\n" + Text(331)},
      {"unknown device", with_device("QV- 28L-333_"), Text(4) + "\n" + Text(5)},
      {"no device on any axis", with_device(""), Text(4) + "\n" + Text(5), 1},
      {"choice cancelled", otherwise, Text(367), -1},
      {"no standard parameters", otherwise, Text(36), 1, short_list},
      {"no parameter file chosen", otherwise, Text(367), 2, no_para},
      {"parameters without a device", otherwise, Text(4) + "\n" + Text(5), 2, no_actuator},
  };
  const ParamSetRecord params = ParamSet;
  const std::string before = Everything();
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    forms.file_answers.clear();
    row.prepare();
    if (row.choice > -2) Choose({row.choice});
    asked.clear();
    Open(row.bytes);
    EXPECT_TRUE(forms.LastBox().starts_with(row.box)) << forms.LastBox();
    EXPECT_EQ(asked.size(), row.choice > -2 ? 1u : 0u);
    EXPECT_EQ(Everything(), before);
    EXPECT_EQ(ParamSet, params);
  }
}

// Devices that differ.

TEST_F(OpenTest, WithTheDevicesInUse) {
  const FileText in_use = own;
  own.words = "\"OLD\",\"OLD\",\"OLD\",\"OLD\"\r\n";
  own.devices[0] = "QV- 28H-200E";
  own.devices[3] = "";
  Choose({0});
  Open(own);
  EXPECT_EQ(asked, Texts{Text(44)});
  EXPECT_EQ(frmPosi.lblAge1.Caption, "(New)") << "the file's words are of other devices";
  EXPECT_FALSE(AppState.AxisMuko[3]);
  frmPosi.cmdPosiSave.Press();
  EXPECT_EQ(virt.files.Content(kPath), Bytes(in_use)) << "saved with the devices in use";
}

TEST_F(OpenTest, WithTheDevicesOfTheFile) {
  ParaFlags.AxisMaskFixed = True;
  ParaFlags.AxisMask = 15;
  own.devices = {"QV- 28H-200E", "QV-E35L-100 ", "", ""};
  own.pulses = 12000;
  Choose({1});
  Open(own);
  EXPECT_EQ(AppState.AxisCount, 2);
  EXPECT_TRUE(DeviceOf(DevSetting[0]).starts_with(" 28H200"));
  EXPECT_TRUE(DevSetting[0].WithPG && DevSetting[0].NewType);
  EXPECT_EQ(ParamSet.OneAxis, 3);
  EXPECT_EQ(AppState.StrokePulse[0], ParamSet.AxisStroke[0]);
  EXPECT_EQ(frmPosi.lblDeviceType4.Caption + frmPosi.lblAge4.Caption, "");
  EXPECT_EQ(frmPosi.flgdData.ColWidth(AxisBase(2) + kPosi), 0);
  EXPECT_EQ(virt.settings.Get("Settings", "DevSpeed1", "-"), "H");
  // The same file is now of the devices in use; an axis that was out of use may come back.
  Open(own);
  EXPECT_EQ(asked.size(), 1u);
  own.devices[2] = "QV- 35H-300_";
  Choose({1});
  Open(own);
  EXPECT_FALSE(AppState.AxisMuko[2]);
  EXPECT_TRUE(DeviceOf(DevSetting[2]).starts_with(" 35H300"));
  EXPECT_NE(frmPosi.flgdData.ColWidth(AxisBase(2) + kPosi), 0);
}

TEST_F(OpenTest, WithTheDevicesOfAParameterFile) {
  const ParamSetRecord before = ParamSet;
  for (const int axis : {0, 1}) {
    ParamSet.Actuator[axis] = axis == 0 ? " 28H200" : " 35H300";
    ParamSet.AxisLead[axis] = 6;
    ParamSet.AxisPulse[axis] = 400;
  }
  ParamSet.AxisStroke[0] = 13333;
  ParamSet.OneAxis = 3;
  ASSERT_EQ(WriteParaFile(kParaPath), 0);
  ParamSet = before;
  own.devices[0] = "QV- 28L-050_";
  Choose({2});
  forms.file_answers = {std::string(kParaPath)};
  Open(own);
  EXPECT_TRUE(ParamSet.OneAxis == 3 && AppState.AxisMuko[2]);
  EXPECT_TRUE(DeviceOf(DevSetting[0]).starts_with(" 28H200")) << "the parameter file's, not ours";
  EXPECT_EQ(AppState.StrokePulse[0], 13333);
  EXPECT_EQ(frmPosi.lblDeviceType1.Caption, "QV- 28H-200_");
}

}  // namespace
}  // namespace tr7
