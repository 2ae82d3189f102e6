#include "forms/frm_stroke_calc.h"
#include "para/para_columns.h"
#include "para/para_fields.h"
#include "para/para_show.h"
#include "para/std_lists.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

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

TEST_F(ParaView, PulsesAndScaleKeepTheLengthsInStep) {
  const std::tuple<TextBox&, const char*, const char*, const char*> rows[] = {
      {f.txtAxisStroke[0], "12345", "12345", " 61.725"},  // what counts is the mm field
      {f.txtAxisLead[0], "4", "6172", " 61.725"},
      {f.txtAxisLead[0], "2", "12345", " 61.725"},  // there and back loses nothing
      {f.txtAxisStroke[0], "999999", "", ""},
      {f.txtAxisLead[0], "", "", ""},
      {f.txtAxisStroke[0], "20000", "20000", ""},
      {f.txtAxisLead[0], "2", "20000", "100.000"},  // now it can be told
      {f.txtAxisMmStroke[0], "", "", ""}};
  for (const auto& [box, typed, pulses, mm] : rows) {
    Enter(box, typed);
    EXPECT_EQ(f.txtAxisStroke[0].Text, pulses) << typed;
    EXPECT_EQ(f.txtAxisMmStroke[0].Text, mm) << typed;
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

class StrokeCalc : public StateTest {
 protected:
  StrokeCalc() {
    ShowView(frmParameta2);
    for (int axis = 0; axis < kAxes; ++axis) {
      p.txtAxisLead[axis].Type("2");
      p.txtAxisPulse[axis].Type("400");
    }
  }
  /// Opens the dialogue; `use` is what the user does in it.
  template <typename Use>
  void Open(Use use) {
    forms.on_modal["frmStrokeCalc"] = [use](View&) {
      use();
      frmStrokeCalc.cmdClose.Press();
    };
    p.cmdCalculate.Press();
  }
  static std::string Calculate(const std::string& stroke, const std::string& lead) {
    c.txtCulStroke.Type(stroke);
    c.txtCulLead.Type(lead);
    c.cmdCulStrokePulse.Press();
    return c.lblStrokePulse.Caption;
  }
  static inline FrmStrokeCalc& c = frmStrokeCalc;
  FrmParameta2& p = frmParameta2;
};

TEST_F(StrokeCalc, PulsesOfAStroke) {
  const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
      {"100", "2", "20000", "9600"},
      {"100", "6", "6667", "3200"},  // 6666.67: up
      {"25", "12", "834", "400"},    // 833.33: up
      {"24", "2", "Invalidity", "Invalidity"},
      {"601", "2", "Invalidity", "Invalidity"},
      {"100", "9", "Invalidity", "Invalidity"},
      {"100", "", "Invalidity", "Invalidity"}};
  Open([&] {
    for (const auto& [stroke, lead, first, second] : rows) {
      c.optActType[0].Press();
      EXPECT_EQ(Calculate(stroke, lead), first) << stroke << "/" << lead;
      c.optActType[1].Press();
      EXPECT_EQ(Calculate(stroke, lead), second) << stroke << "/" << lead;
    }
  });
}

TEST_F(StrokeCalc, TheResultGoesIntoTheChosenAxisAndTheFocusOn) {
  const Control* next[] = {&p.txtAxisStroke[1], &p.txtAxisLead[2], &p.txtAxisStroke[3],
                           &p.txtAxisLead[0]};
  for (int axis = 0; axis < kAxes; ++axis) {
    forms.focus = nullptr;
    Open([&] {
      Calculate("100", "2");
      c.optInputSaki[axis].Press();
      c.cmdInputStroke.Press();
      EXPECT_FALSE(c.Visible);
    });
    EXPECT_EQ(p.txtAxisStroke[axis].Text, "20000") << axis;
    EXPECT_EQ(forms.focus, next[axis]) << axis;
  }
}

}  // namespace
}  // namespace tr7
