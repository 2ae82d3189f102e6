#include <algorithm>
#include <string>

#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "device/device_list.h"
#include "forms/frm_device.h"
#include "forms/frm_main.h"
#include "para/para_after_device.h"
#include "para/para_columns.h"
#include "para/para_content.h"
#include "para/para_fields.h"
#include "para/para_show.h"
#include "para/std_lists.h"
#include "state/text.h"
#include "state/views.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

constexpr std::int64_t kMs = 1000;

/// The open view over a set from the standard lists: " 28L-100", lead 2, 400 pulses.
class ParaView : public StateTest {
 protected:
  ParaView() {
    for (DevSettingRecord& device : DevSettei) SetDevice(device, " 28", "L", 100);
    EXPECT_EQ(IniParaFromStd(), 0);
    frmMain.mnuViewPara.Click();
  }
  static std::string Panel() { return frmMain.sbStatusBar.Panels[kPanelError]; }
  /// Types and leaves the field.
  static void Enter(TextBox& box, const std::string& typed) {
    if (box.GotFocus) box.GotFocus();
    box.Type(typed);
    Leave(box);
  }
  static void Leave(TextBox& box) {
    if (box.LostFocus) box.LostFocus();
  }
  void Unlock() {
    forms.answers.push_back(MsgAnswer::Yes);
    f.chkTokuParaChange.Set(true);
  }
  FrmParameta2& f = frmParameta2;
};

TEST_F(ParaView, EveryFieldHasItsLimits) {
  const struct {
    const char* field;
    bool per_axis;
    int length;
    double low, high;  ///< low above high: no range
  } rows[] = {
      {"txtHomeOffset", true, 5, 1, 65535},    {"txtHomeVel", true, 3, 1, 60},
      {"txtAxisStroke", true, 6, 0, 262143},   {"txtPgAlarm", true, 5, 5, 65535},
      {"txtAutoStartPrgNo", false, 3, 0, 255}, {"txtHomeOut", false, 2, 1, 0},
  };
  Unlock();
  forms.on_message_box = [](const MessageBoxCall&) { return MsgAnswer::Cancel; };
  for (const auto& row : rows) {
    for (int axis = 1; axis <= (row.per_axis ? 4 : 1); ++axis) {
      const std::string name = row.field + (row.per_axis ? std::to_string(axis) : std::string());
      auto* box = dynamic_cast<TextBox*>(f.Find(name));
      ASSERT_TRUE(box) << name;
      box->Type("12a.-3 4567");
      EXPECT_EQ(box->Text, std::string("1234567").substr(0, static_cast<std::size_t>(row.length)))
          << name;
      const std::string longest(static_cast<std::size_t>(row.length), '9');
      const bool has_range = row.low <= row.high;
      const auto kept = [&](double value) {
        forms.beeps = 0;
        const std::string text = std::to_string(static_cast<int>(value));
        Enter(*box, text);
        EXPECT_EQ(forms.beeps, box->Text.empty() ? 1 : 0) << name << " " << text;
        EXPECT_TRUE(box->Text.empty() || box->Text == text) << name << " " << text;
        return !box->Text.empty();
      };
      EXPECT_EQ(kept(std::stod(longest)), !has_range || std::stod(longest) <= row.high) << name;
      if (!has_range) continue;
      EXPECT_TRUE(kept(row.low)) << name;
      EXPECT_TRUE(kept(row.high)) << name;
      if (row.low > 0) {
        EXPECT_FALSE(kept(row.low - 1)) << name;
      }
      forms.beeps = 0;
      Enter(*box, "");  // nothing typed is nothing to refuse
      EXPECT_EQ(forms.beeps, 0) << name;
    }
  }
}

TEST_F(ParaView, TheHomeOrderIsOneDigitFromOneToNine) {
  TextBox& box = f.txtHomeOrder[1];
  EXPECT_EQ(box.Text, "1");
  Enter(box, "0");
  EXPECT_EQ(box.Text, "");
  Enter(box, "98");
  EXPECT_EQ(box.Text, "9");
  box.Text = "0";  // as parameters may hold it
  Leave(box);
  EXPECT_EQ(box.Text, "0");
  EXPECT_EQ(forms.beeps, 0);
}

TEST_F(ParaView, TheStatusBarTellsTheRangeAndARefusal) {
  f.txtHomePush[0].GotFocus();
  EXPECT_EQ(Panel(), "Input range: 1 to 255");
  f.txtHomePush[0].Type("999");
  f.txtHomePush[0].LostFocus();
  const std::string refusal = "AXIS1 PUSH  Home push: Input range: 1 to 255 (Ctrl+Z: back to 60)";
  EXPECT_EQ(Panel(), refusal);
  f.txtHomeVel[0].GotFocus();  // the refusal stays readable
  EXPECT_EQ(Panel(), refusal);
  f.txtHomeVel[0].LostFocus();
  EXPECT_EQ(Panel(), "");
  f.txtHomeOut.GotFocus();
  EXPECT_EQ(Panel(), "");
  f.txtMmZone1[0].GotFocus();
  EXPECT_EQ(Panel(), "Input range: 0 to 100");
  f.txtAxisMmStroke[0].GotFocus();
  EXPECT_EQ(Panel(), "Input range: 0 to 1310.715");
  AppState.AlarmOn = True;
  f.txtHomePush[0].GotFocus();
  EXPECT_EQ(Panel(), "Input range: 0 to 1310.715");  // an alarm in its place would stay
}

TEST_F(ParaView, UndoBringsBackWhatARefusedFieldHeld) {
  for (TextBox* box : {&f.txtHomePush[1], &f.txtAxisStroke[0], &f.txtMmZone1[2]}) {
    const std::string former = Trim(box->Text);
    EXPECT_FALSE(box->Undo()) << "nothing was refused";
    Enter(*box, "999999");
    Enter(*box, "999998");  // the emptied field is refused once more
    EXPECT_EQ(box->Text, "");
    EXPECT_TRUE(box->Undo());
    EXPECT_EQ(box->Text, former);
    Leave(*box);
    EXPECT_EQ(Trim(box->Text), former);
    EXPECT_FALSE(box->Undo());
  }
  EXPECT_EQ(f.txtAxisMmStroke[0].Text, "100.000");
  EXPECT_EQ(f.txtZoneSet1[2].Text, "100");
  Enter(f.txtHomePush[1], "999");
  ParametaHyoji();
  f.txtHomePush[1].Text.clear();
  EXPECT_FALSE(f.txtHomePush[1].Undo()) << "that was another set's";
}

TEST_F(ParaView, EnterGoesToTheNextFieldThatIsOn) {
  AppState.AxisMuko[3] = True;
  YukoJikuHyojiSettei();
  f.txtHomeOffset[0].Enter();
  EXPECT_EQ(forms.focus, &f.txtHomeOffset[1]);
  f.txtHomeOffset[2].Enter();
  EXPECT_EQ(forms.focus, &f.txtHomePush[0]);
  f.txtJogHighVel[2].Enter();
  EXPECT_EQ(forms.focus, &f.comboAxisAutoDrv[0]);
  f.txtMmZone1[2].Enter();  // the pulses of the zones cannot be typed
  EXPECT_EQ(forms.focus, &f.txtMmZone2[0]);
  f.txtPushHoldTime[2].Enter();  // the locked group lies behind: from the start again
  EXPECT_EQ(forms.focus, &f.txtHomeOffset[0]);
}

TEST_F(ParaView, LengthsInMmAreRoundedToPulses) {
  const struct {
    const char* typed;
    const char* mm;
    const char* pulses;
  } rows[] = {{"100.123", "100.125", "20025"},
              {"99", " 99.000", "19800"},
              {"0", "  0.000", "0"},
              {"50.1239", " 50.125", "10025"},
              {".5", "  0.500", "100"}};
  for (const auto& row : rows) {
    Enter(f.txtAxisMmStroke[2], row.typed);
    EXPECT_EQ(f.txtAxisMmStroke[2].Text, row.mm) << row.typed;
    EXPECT_EQ(f.txtAxisStroke[2].Text, row.pulses) << row.typed;
  }
  // Exactly between two pulses the user's choice decides.
  f.txtAxisLead[2].Type("8");
  Enter(f.txtAxisMmStroke[2], "10.03");
  EXPECT_EQ(f.txtAxisStroke[2].Text, "501");
  AppState.MmRoundUp = True;
  Enter(f.txtAxisMmStroke[2], "10.01");
  EXPECT_EQ(f.txtAxisStroke[2].Text, "501");
  EXPECT_EQ(f.txtAxisMmStroke[2].Text, " 10.020");
}

TEST_F(ParaView, LengthsInMmDemandTheirInputs) {
  f.txtAxisLead[1].Type("");
  for (TextBox* box : {&f.txtAxisMmStroke[1], &f.txtMmZone1[1], &f.txtMmZone2[1]}) {
    forms.boxes.clear();
    Enter(*box, "10");
    EXPECT_EQ(forms.LastBox(), Text(694) + "\n" + Text(695)) << box->Name;
    EXPECT_EQ(box->Text, "");
    forms.boxes.clear();
    Leave(*box);  // an empty field demands nothing
    EXPECT_TRUE(forms.boxes.empty());
  }
  f.txtAxisLead[1].Type("2");
  f.txtAxisPulse[1].Type("");
  Enter(f.txtMmZone1[1], "10");
  EXPECT_EQ(forms.LastBox(), Text(694) + "\n" + Text(695));
  f.txtAxisPulse[1].Type("400");
  Enter(f.txtMmZone1[1], "10");
  EXPECT_EQ(forms.LastBox(), Text(696) + "\n" + Text(697));
  EXPECT_EQ(f.txtMmZone1[1].Text, "");
  EXPECT_EQ(forms.beeps, 0);
  AppState.AxisMuko[1] = True;
  YukoJikuHyojiSettei();
  forms.boxes.clear();
  f.txtMmZone1[1].Text = "10";
  Leave(f.txtMmZone1[1]);  // of an axis not in use: nothing happens
  EXPECT_TRUE(forms.boxes.empty());
  EXPECT_EQ(f.txtMmZone1[1].Text, "10");
}

TEST_F(ParaView, AZoneLiesWithinTheWholeMillimetresOfTheStroke) {
  Enter(f.txtAxisMmStroke[0], "99.5");
  const struct {
    const char* typed;
    bool good;
  } rows[] = {{"0", true}, {"99", true}, {"99.005", false}, {"99.5", false}, {"100", false}};
  for (const auto& row : rows) {
    for (std::size_t i = 1; i < 3; ++i) {
      forms.beeps = 0;
      TextBox& box = ParaMmFields()[i].MmBox(0);
      Enter(box, row.typed);
      EXPECT_EQ(box.Text.empty(), !row.good) << row.typed;
      EXPECT_EQ(ParaMmFields()[i].PulseBox(0).Text.empty(), !row.good) << row.typed;
      EXPECT_EQ(forms.beeps, row.good ? 0 : 1) << row.typed;
    }
  }
  // The field takes what the check of the whole set then refuses.
  Enter(f.txtMmZone1[0], "0.02");
  EXPECT_EQ(f.txtZoneSet1[0].Text, "4");
}

TEST_F(ParaView, PulsesAndScaleKeepTheLengthsInStep) {
  f.txtAxisStroke[0].Type("12345");  // seen in mm at once: what counts is the mm field
  EXPECT_EQ(f.txtAxisMmStroke[0].Text, " 61.725");
  Enter(f.txtAxisLead[0], "4");
  EXPECT_EQ(f.txtAxisMmStroke[0].Text, " 61.725");
  EXPECT_EQ(f.txtAxisStroke[0].Text, "6172");
  Enter(f.txtAxisLead[0], "2");
  EXPECT_EQ(f.txtAxisStroke[0].Text, "12345");  // the change there and back loses nothing
  Enter(f.txtAxisStroke[0], "999999");
  EXPECT_EQ(f.txtAxisStroke[0].Text, "");
  EXPECT_EQ(f.txtAxisMmStroke[0].Text, "");
  f.txtAxisLead[0].Type("");
  f.txtAxisStroke[0].Type("20000");
  EXPECT_EQ(f.txtAxisMmStroke[0].Text, "");
  Enter(f.txtAxisLead[0], "2");  // now it can be told
  EXPECT_EQ(f.txtAxisMmStroke[0].Text, "100.000");
  f.txtAxisMmStroke[0].Type("");
  EXPECT_EQ(f.txtAxisStroke[0].Text, "");
}

TEST_F(ParaView, TheSpGroupIsLocked) {
  const auto expect_sp = [this](bool on) {
    for (Control* control : std::initializer_list<Control*>{
             &f.txtPgCheckTimer[0], &f.txtLsSerchTimer[0], &f.comboSoftLimit[0], &f.txtOneAxis,
             &f.comboAutoHome, &f.txtAutoStartPrgNo, &f.comboOneAxis, &f.optEmgLogic[0],
             &f.optEmgLogic[1], &f.optAlarmAutoClear[0], &f.optPosPrg[1], &f.optStopPause[0],
             &f.comboM0Disable[0]}) {
      EXPECT_EQ(control->Enabled, on) << control->Name;
    }
    EXPECT_FALSE(f.txtPgCheckTimer[3].Enabled);  // not in use
    EXPECT_FALSE(f.comboM0Disable[3].Enabled);
    EXPECT_TRUE(f.txtHomePush[0].Enabled);
  };
  AppState.AxisMuko[3] = True;
  YukoJikuHyojiSettei();
  expect_sp(false);
  forms.answers.push_back(MsgAnswer::No);
  f.chkTokuParaChange.Set(true);
  EXPECT_EQ(forms.LastBox(), Text(671) + "\n" + Text(672));
  EXPECT_EQ(forms.boxes.back().Buttons, MsgButtons::YesNo);
  EXPECT_FALSE(f.chkTokuParaChange.Value);
  expect_sp(false);
  Unlock();
  expect_sp(true);
  AllViewsCmdMuko();
  EXPECT_FALSE(f.txtHomePush[0].Enabled || f.txtOneAxis.Enabled || f.chkTokuParaChange.Enabled);
  AllViewsCmdYuko();
  expect_sp(true);
  forms.boxes.clear();
  f.chkTokuParaChange.Set(false);
  EXPECT_TRUE(forms.boxes.empty());
  expect_sp(false);
}

TEST_F(ParaView, ColumnsFollowAxisWhenConfirmed) {
  Unlock();
  f.comboOneAxis.LostFocus();  // nothing changed, nothing asked
  EXPECT_EQ(forms.boxes.size(), 1u);
  f.comboOneAxis.Pick(1);
  EXPECT_EQ(f.txtOneAxis.Text, "3");
  forms.answers = {MsgAnswer::Cancel, MsgAnswer::Ok};
  f.comboOneAxis.LostFocus();
  EXPECT_EQ(forms.LastBox(), Text(630));
  EXPECT_EQ(forms.boxes.back().Buttons, MsgButtons::OkCancel);
  EXPECT_EQ(f.comboOneAxis.ListIndex, 3);
  EXPECT_EQ(f.txtOneAxis.Text, "15");
  EXPECT_EQ(LiveAxisMask(), 15);
  f.txtOneAxis.Type("3");
  EXPECT_EQ(f.comboOneAxis.ListIndex, 1);
  Leave(f.txtOneAxis);
  EXPECT_EQ(LiveAxisMask(), 3);
  EXPECT_FALSE(f.txtHomeOffset[2].Enabled);
  EXPECT_EQ(forms.boxes.size(), 3u);
  f.comboOneAxis.LostFocus();  // confirmed once
  EXPECT_EQ(forms.boxes.size(), 3u);
  f.txtOneAxis.Type("5");  // no number of axes
  EXPECT_EQ(f.comboOneAxis.ListIndex, -1);
  Leave(f.txtOneAxis);
  EXPECT_EQ(LiveAxisMask(), 3);
  TorikomiParametaValue();
  EXPECT_EQ(ParamSet.OneAxis, 0);  // which the range check refuses
}

TEST_F(ParaView, ClosingOffersToSave) {
  EXPECT_TRUE(CloseView(f, CloseReason::ControlMenu));  // nothing changed
  EXPECT_TRUE(forms.boxes.empty());
  frmMain.mnuViewPara.Click();
  f.txtHomePush[0].Type("77");
  forms.answers = {MsgAnswer::Cancel};
  f.cmdClose.Press();
  EXPECT_EQ(forms.LastBox(), Text(6067));
  EXPECT_TRUE(f.Visible);
  forms.answers = {MsgAnswer::Yes};
  forms.file_answers.push_back(std::nullopt);  // cancelled: the view stays
  f.cmdClose.Press();
  EXPECT_TRUE(f.Visible);
  forms.answers = {MsgAnswer::Yes};
  forms.file_answers.push_back("/data/p.pmt");
  f.cmdClose.Press();
  EXPECT_FALSE(f.Visible);
  EXPECT_TRUE(virt.files.Exists("/data/p.pmt"));
  EXPECT_EQ(ParamSet.HomePush[0], 77);
  frmMain.mnuViewPara.Click();
  f.txtHomePush[0].Type("78");
  forms.answers = {MsgAnswer::No};
  f.cmdClose.Press();
  EXPECT_FALSE(f.Visible);
  EXPECT_EQ(ParamSet.HomePush[0], 77);
}

TEST_F(ParaView, OpeningAFileOffersToSave) {
  forms.file_answers = {"/data/p.pmt"};
  f.cmdSaveParaFile.Press();
  f.txtHomePush[0].Type("77");
  forms.answers = {MsgAnswer::Cancel};
  f.cmdReadParaFile.Press();
  EXPECT_EQ(forms.LastBox(), Text(6450));
  EXPECT_EQ(f.txtHomePush[0].Text, "77");
  forms.answers = {MsgAnswer::No};
  forms.file_answers = {"/data/p.pmt"};
  f.cmdReadParaFile.Press();
  EXPECT_EQ(f.txtHomePush[0].Text, "60");
  EXPECT_FALSE(ParaIsChanged());
}

TEST_F(ParaView, AFlowHoldsTheViewOpen) {
  AllViewsCmdMuko();
  for (Control* control : f.Controls) {
    const bool can_act = dynamic_cast<CommandButton*>(control) || dynamic_cast<TextBox*>(control) ||
                         dynamic_cast<ComboBox*>(control) || dynamic_cast<CheckBox*>(control);
    EXPECT_FALSE(can_act && control->Enabled) << control->Name;
  }
  EXPECT_FALSE(CloseView(f, CloseReason::ControlMenu));
  AllViewsCmdYuko();
  EXPECT_TRUE(f.cmdSaveParaFile.Enabled);
  EXPECT_FALSE(f.cmdParaPrint.Enabled);  // not built yet
  EXPECT_TRUE(CloseView(f, CloseReason::ControlMenu));
}

TEST_F(ParaView, AFlowThatBringsOtherAxesIsNoChangeByTheUser) {
  AllViewsCmdMuko();
  AppState.AxisMuko[2] = AppState.AxisMuko[3] = True;
  AllViewsCmdYuko();
  EXPECT_EQ(f.txtHomePush[2].Text, "");
  EXPECT_FALSE(ParaIsChanged());
  AppState.AxisMuko[2] = False;
  AllViewsCmdYuko();
  EXPECT_EQ(f.txtHomePush[2].Text, "60");
  EXPECT_FALSE(ParaIsChanged());
}

TEST_F(ParaView, WithoutParametersTheFieldsAreEmpty) {
  CloseView(f, CloseReason::Code);
  ParamSet = ParamSetRecord{};
  frmMain.mnuViewPara.Click();
  EXPECT_EQ(f.txtHomeOffset[0].Text, "");
  EXPECT_EQ(f.txtSmTimeoutTimer.Text, "");
  EXPECT_EQ(f.optPosPrg.Chosen(), -1);
  EXPECT_GT(f.comboActSize[0].List.size(), 3u);
  EXPECT_TRUE(f.txtHomeOffset[0].Enabled);
  f.cmdSaveParaFile.Press();
  EXPECT_TRUE(forms.LastBox().starts_with(Text(7) + "\n" + Text(8)));
}

TEST_F(ParaView, AMissingCatalogueIsToldOnceAndTheDeviceStays) {
  CloseView(f, CloseReason::Code);
  DeviceList.fill(DeviceListRecord{});
  virt.files.Remove(virt.files.program_folder + "/nqvdevice.lst");
  frmMain.mnuViewPara.Click();
  EXPECT_EQ(forms.boxes.size(), 1u);
  EXPECT_EQ(forms.LastBox(), Text(15) + "\n" + Text(16));
  EXPECT_EQ(f.comboActSize[3].Text() + f.comboActSpeed[3].Text() + f.comboActStroke[3].Text(),
            " 28L100");
}

TEST_F(ParaView, TheDeviceDialogueOpensItASecondLater) {
  CloseView(f, CloseReason::Code);
  forms.on_modal["frmParameta2"] = [](View& view) { CloseView(view, CloseReason::ControlMenu); };
  OpenParaAfterDevice();
  pump.RunFor(999 * kMs);
  EXPECT_TRUE(forms.modals.empty());
  AppState.CommandsOffDepth = 1;  // a flow still runs
  pump.RunFor(1500 * kMs);
  EXPECT_TRUE(forms.modals.empty());
  AppState.CommandsOffDepth = 0;
  pump.RunFor(1000 * kMs);
  EXPECT_EQ(forms.modals, std::vector<std::string>{"frmParameta2"});
  EXPECT_FALSE(frmMain.Timer2.Enabled);
  EXPECT_FALSE(ParaFlags.OpenParaAfterDevice);
  pump.RunFor(5000 * kMs);
  EXPECT_EQ(forms.modals.size(), 1u);
}

}  // namespace
}  // namespace tr7
