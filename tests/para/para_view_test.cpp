#include <deque>

#include "base/text_helpers.h"
#include "device/device_list.h"
#include "forms/frm_main.h"
#include "para/para_after_device.h"
#include "para/para_columns.h"
#include "para/para_content.h"
#include "para/para_fields.h"
#include "para/para_show.h"
#include "para/std_lists.h"
#include "state/busy_scope.h"
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

TEST_F(ParaView, AFieldTakesDigitsWithinItsRange) {
  const auto takes = [this](TextBox& box, const char* typed) {
    forms.beeps = 0;
    Enter(box, typed);
    EXPECT_EQ(forms.beeps, box.Text.empty() ? 1 : 0) << box.Name << " " << typed;
    return box.Text == typed;
  };
  Unlock();
  EXPECT_TRUE(takes(f.txtHomeOffset[3], "1") && takes(f.txtHomeOffset[3], "65535"));
  EXPECT_FALSE(takes(f.txtHomeOffset[3], "0") || takes(f.txtHomeOffset[3], "65536"));
  EXPECT_TRUE(takes(f.txtHomeVel[1], "60") && !takes(f.txtHomeVel[1], "61"));
  EXPECT_TRUE(takes(f.txtAxisStroke[2], "262143") && !takes(f.txtAxisStroke[2], "262144"));
  EXPECT_TRUE(takes(f.txtPgAlarm[0], "5") && !takes(f.txtPgAlarm[0], "4"));
  EXPECT_TRUE(takes(f.txtAutoStartPrgNo, "255") && !takes(f.txtAutoStartPrgNo, "256"));
  forms.beeps = 0;
  Enter(f.txtHomeOffset[0], "12a.-3 4567");
  EXPECT_EQ(f.txtHomeOffset[0].Text, "12345");
  Enter(f.txtHomeOut, "999");
  EXPECT_EQ(f.txtHomeOut.Text, "99") << "a field without a range";
  Enter(f.txtHomeOrder[1], "098");
  EXPECT_EQ(f.txtHomeOrder[1].Text, "9") << "one digit from 1 to 9";
  EXPECT_EQ(forms.beeps, 0);
}

TEST_F(ParaView, TheStatusBarTellsTheRangeAndARefusal) {
  f.txtHomePush[0].GotFocus();
  EXPECT_EQ(Panel(), "Input range: 1 to 255");
  f.txtHomePush[0].Type("999");
  f.txtHomePush[0].LostFocus();
  const std::string refusal = "AXIS1 PUSH  Home push: Input range: 1 to 255 (Ctrl+Z: back to 60)";
  f.txtHomeVel[0].GotFocus();  // the refusal stays readable
  EXPECT_EQ(Panel(), refusal);
  f.txtHomeVel[0].LostFocus();
  EXPECT_EQ(Panel(), "");
  f.txtMmZone1[0].GotFocus();
  EXPECT_EQ(Panel(), "Input range: 0 to 100");
  AppState.AlarmOn = True;
  f.txtAxisMmStroke[0].GotFocus();
  EXPECT_EQ(Panel(), "Input range: 0 to 100");  // an alarm in its place would stay
  AppState.AlarmOn = False;
  f.txtAxisMmStroke[0].GotFocus();
  EXPECT_EQ(Panel(), "Input range: 0 to 1310.715");
}

TEST_F(ParaView, UndoBringsBackWhatARefusedFieldHeld) {
  for (TextBox* box : {&f.txtHomePush[1], &f.txtAxisStroke[0], &f.txtMmZone1[2]}) {
    const std::string former = Trim(box->Text);
    EXPECT_FALSE(box->Undo()) << "nothing was refused";
    Enter(*box, "999999");
    Enter(*box, "999998");  // the emptied field is refused once more
    EXPECT_EQ(box->Text, "");
    EXPECT_TRUE(box->Undo());
    Leave(*box);
    EXPECT_EQ(Trim(box->Text), former);
    EXPECT_FALSE(box->Undo());
  }
  EXPECT_EQ(f.txtAxisMmStroke[0].Text, "100.000");
  Enter(f.txtHomePush[1], "999");
  ParametaHyoji();
  EXPECT_FALSE(f.txtHomePush[1].Text.empty() || f.txtHomePush[1].Undo()) << "another set's";
}

TEST_F(ParaView, EnterGoesToTheNextFieldThatIsOn) {
  AppState.AxisMuko[3] = True;
  YukoJikuHyojiSettei();
  const std::pair<TextBox&, Control*> rows[] = {
      {f.txtHomeOffset[2], &f.txtHomePush[0]},
      {f.txtJogHighVel[2], &f.comboAxisAutoDrv[0]},
      {f.txtMmZone1[2], &f.txtMmZone2[0]},
      {f.txtPushHoldTime[2], &f.txtHomeOffset[0]}};  // behind lies the locked group
  for (const auto& [from, next] : rows) {
    from.Enter();
    EXPECT_EQ(forms.focus, next) << from.Name;
  }
}

TEST_F(ParaView, LengthsInMmDemandTheirInputs) {
  const auto told = [this](const char* lead, const char* pulses, TextBox& box) {
    f.txtAxisLead[1].Type(lead);
    f.txtAxisPulse[1].Type(pulses);
    Enter(box, "10");
    EXPECT_EQ(box.Text, "");
    Leave(box);  // an empty field demands nothing
    return Boxes();
  };
  const Texts no_scale{Text(694) + "\n" + Text(695)};
  EXPECT_EQ(told("", "400", f.txtAxisMmStroke[1]), no_scale);
  EXPECT_EQ(told("2", "", f.txtMmZone1[1]), no_scale);
  EXPECT_EQ(told("2", "400", f.txtMmZone2[1]), Texts{Text(696) + "\n" + Text(697)}) << "no stroke";
  AppState.AxisMuko[1] = True;
  YukoJikuHyojiSettei();
  f.txtMmZone1[1].Text = "10";
  Leave(f.txtMmZone1[1]);  // of an axis not in use: nothing happens
  EXPECT_EQ(Boxes(), Texts{});
}

TEST_F(ParaView, AZoneLiesWithinTheWholeMillimetresOfTheStroke) {
  Enter(f.txtAxisMmStroke[0], "99.5");
  for (const char* typed : {"0", "99", "99.005", "100"}) {
    const bool good = Val(typed) <= 99;
    forms.beeps = 0;
    Enter(f.txtMmZone2[0], typed);
    EXPECT_EQ(f.txtMmZone2[0].Text.empty(), !good) << typed;
    EXPECT_EQ(f.txtZoneSet2[0].Text.empty(), !good) << typed;
    EXPECT_EQ(forms.beeps, good ? 0 : 1) << typed;
  }
  // The field takes what the check of the whole set then refuses.
  Enter(f.txtMmZone1[0], "0.02");
  EXPECT_EQ(f.txtZoneSet1[0].Text, "4");
}

TEST_F(ParaView, PulsesAndScaleKeepTheLengthsInStep) {
  const struct {
    TextBox& box;
    const char *typed, *pulses, *mm;
  } rows[] = {{f.txtAxisStroke[0], "12345", "12345", " 61.725"},  // what counts is the mm field
              {f.txtAxisLead[0], "4", "6172", " 61.725"},
              {f.txtAxisLead[0], "2", "12345", " 61.725"},  // there and back loses nothing
              {f.txtAxisStroke[0], "999999", "", ""},
              {f.txtAxisLead[0], "", "", ""},
              {f.txtAxisStroke[0], "20000", "20000", ""},
              {f.txtAxisLead[0], "2", "20000", "100.000"},  // now it can be told
              {f.txtAxisMmStroke[0], "", "", ""}};
  for (const auto& row : rows) {
    Enter(row.box, row.typed);
    EXPECT_EQ(f.txtAxisStroke[0].Text, row.pulses) << row.typed;
    EXPECT_EQ(f.txtAxisMmStroke[0].Text, row.mm) << row.typed;
  }
}

TEST_F(ParaView, TheSpGroupIsLocked) {
  const auto expect_sp = [this](bool on) {
    for (Control* control : std::initializer_list<Control*>{
             &f.txtPgCheckTimer[0], &f.comboSoftLimit[0], &f.txtAutoStartPrgNo, &f.comboOneAxis,
             &f.optPosPrg[1], &f.comboM0Disable[0]}) {
      EXPECT_EQ(control->Enabled, on) << control->Name;
    }
    EXPECT_FALSE(f.txtPgCheckTimer[3].Enabled || f.comboM0Disable[3].Enabled);  // not in use
    EXPECT_TRUE(f.txtHomePush[0].Enabled);
  };
  AppState.AxisMuko[3] = True;
  YukoJikuHyojiSettei();
  expect_sp(false);
  forms.answers.push_back(MsgAnswer::No);
  f.chkTokuParaChange.Set(true);
  EXPECT_EQ(forms.LastBox(), Text(671) + "\n" + Text(672));
  expect_sp(false);
  Unlock();
  expect_sp(true);
  AllViewsCmdMuko();
  AllViewsCmdYuko();
  expect_sp(true);
  f.chkTokuParaChange.Set(false);
  EXPECT_EQ(forms.boxes.size(), 2u) << "locking asks nothing";
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
  EXPECT_EQ(f.comboOneAxis.ListIndex, 3);
  EXPECT_EQ(f.txtOneAxis.Text, "15");
  EXPECT_EQ(LiveAxisMask(), 15);
  Enter(f.txtOneAxis, "3");
  EXPECT_EQ(f.comboOneAxis.ListIndex, 1);
  EXPECT_EQ(LiveAxisMask(), 3);
  f.comboOneAxis.LostFocus();
  EXPECT_EQ(forms.boxes.size(), 3u) << "confirmed once";
  Enter(f.txtOneAxis, "5");  // no number of axes
  EXPECT_EQ(f.comboOneAxis.ListIndex, -1);
  EXPECT_EQ(LiveAxisMask(), 3);
  TorikomiParametaValue();
  EXPECT_EQ(ParamSet.OneAxis, 0);  // which the range check refuses
}

TEST_F(ParaView, ClosingOffersToSave) {
  const auto closes = [this](MsgAnswer answer, std::deque<std::optional<std::string>> files) {
    virt.files.Remove("/data/p.pmt");
    frmMain.mnuViewPara.Click();
    f.txtHomePush[0].Type("77");
    Boxes();
    forms.answers = {answer};
    forms.file_answers = std::move(files);
    f.cmdClose.Press();
    EXPECT_EQ(forms.boxes.front().Text, Text(6067));
    return !f.Visible;
  };
  EXPECT_TRUE(CloseView(f, CloseReason::ControlMenu));
  EXPECT_TRUE(forms.boxes.empty()) << "nothing changed";
  EXPECT_FALSE(closes(MsgAnswer::Cancel, {}) || closes(MsgAnswer::Yes, {std::nullopt}));
  EXPECT_TRUE(closes(MsgAnswer::Yes, {"/data/p.pmt"}) && virt.files.Exists("/data/p.pmt"));
  EXPECT_EQ(ParamSet.HomePush[0], 77);
  ParamSet.HomePush[0] = 60;
  EXPECT_TRUE(closes(MsgAnswer::No, {}));
  EXPECT_EQ(ParamSet.HomePush[0], 60);
}

TEST_F(ParaView, OpeningAFileOffersToSave) {
  f.txtHomePush[0].Type("77");
  forms.answers = {MsgAnswer::Cancel};
  f.cmdReadParaFile.Press();
  EXPECT_EQ(Boxes(), Texts{Text(6450)});
  EXPECT_TRUE(forms.file_dialogs.empty());
  forms.answers = {MsgAnswer::No};
  forms.file_answers = {std::nullopt};
  f.cmdReadParaFile.Press();
  EXPECT_EQ(forms.file_dialogs.size(), 1u);
}

TEST_F(ParaView, AFlowHoldsTheViewOpenAndMayBringOtherAxes) {
  std::optional<CommandsOff> flow(std::in_place);
  for (Control* control : f.Controls) {
    const bool can_act = dynamic_cast<CommandButton*>(control) || dynamic_cast<TextBox*>(control) ||
                         dynamic_cast<ComboBox*>(control) || dynamic_cast<CheckBox*>(control);
    EXPECT_FALSE(can_act && control->Enabled) << control->Name;
  }
  EXPECT_FALSE(CloseView(f, CloseReason::ControlMenu));
  AppState.AxisMuko = MukoOfMask(3);
  flow.reset();
  EXPECT_EQ(f.txtHomePush[2].Text, "");
  EXPECT_FALSE(ParaIsChanged()) << "nobody typed it";
  AppState.AxisMuko = MukoOfMask(7);
  AllViewsCmdYuko();
  EXPECT_EQ(f.txtHomePush[2].Text, "60");
  EXPECT_FALSE(ParaIsChanged());
  EXPECT_TRUE(CloseView(f, CloseReason::ControlMenu));
}

TEST_F(ParaView, WithoutParametersTheFieldsAreEmpty) {
  CloseView(f, CloseReason::Code);
  ParamSet = ParamSetRecord{};
  DeviceList.fill({});
  AppState.AxisMuko[3] = True;
  frmMain.mnuViewPara.Click();
  EXPECT_EQ(f.txtHomeOffset[0].Text + f.txtSmTimeoutTimer.Text, "");
  EXPECT_EQ(f.optPosPrg.Chosen(), -1);
  AppState.AxisMuko[3] = False;
  AllViewsCmdYuko();
  for (const int axis : {0, 3}) EXPECT_GT(f.comboActSize[axis].List.size(), 3u) << axis;
  EXPECT_TRUE(f.txtHomeOffset[0].Enabled);
}

TEST_F(ParaView, TheDeviceDialogueOpensItOnceWhenNoFlowRuns) {
  CloseView(f, CloseReason::Code);
  forms.on_modal["frmParameta2"] = [](View& view) { CloseView(view, CloseReason::ControlMenu); };
  OpenParaAfterDevice();
  AppState.CommandsOffDepth = 1;
  pump.RunFor(2500 * kMs);
  EXPECT_TRUE(forms.modals.empty());
  AppState.CommandsOffDepth = 0;
  pump.RunFor(6000 * kMs);
  EXPECT_EQ(forms.modals, Texts{"frmParameta2"});
}

}  // namespace
}  // namespace tr7
