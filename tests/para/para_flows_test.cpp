// The parameter view's buttons, from the click to the controller's memory.

#include "para/para_flows.h"

#include "forms/frm_parameta2.h"
#include "para/para_content.h"
#include "para/para_file.h"
#include "para/para_transfer_commands.h"
#include "para/para_verify.h"
#include "posi/posi_log.h"
#include "posi/posi_table.h"
#include "session/followers.h"
#include "state/message_box.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using enum MsgAnswer;
using Answers = std::deque<MsgAnswer>;

const std::string kPath = "/data/job.pmt";

/// The parameter view of a tool that is online, after a read.
class ParaFlows : public FlowTest {
 protected:
  ParaFlows() {
    StartOnline();
    frmMain.mnuViewPara.Press();
    EXPECT_EQ(Press(f.cmdParaRead), Texts());
  }
  /// The boxes that come.
  Texts Press(CommandButton& button, const Answers& answers = {}) {
    Forget();
    forms.answers = answers;
    EXPECT_TRUE(button.Enabled);
    button.Press();
    EXPECT_TRUE(forms.answers.empty()) << "nobody asked";
    return Boxes();
  }
  static void Type(TextBox& box, const std::string& text) {
    box.Type(text);
    if (box.LostFocus) box.LostFocus();
  }
  void Unlock() {
    forms.answers = {Yes};
    f.chkTokuParaChange.Set(true);
  }
  static std::string VerifyBox(const std::string& lines) { return Text(823) + "\n" + lines; }
  qvr7sim::Controller& Ct() { return port.Ct(); }
  FrmParameta2& f = frmParameta2;
};

TEST_F(ParaFlows, WhatIsReadIsShownAndWhatIsTypedIsMarked) {
  EXPECT_EQ(f.txtActuator[1].Text, " 35H200");
  EXPECT_FALSE(ParaIsChanged());
  for (Control* control : f.Controls) EXPECT_EQ(control->Difference, "") << control->Name;
  Unlock();
  const std::string push = f.txtHomePush[0].Text, mm = f.txtAxisMmStroke[0].Text;
  const auto type_all = [&](const std::string& push_text, const std::string& mm_text, int entry) {
    Type(f.txtHomePush[0], push_text);
    Type(f.txtAxisMmStroke[0], mm_text);
    f.comboZoneEnable[3].Pick(entry);
    f.comboOneAxis.Pick(3 - entry);
    f.optPosPrg[entry > 0 ? 0 : 1].Press();
  };
  type_all("77", "99.5", 1);
  EXPECT_EQ(f.txtHomePush[0].Difference, "In the controller: " + push);
  EXPECT_EQ(f.txtAxisMmStroke[0].Difference, "In the controller: 100.000");
  EXPECT_EQ(f.txtAxisStroke[0].Difference, "In the controller: 20000");
  EXPECT_EQ(f.comboZoneEnable[3].Difference, "In the controller: 0. Disable");
  EXPECT_EQ(f.comboOneAxis.Difference, "In the controller: 4 axes (AXIS1 to AXIS4)");
  EXPECT_EQ(f.optPosPrg[0].Difference, "In the controller: " + Text(128));
  type_all("0" + push, "100.0", 0);
  for (Control* control : f.Controls) EXPECT_EQ(control->Difference, "") << control->Name;
}

TEST_F(ParaFlows, UnsavedDataIsAskedAboutBeforeARead) {
  const std::string push = f.txtHomePush[0].Text;
  Type(f.txtHomePush[0], "77");
  EXPECT_EQ(Press(f.cmdParaRead, {Cancel}), Texts{Text(355)});
  forms.file_answers = {std::nullopt};
  EXPECT_EQ(Press(f.cmdParaRead, {Yes}), Texts{Text(355)}) << "not saved";
  EXPECT_EQ(f.txtHomePush[0].Text, "77");
  EXPECT_EQ(port.sent, "");
  EXPECT_EQ(Press(f.cmdParaRead, {No}), Texts{Text(355)});
  EXPECT_EQ(f.txtHomePush[0].Text, push);
}

TEST_F(ParaFlows, OtherAxesAndDevicesAreTakenTogetherOrNotAtAll) {
  const std::string question = TwoLines(356, 357) + "\n" + Text(358);
  DevSetting[0].Stroke = 50;
  AppState.AxisMuko[3] = True;
  AllViewsCmdYuko();
  const ParamSetRecord before = ParamSet;
  EXPECT_EQ(Press(f.cmdParaRead, {Cancel}), Texts{question});
  Spoil(qvr7sim::FaultKind::kChangedByte, "0RDB", 1, 3);
  EXPECT_EQ(Press(f.cmdParaRead, {Ok}), (Texts{question, TwoLines(384, 385)}));
  EXPECT_EQ(DevSetting[0].Stroke, 50);
  EXPECT_TRUE(AppState.AxisMuko[3]);
  EXPECT_EQ(ParamSet, before);
  EXPECT_EQ(f.txtHomePush[3].Text, "");
  pump.After(1'000'000, [] { frmMain.cmdComCancel.Press(); });
  EXPECT_EQ(Press(f.cmdParaRead, {Ok}), (Texts{question, Text(425)}));
  EXPECT_TRUE(AppState.AxisMuko[3]);
  EXPECT_EQ(Press(f.cmdParaRead, {Ok}), Texts{question});
  EXPECT_EQ(DevSetting[0].Stroke, 100);
  EXPECT_FALSE(AppState.AxisMuko[3]);
  EXPECT_NE(f.txtHomePush[3].Text, "");
}

TEST_F(ParaFlows, ForOtherViews) {
  AppState.AxisMuko[3] = True;
  AllViewsCmdYuko();
  Spoil(qvr7sim::FaultKind::kChangedByte, "0RDB", 1, 3);
  EXPECT_EQ(GetParametaValue3(), 1);
  EXPECT_TRUE(AppState.AxisMuko[3]);
  ParamSet.HomeVel[3] = 1;
  EXPECT_EQ(GetParametaValue3(), 0);
  EXPECT_NE(ParamSet.HomeVel[3], 1);
  EXPECT_EQ(f.txtHomeVel[3].Text, "") << "the view stays";
  EXPECT_EQ(GetParametaValue2(), 0);
  EXPECT_NE(f.txtHomeVel[3].Text, "");
}

// The write.

TEST_F(ParaFlows, AWriteStopsWhereItMust) {
  const struct {
    const char* name;
    std::function<void()> prepare;
    Answers answers;
    std::vector<int> choices;
    Texts boxes;
  } rows[] = {
      {"No", [] {}, {No}, {}, {Text(470)}},
      {"an empty field",
       [&] { f.txtHomePush[0].Text.clear(); },
       {Yes},
       {},
       {Text(470), TwoLines(7, 8) + "\n\nAXIS1 PUSH  Home push"}},
      {"more axes than there are",
       [&] { AppState.AxisCount = 5; },
       {Yes, No},
       {},
       {Text(470), TwoLines(631, 632) + "\n" + Text(633)}},
      {"a value out of range",
       [&] { f.txtHomePush[0].Text = "0"; },
       {Yes},
       {},
       {Text(470), TwoLines(1524, 1525)}},
      {"other axes, cancelled", [] { AppState.AxisMuko[3] = True; }, {Yes}, {-1}, {Text(470)}},
      {"other axes, the controller's, which the view lacks",
       [&] {
         AppState.AxisMuko[3] = True;
         AllViewsCmdYuko();
       },
       {Yes},
       {1},
       {Text(470), TwoLines(7, 8) + "\n\nAXIS4 OFFSET  Home offset (PLS)"}},
      {"moving",
       [&] {
         Ct().PlaceAxis(1, 15000, pump.NowUs());
         Ct().Receive("0MP000F\r\n", pump.NowUs());
         pump.RunFor(100'000);
         port.ReadAll();
       },
       {Yes},
       {},
       {Text(470), Text(424)}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    row.prepare();
    const auto muko = AppState.AxisMuko;
    Choose(row.choices);
    EXPECT_EQ(Press(f.cmdParaWrite, row.answers), row.boxes);
    EXPECT_EQ(AppState.AxisMuko, muko);
    EXPECT_EQ(port.sent.find("0WD"), std::string::npos);
    AppState.AxisMuko.fill(False);
    AppState.AxisCount = 4;
    AllViewsCmdYuko();
    Press(f.cmdParaRead, ParaIsChanged() ? Answers{No} : Answers{});
  }
}

TEST_F(ParaFlows, AWriteIsStoredAndTakenOverWhereTheUserWants) {
  for (const MsgAnswer reflect : {No, Yes}) {
    Type(f.txtHomePush[0], "77");
    Type(f.txtAxisMmStroke[0], "90");
    const Texts boxes = Press(f.cmdParaWrite, {Yes, reflect});
    EXPECT_EQ(boxes, (Texts{Text(470), Text(685), Text(1527)}));
    EXPECT_EQ(Ct().CommittedBlock(2).substr(6, 2), "4D");
    EXPECT_EQ(Ct().ControlDigits(), "0000");
    EXPECT_EQ(AppState.StrokePulse[0], reflect == Yes ? 18000 : 20000);
    EXPECT_EQ(f.txtHomePush[0].Difference, "");
    EXPECT_FALSE(ParaIsChanged());
  }
}

TEST_F(ParaFlows, TheUserChoosesWhoseAxesAreWritten) {
  const std::string block0 = Ct().CommittedBlock(0);
  Unlock();
  AppState.AxisMuko[3] = True;
  AllViewsCmdYuko();
  f.comboOneAxis.Pick(2);
  Choose({0});
  EXPECT_EQ(Press(f.cmdParaWrite, {Yes, No}).back(), Text(1527));
  EXPECT_EQ(asked, Texts{Text(472)});
  EXPECT_NE(port.sent.find("0WD00010F01001E007"), std::string::npos);
  EXPECT_EQ(Ct().CommittedBlock(0), std::string(block0).replace(2, 2, "07"));
  EXPECT_TRUE(AppState.AxisMuko[3]);
  // And the other way round: the controller has three now.
  AppState.AxisMuko.fill(False);
  AllViewsCmdYuko();
  f.comboOneAxis.Pick(3);
  Choose({1});
  EXPECT_EQ(Press(f.cmdParaWrite, {Yes, Yes}).back(), Text(1527));
  EXPECT_EQ(Ct().CommittedBlock(0).substr(2, 2), "07");
  EXPECT_TRUE(AppState.AxisMuko[3]);
  EXPECT_EQ(f.comboOneAxis.ListIndex, 2);
}

TEST_F(ParaFlows, AFailedWriteSaysSoAndReleasesTheAxes) {
  Type(f.txtHomePush[0], "77");
  const std::string before = Ct().CommittedBlock(2);
  Spoil(qvr7sim::FaultKind::kChangedByte, "0WD5", 1, 3);
  const Texts boxes = Press(f.cmdParaWrite, {Yes});
  ASSERT_EQ(boxes.size(), 4u);
  EXPECT_EQ(boxes[2], Text(6485));
  EXPECT_EQ(boxes[3], Text(1528));
  EXPECT_EQ(Ct().CommittedBlock(2), before);
  EXPECT_EQ(Ct().ControlDigits(), "0000");
  EXPECT_NE(f.txtHomePush[0].Difference, "") << "as last known";
}

TEST_F(ParaFlows, AnotherModeEndsTheToolOnceEveryViewWasAsked) {
  Unlock();
  const Texts told{Text(470), Text(685), Text(1527), TwoLines(492, 497), Text(391)};
  frmPosi.PosiChanged = True;
  f.optPosPrg[0].Press();
  EXPECT_EQ(Press(f.cmdParaWrite, {Yes, No, Cancel}), told);
  EXPECT_FALSE(forms.ended);
  EXPECT_EQ(Ct().CommittedBlock(0).substr(18, 2), "01");
  EXPECT_TRUE(AppState.CtModePending);
  ExpectCommandsOn();
  f.optPosPrg[1].Press();
  EXPECT_EQ(Press(f.cmdParaWrite, {Yes, No, No}), told);
  EXPECT_TRUE(forms.ended);
}

// Verifying.

TEST_F(ParaFlows, AVerificationNamesWhatDiffers) {
  ASSERT_EQ(WriteParaFile(kPath), 0);
  const auto verify = [&](bool file) {
    forms.file_answers = {kPath};
    const Texts boxes =
        Press(file ? f.cmdConpareFile : f.cmdConpareCT, file ? Answers{Ok} : Answers{});
    forms.file_answers.clear();
    EXPECT_EQ(boxes[0], file ? Text(679) : boxes.back());
    return boxes.back();
  };
  for (const bool file : {false, true}) EXPECT_EQ(verify(file), Text(826));
  Unlock();
  for (const int axis : {0, 2}) Type(f.txtHomeOffset[axis], "123");
  f.txtHomeOrder[1].Text = "4";
  Pick(f.comboActSize[0], " 42");
  f.comboPgFunc[3].Pick(1);
  Type(f.txtHomeOut, "9");
  Type(f.txtInpLimit[2], "99");
  Type(f.txtAutoStartPrgNo, "5");
  f.comboSoftLimit[0].Pick(1 - f.comboSoftLimit[0].ListIndex);
  f.optStopPause[f.optStopPause[0].Value ? 1 : 0].Press();
  for (const bool file : {false, true}) {
    EXPECT_EQ(verify(file),
              "Result of Verify - NG\n"
              "<HOME Parameter> :OFFSET(1),OFFSET(3),SEQ(2),\n"
              "<AXIS Parameter> :ACTUATOR(1),\n"
              "<PG Parameter> :FUNCTION(4),\n"
              "<Etc Parameter> :HOME OUT,IN-P WID(3),\n"
              "<SP Parameter> :AUTO START PRG No.,SOFT LIMIT(1),PPUT Write\n");
  }
  EXPECT_EQ(port.sent, "");
  virt.files.Put(kPath, "\"QV-R7\",\"GRP\"\r\n5\r\n");
  EXPECT_TRUE(verify(true).starts_with(Text(681)));
  f.txtHomePush[0].Text = "0";
  EXPECT_EQ(Press(f.cmdConpareCT), Texts{TwoLines(1524, 1525)});
  f.txtHomePush[0].Text.clear();
  EXPECT_TRUE(Press(f.cmdConpareFile)[0].starts_with(TwoLines(7, 8)));
  EXPECT_EQ(forms.focus, &f.txtHomePush[0]) << "once the commands are on again";
  ParaTable[0][1] = std::string("x");
  EXPECT_EQ(BuildParaVerifyReport(), -1);
}

TEST_F(ParaFlows, WhatIsPrintedAndLogged) {
  AppState.DispMmUnit = True;
  Type(f.txtAxisMmStroke[0], "90");
  forms.answers = {No};
  Press(f.cmdConpareCT);
  ParamSet.Actuator[0] = "";
  ParaFromViewToTable();
  EXPECT_EQ(TextOf(ParaTable[0][kRowStroke]), " 90.000");
  EXPECT_EQ(TextOf(ParaTable[1][kRowLead]), "6");
  EXPECT_EQ(TextOf(ParaTable[0][kRowActuator]) + ParamSet.Actuator[0], " 28L100 28L100");
  EXPECT_EQ(TextOf(ParaTable[1][36]) + TextOf(ParaTable[1][37]) + TextOf(ParaTable[1][38]),
            " 35H200");
  AppState.DispMmUnit = False;
  ReadRange(1, 2);
  AppState.AxisMuko[1] = True;
  EXPECT_EQ(WriteLogToFile(), 0);
  AppState.AxisMuko[1] = False;
  EXPECT_EQ(virt.files.Content(virt.files.program_folder + "/TR7V162Log.txt"),
            "QV-TR7 Log File\r\nPOS MODE\r\n0,,0,0\r\n50,,200,100\r\n50,,200,30\r\n");
}

}  // namespace
}  // namespace tr7
