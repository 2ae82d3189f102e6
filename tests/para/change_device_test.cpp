// Devices by choice or from a parameter file, and the standard values of the parameter view.

#include "para/change_device.h"

#include "device/device_cascade.h"
#include "para/para_file.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using Visits = std::vector<std::function<void()>>;

constexpr const char* kStdList = "tr7nqvstpr.lst";

void Ok() { frmDevice2.cmdDeviceSet.Press(); }
void Cancel() { frmDevice2.cmdDeviceCancel.Press(); }
void Close() { CloseView(frmDevice2, CloseReason::ControlMenu); }
void Back() { frmDevice2.cmdDeviceBack.Press(); }
void ChooseHigh42() {
  PickDevice(frmDevice2, 0, " 42", "H", "200");
  Ok();
}
void ChooseTwoAxes() {
  frmDevice2.comboAxisSelect.Pick(1);
  ChooseHigh42();
}

std::string Device(const DevSettingRecord& device) {
  return device.Size + device.Speed + std::to_string(device.Stroke);
}

class ChangeDeviceTest : public FlowTest {
 protected:
  void Start() {
    StartOffline();
    Forget();
  }
  /// Changes devices with these answers to the question, and these visits to the dialogue.
  int Change(std::vector<int> choices, Visits visits = {}) {
    Choose(std::move(choices));
    InDialog("frmDevice2", std::move(visits));
    return Change_Device();
  }
};

TEST_F(ChangeDeviceTest, AChosenDeviceComesIntoUse) {
  Start();
  Choose({0});
  InDialog("frmDevice2", {[] {
             frmDevice2.chkDevPgUse[1].Set(true);
             ChooseHigh42();
           }});
  frmMain.mnuSettingDevice.Press();
  EXPECT_EQ(asked, Texts{Text(41)});
  EXPECT_EQ(Boxes(), Texts{});
  EXPECT_EQ(Device(DevSetting[0]), " 42H200");
  EXPECT_TRUE(DevSetting[1].WithPG && DevSetting[0].NewType && DevSetting[0].SeriesOk);
  EXPECT_FALSE(DevSetting[0].WithPG);
  EXPECT_EQ(AppState.MaxPulse[0], 10000);
  EXPECT_EQ(frmPosi.lblDeviceType[1]->Caption, "QV- 28L-100E");
  EXPECT_EQ(virt.settings.Get("Settings", "DevLead1", ""), "8");
  EXPECT_EQ(port.sent, "");
}

TEST_F(ChangeDeviceTest, WhoeverLeavesKeepsWhatHeHad) {
  const struct {
    const char* what;
    std::vector<int> choices;
    Visits visits;
    std::deque<std::optional<std::string>> files;
    std::size_t asked;
    int result;
    const char* device;
  } rows[] = {
      {"the choice is cancelled", {-1}, {}, {}, 1, 1, " 28L100"},
      {"the dialogue is cancelled", {0}, {Cancel}, {}, 1, 1, " 28L100"},
      {"or closed", {0}, {Close}, {}, 1, 1, " 28L100"},
      {"back, then cancelled", {0, -1}, {Back}, {}, 2, 1, " 28L100"},
      {"no file, then cancelled", {1, -1}, {}, {std::nullopt}, 2, 1, " 28L100"},
      {"no such file, then cancelled", {1, -1}, {}, {"/nowhere.pmt"}, 2, 1, " 28L100"},
      {"back, and in again", {0, 0}, {Back, ChooseHigh42}, {}, 2, 0, " 42H200"},
  };
  Start();
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    Forget();
    forms.file_answers = row.files;
    EXPECT_EQ(Change(row.choices, row.visits), row.result);
    EXPECT_EQ(asked.size(), row.asked);
    EXPECT_EQ(AppState.AxisMuko, MukoOfMask(15));
    EXPECT_EQ(Device(DevSetting[0]) + Device(DevSettei[0]), std::string(row.device) + row.device);
  }
}

TEST_F(ChangeDeviceTest, AParameterFileBringsItsAxesAndDevices) {
  Start();
  // The file is what the tool saves: two axes, the first with a PG.
  forms.answers = {MsgAnswer::Yes, MsgAnswer::Yes};
  const auto two_axes = [] {
    frmDevice2.chkDevPgUse[0].Set(true);
    ChooseTwoAxes();
  };
  const auto four_axes = [] {
    frmDevice2.comboAxisSelect.Pick(3);
    PickDevice(frmDevice2, 0, " 20");
    Ok();
  };
  ASSERT_EQ(Change({0}, {two_axes}), 0);
  EXPECT_EQ(frmPosi.lblDeviceType[2]->Caption, "");
  ASSERT_EQ(WriteParaFile("/two.pmt"), 0);
  ASSERT_EQ(Change({0}, {four_axes}), 0);
  ASSERT_EQ(AppState.AxisMuko, MukoOfMask(15));
  forms.file_answers = {"/two.pmt"};
  EXPECT_EQ(Change({1}), 0);
  EXPECT_EQ(Device(DevSetting[0]), " 42H200");
  EXPECT_TRUE(DevSetting[0].WithPG && !DevSetting[1].WithPG);
  EXPECT_EQ(AppState.AxisMuko, MukoOfMask(3));
  EXPECT_EQ(AppState.MaxPulse[0], 10000);
  // One whose devices cannot serve is refused with its reason.
  const ParamSetRecord good = ParamSet;
  ParamSet.AxisLead[1] = 0;
  ASSERT_EQ(WriteParaFile("/bad.pmt"), 0);
  ParamSet = good;
  Forget();
  forms.file_answers = {"/bad.pmt"};
  EXPECT_EQ(Change({1, -1}), 1);
  EXPECT_EQ(Boxes(), Texts{Text(681) + "\n\n" + Text(6337, "AXIS2")});
  EXPECT_TRUE(ParamSet == good && DevSetting[1].Lead > 0);
}

// The parameter view's initial values.

class IniPrmTest : public ChangeDeviceTest {
 protected:
  void Press(const std::function<void()>& visit) {
    InDialog("frmDevice2", {visit});
    frmParameta2.cmdIniPrm.Press();
  }
  void Open() {
    Start();
    ShowView(frmParameta2);
    ParamSet = ParamSetRecord{};
  }
};

TEST_F(IniPrmTest, StandardValuesOfTheChosenDevicesAreShown) {
  Open();
  ParaFlags.AxisMaskFixed = True;
  ParaFlags.AxisMask = 1;
  Press(ChooseHigh42);
  EXPECT_EQ(frmParameta2.txtAxisLead[0].Text, "8");
  EXPECT_EQ(frmParameta2.txtOneAxis.Text, "15") << "the mask is that of the axes in use";
  EXPECT_EQ(Device(DevSetting[0]), " 28L100") << "what is in use stays until the parameters are";
  forms.answers = {MsgAnswer::Yes};
  Press(ChooseTwoAxes);
  EXPECT_EQ(frmParameta2.txtOneAxis.Text, "3");
  EXPECT_FALSE(frmParameta2.txtAxisStroke[2].Enabled);
  EXPECT_EQ(frmParameta2.txtAxisStroke[2].Text, "");
  EXPECT_EQ(frmPosi.lblDeviceType[2]->Caption, "");
}

TEST_F(IniPrmTest, WhatFailsOrIsRefusedLeavesParametersAndAxes) {
  Open();
  ParamSet.SmTimer = 77;
  const ParamSetRecord before = ParamSet;
  PutList(kStdList, "\"QV-R7\",\"QV-STDPRM\"\r\n0,13\r\n");
  for (const auto& leave : {Cancel, Back}) Press(leave);
  EXPECT_EQ(Boxes(), Texts{});
  forms.answers = {MsgAnswer::Yes};
  Press(ChooseTwoAxes);
  EXPECT_EQ(forms.LastBox(), Text(36) + "\n\n" + Text(6340, "AXIS1", " 42H-200"));
  EXPECT_EQ(ParamSet, before);
  EXPECT_EQ(AppState.AxisMuko, MukoOfMask(15));
}

}  // namespace
}  // namespace tr7
