// Devices by choice or from a parameter file, and the standard values of the parameter view.

#include "para/change_device.h"

#include <functional>
#include <string>
#include <vector>

#include "device/dev_setting.h"
#include "device/device_cascade.h"
#include "forms/frm_device.h"
#include "forms/frm_parameta2.h"
#include "para/para_file.h"
#include "para/param_set.h"
#include "posi/posi_table.h"
#include "state/text_file.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

class ChangeDeviceTest : public FlowTest {
 protected:
  /// What the user does in `frmDevice2`, visit by visit.
  void InDialog(std::vector<std::function<void()>> visits) {
    visits_ = std::move(visits);
    forms.on_modal["frmDevice2"] = [this](View&) {
      if (visits_.empty()) return;  // counts as unanswered
      const auto visit = visits_.front();
      visits_.erase(visits_.begin());
      visit();
    };
  }
  static void ChooseHigh42() {
    Pick(frmDevice2.comboDeviceSize[0], " 42");
    Pick(frmDevice2.comboDeviceSpeed[0], "H");
    Pick(frmDevice2.comboDeviceStroke[0], "200");
    frmDevice2.cmdDeviceSet.Press();
  }
  static void Cancel() { frmDevice2.cmdDeviceCancel.Press(); }
  static void Back() { frmDevice2.cmdDeviceBack.Press(); }
  static std::string Device(int axis) {
    const DevSettingRecord& device = DevSetting[axis];
    return device.Size + device.Speed + std::to_string(device.Stroke);
  }

 private:
  std::vector<std::function<void()>> visits_;
};

TEST_F(ChangeDeviceTest, AChosenDeviceComesIntoUse) {
  StartOffline();
  Forget();
  Choose({0});
  InDialog({[] {
    frmDevice2.chkDevPgUse[1].Set(true);
    ChooseHigh42();
  }});
  frmMain.mnuSettingDevice.Press();
  EXPECT_EQ(asked, Texts{Text(41)});
  EXPECT_EQ(frmSelection.Caption, Text(471));
  EXPECT_EQ(frmSelection.optChoice1.Caption, Text(42));
  EXPECT_EQ(frmSelection.optChoice2.Caption, Text(43));
  EXPECT_EQ(Boxes(), Texts{});
  EXPECT_EQ(Device(0), " 42H200");
  EXPECT_EQ(DevSetting[0].Lead, 8);
  EXPECT_TRUE(DevSetting[1].WithPG && DevSetting[0].NewType && DevSetting[0].SeriesOk);
  EXPECT_FALSE(DevSetting[0].WithPG);
  EXPECT_EQ(AppState.MaxPulse[0], 10000);
  EXPECT_EQ(frmPosi.lblDeviceType[0]->Caption, "QV- 42H-200_");
  EXPECT_EQ(frmPosi.lblDeviceType[1]->Caption, "QV- 28L-100E");
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelScale1], "<1>1mm = 50.000Pulse");
  for (const auto& [key, value] : std::initializer_list<std::pair<const char*, const char*>>{
           {"DevSize1", " 42"}, {"DevStroke1", "200"}, {"DevLead1", "8"}, {"WithPG2", "1"}}) {
    EXPECT_EQ(virt.settings.Get("Settings", key, ""), value) << key;
  }
  EXPECT_EQ(port.sent, "");
  ExpectOffline();
}

TEST_F(ChangeDeviceTest, OtherAxesComeWithTheDevices) {
  StartOffline();
  Choose({0});
  forms.answers = {MsgAnswer::Yes};
  InDialog({[] {
    frmDevice2.comboAxisSelect.Pick(1);
    ChooseHigh42();
  }});
  EXPECT_EQ(Change_Device(), 0);
  EXPECT_EQ(AppState.AxisMuko, (AxisArray<Bool16>{False, False, True, True}));
  EXPECT_EQ(AppState.AxisCount, 2);
  EXPECT_EQ(ParamSet.OneAxis, 3);
  EXPECT_EQ(frmPosi.lblDeviceType[2]->Caption, "");
}

TEST_F(ChangeDeviceTest, WhoeverLeavesKeepsWhatHeHad) {
  const struct {
    const char* what;
    std::vector<int> choices;
    std::vector<std::function<void()>> visits;
    std::vector<std::optional<std::string>> files;
    std::size_t asked;
    int result;
    const char* device;
  } rows[] = {
      {"the choice is cancelled", {-1}, {}, {}, 1, 1, " 28L100"},
      {"the dialogue is cancelled", {0}, {Cancel}, {}, 1, 1, " 28L100"},
      {"back, then cancelled", {0, -1}, {Back}, {}, 2, 1, " 28L100"},
      {"no file, then cancelled", {1, -1}, {}, {std::nullopt}, 2, 1, " 28L100"},
      {"no such file, then cancelled", {1, -1}, {}, {"/nowhere.pmt"}, 2, 1, " 28L100"},
      {"back, and in again", {0, 0}, {Back, ChooseHigh42}, {}, 2, 0, " 42H200"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    if (!frmMain.Loaded) StartOffline();
    const auto muko = AppState.AxisMuko;
    Forget();
    Choose(row.choices);
    InDialog(row.visits);
    forms.file_answers.assign(row.files.begin(), row.files.end());
    EXPECT_EQ(Change_Device(), row.result);
    EXPECT_EQ(asked.size(), row.asked);
    EXPECT_EQ(AppState.AxisMuko, muko);
    EXPECT_EQ(Device(0), row.device);
  }
}

TEST_F(ChangeDeviceTest, AFileThatCannotBeReadLeadsBackToTheQuestion) {
  StartOffline();
  virt.files.Put("/bad.pmt", "\"something else\"\r\n");
  Forget();
  Choose({1, -1});
  forms.file_answers = {"/bad.pmt"};
  EXPECT_EQ(Change_Device(), 1);
  EXPECT_EQ(asked.size(), 2u);
  EXPECT_TRUE(forms.LastBox().starts_with(Text(681)));
  EXPECT_EQ(Device(0), " 28L100");
}

TEST_F(ChangeDeviceTest, AParameterFileWhoseDevicesCannotServeIsRefusedWithItsReason) {
  StartOffline();
  const ParamSetRecord good = ParamSet;
  const struct {
    std::function<void()> spoil;
    std::string reason;
  } rows[] = {{[] { ParamSet.OneAxis = 16; }, Text(6336)},
              {[] { ParamSet.AxisLead[1] = 0; }, Text(6337, "AXIS2")},
              {[] { ParamSet.AxisPulse[3] = 0; }, Text(6337, "AXIS4")}};
  for (const auto& row : rows) {
    row.spoil();
    ASSERT_EQ(WriteParaFile("/bad.pmt"), 0);
    ParamSet = good;
    Forget();
    Choose({1, -1});
    forms.file_answers = {"/bad.pmt"};
    EXPECT_EQ(Change_Device(), 1);
    EXPECT_EQ(Boxes(), Texts{Text(681) + "\n\n" + row.reason});
    EXPECT_EQ(ParamSet, good);
    EXPECT_EQ(DevSetting[1].Lead, 2);
    EXPECT_EQ(virt.settings.Get("Settings", "DevLead2", "2"), "2");
  }
}

TEST_F(ChangeDeviceTest, AParameterFileBringsItsAxesAndDevices) {
  StartOffline();
  // The file is what the tool saves: two axes, the first with a PG.
  Choose({0});
  forms.answers = {MsgAnswer::Yes};
  InDialog({[] {
    frmDevice2.comboAxisSelect.Pick(1);
    frmDevice2.chkDevPgUse[0].Set(true);
    ChooseHigh42();
  }});
  ASSERT_EQ(Change_Device(), 0);
  ASSERT_EQ(WriteParaFile("/two.pmt"), 0);
  Choose({0});
  forms.answers = {MsgAnswer::Yes};
  InDialog({[] {
    frmDevice2.comboAxisSelect.Pick(3);
    Pick(frmDevice2.comboDeviceSize[0], " 20");
    frmDevice2.cmdDeviceSet.Press();
  }});
  ASSERT_EQ(Change_Device(), 0);
  ASSERT_EQ(AppState.AxisMuko[3], False);
  Forget();
  Choose({1});
  forms.file_answers = {"/two.pmt"};
  EXPECT_EQ(Change_Device(), 0);
  EXPECT_EQ(Device(0), " 42H200");
  EXPECT_TRUE(DevSetting[0].WithPG);
  EXPECT_FALSE(DevSetting[1].WithPG);
  EXPECT_EQ(AppState.AxisMuko, (AxisArray<Bool16>{False, False, True, True}));
  EXPECT_EQ(AppState.MaxPulse[0], 10000);
}

TEST_F(ChangeDeviceTest, ADeviceWithoutStandardRowLeadsBackToTheQuestion) {
  StartOffline();
  PutList("nqvdevice.lst", "1\r\n\" 99L-123\",2,400,0,0\r\n");
  Forget();
  Choose({0, -1});
  InDialog({[] { frmDevice2.cmdDeviceSet.Press(); }});
  EXPECT_EQ(Change_Device(), 1);
  EXPECT_EQ(Boxes(), Texts{Text(36) + "\n\n" + Text(6340, "AXIS1", " 99L-123")});
  EXPECT_EQ(asked.size(), 2u);
  EXPECT_EQ(Device(0), " 28L100");
}

TEST_F(ChangeDeviceTest, AStandardRowWithoutDeviceNameChangesNothing) {
  StartOffline();
  PutList("tr7nqvstpr.lst",
          "\"QV-R7\",\"QV-STDPRM\"\r\n1,13\r\n"
          "\" 28L-100\",400,60,10,5,5,1,20000,2,400,15,0,\"\"\r\n");
  Forget();
  Choose({0});
  InDialog({[] { frmDevice2.cmdDeviceSet.Press(); }});
  EXPECT_EQ(Change_Device(), 1);
  EXPECT_EQ(Boxes(), Texts{Text(4) + "\n" + Text(5)});
  EXPECT_EQ(Device(0), " 28L100");
  EXPECT_FALSE(DevSetting[0].NotChosen);
}

TEST_F(ChangeDeviceTest, LoadedPositionsFollow) {
  for (const bool mm : {false, true}) {
    SCOPED_TRACE(mm ? "mm" : "pulses");
    virt.settings.Set("Settings", "DispMmUnit", mm ? "1" : "0");
    StartOnline();
    ReadRange(1, 3);
    const double mm_before = PosiTable.PosiMm[0][2];
    const std::int32_t pulses_before = PosiTable.PosiPulse[0][2];
    Forget();
    if (mm) forms.answers = {MsgAnswer::Ok};
    Choose({0});
    InDialog({[] {
      Pick(frmDevice2.comboDeviceSize[0], " 50");
      Pick(frmDevice2.comboDeviceStroke[0], "200");
      frmDevice2.cmdDeviceSet.Press();
    }});
    EXPECT_EQ(Change_Device(), 0);
    EXPECT_EQ(Boxes(), mm ? Texts{Text(408) + "\n" + Text(409)} : Texts{});
    EXPECT_EQ(PosiTable.PosiMm[0][2] == mm_before, mm);
    EXPECT_EQ(PosiTable.PosiPulse[0][2] == pulses_before, !mm);
    ResetState();
    AppState.LanguageNo = 2;
    AppState.LangOffset = 10000;
  }
}

TEST_F(ChangeDeviceTest, PositionsBeyondTheNewStrokeAreTold) {
  StartOnline();
  ReadRange(1, 40);
  Forget();
  forms.answers = {MsgAnswer::Ok};
  forms.on_modal["frmSyogoKekka"] = [](View& view) { view.Visible = false; };
  const auto pulses = PosiTable.PosiPulse;
  Choose({0});
  InDialog({[] {
    Pick(frmDevice2.comboDeviceSize[0], " 20");
    Pick(frmDevice2.comboDeviceStroke[0], "10");
    frmDevice2.cmdDeviceSet.Press();
  }});
  EXPECT_EQ(Change_Device(), 0);
  EXPECT_EQ(forms.LastBox(), Text(1526));
  EXPECT_EQ(PosiTable.PosiPulse, pulses);
}

// The parameter view's initial values.

class IniPrmTest : public ChangeDeviceTest {
 protected:
  void Open() {
    StartOffline();
    ShowView(frmParameta2);
    ParamSet = ParamSetRecord{};
    Forget();
  }
};

TEST_F(IniPrmTest, StandardValuesOfTheChosenDeviceAreShown) {
  Open();
  InDialog({[] {
    EXPECT_TRUE(frmDevice2.cmdDeviceBack.Visible && frmDevice2.cmdDeviceCancel.Visible);
    EXPECT_TRUE(AppState.ComBusy);
    ChooseHigh42();
  }});
  ParaFlags.AxisMaskFixed = True;
  ParaFlags.AxisMask = 1;
  frmParameta2.cmdIniPrm.Press();
  EXPECT_EQ(frmParameta2.txtAxisStroke[0].Text, "10000");
  EXPECT_EQ(frmParameta2.txtAxisLead[0].Text, "8");
  EXPECT_EQ(frmParameta2.txtOneAxis.Text, "15") << "the mask is that of the axes in use";
  EXPECT_EQ(Device(0), " 28L100") << "what is in use stays until the parameters are";
}

TEST_F(IniPrmTest, EveryRefusalLeavesTheParameters) {
  const struct {
    const char* what;
    std::function<void()> visit;
    bool mm_table;
  } rows[] = {{"cancel", Cancel, false},
              {"back", Back, false},
              {"the position view's warning", ChooseHigh42, true}};
  Open();
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    AppState.DispMmUnit = row.mm_table;
    AppState.PosiFirstNo = row.mm_table ? 1 : 0;
    if (row.mm_table) forms.answers = {MsgAnswer::Yes, MsgAnswer::Cancel};
    InDialog({[&] {
      if (row.mm_table) frmDevice2.comboAxisSelect.Pick(0);
      row.visit();
    }});
    frmParameta2.cmdIniPrm.Press();
    EXPECT_EQ(ParamSet, ParamSetRecord{});
    EXPECT_EQ(AppState.AxisMuko, (AxisArray<Bool16>{}));
  }
  EXPECT_EQ(forms.LastBox(), Text(408) + "\n" + Text(409));
}

TEST_F(IniPrmTest, ValuesThatFailGoBackWithTheAxes) {
  Open();
  virt.files.Put(ProgramFile("tr7nqvstpr.lst"), "\"QV-R7\",\"QV-STDPRM\"\r\n0,13\r\n");
  ParamSet.SmTimer = 77;
  const ParamSetRecord before = ParamSet;
  forms.answers = {MsgAnswer::Yes};
  InDialog({[] {
    frmDevice2.comboAxisSelect.Pick(1);
    frmDevice2.cmdDeviceSet.Press();
  }});
  frmParameta2.cmdIniPrm.Press();
  EXPECT_EQ(forms.LastBox(), Text(36) + "\n\n" + Text(6340, "AXIS1", " 28L-100"));
  EXPECT_EQ(ParamSet, before);
  EXPECT_EQ(AppState.AxisMuko, (std::array<Bool16, kAxes>{}));
}

TEST_F(IniPrmTest, OtherAxesChangeTheColumnsOfBothViews) {
  Open();
  forms.answers = {MsgAnswer::Yes};
  InDialog({[] {
    frmDevice2.comboAxisSelect.Pick(1);
    frmDevice2.cmdDeviceSet.Press();
  }});
  frmParameta2.cmdIniPrm.Press();
  EXPECT_EQ(frmParameta2.txtOneAxis.Text, "3");
  EXPECT_FALSE(frmParameta2.txtAxisStroke[2].Enabled);
  EXPECT_EQ(frmParameta2.txtAxisStroke[2].Text, "");
  EXPECT_EQ(frmPosi.lblDeviceType[2]->Caption, "");
}

}  // namespace
}  // namespace tr7
