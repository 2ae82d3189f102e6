// The parameter view's buttons, from the click to the controller's memory.

#include "para/para_content.h"
#include "para/para_file.h"
#include "para/para_verify.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using enum MsgAnswer;
using Answers = std::deque<MsgAnswer>;

/// The view of a tool that is online, after a read.
class ParaFlows : public FlowTest {
 protected:
  ParaFlows() {
    StartOnline();
    frmMain.mnuViewPara.Press();
    EXPECT_EQ(Press(f.cmdParaRead), Texts());
    forms.answers = {Yes};
    f.chkTokuParaChange.Set(true);
  }
  /// The boxes that come; each of these answers is asked for.
  Texts Press(CommandButton& button, const Answers& answers = {}, std::vector<int> choices = {}) {
    Forget();
    forms.answers = answers;
    Choose(choices);
    button.Press();
    EXPECT_TRUE(forms.answers.empty() && choices_.empty());
    details = forms.boxes.empty() ? "" : forms.boxes.back().Details;
    return Boxes();
  }
  static void Type(TextBox& box, const std::string& text) {
    box.Type(text);
    box.LostFocus();
  }
  void UseAxes(int mask) {
    AppState.AxisMuko = MukoOfMask(mask);
    AllViewsCmdYuko();
  }
  qvr7sim::Controller& Ct() { return port.Ct(); }
  FrmParameta2& f = frmParameta2;
  std::string details;  ///< of the last box
};

TEST_F(ParaFlows, WhatIsTypedIsMarkedUntilItIsTheControllersAgain) {
  const auto type = [&](const char* push, const char* mm, int entry) {
    Type(f.txtHomePush[0], push);
    Type(f.txtAxisMmStroke[0], mm);
    f.comboZoneEnable[3].Pick(entry);
    f.optPosPrg[entry > 0 ? 0 : 1].Press();
    std::string marks;
    for (const Control* c : f.Controls) {
      if (!c->Difference.empty()) marks += c->Name + " " + c->Difference + "\n";
    }
    return marks;
  };
  EXPECT_EQ(type("77", "99.5", 1),
            "txtHomePush1 In the controller: 50\n"
            "txtAxisStroke1 In the controller: 20000\n"
            "txtAxisMmStroke1 In the controller: 100.000\n"
            "comboZoneEnable4 In the controller: 0. Disable\n"
            "optPosPrg1 In the controller: Positioner Mode\n");
  EXPECT_EQ(type("050", "100.0", 0), "");
}

TEST_F(ParaFlows, OtherAxesAndDevicesAreTakenWithTheParametersOrNotAtAll) {
  const std::string question = TwoLines(356, 357) + "\n" + Text(358);
  Type(f.txtHomePush[0], "77");
  EXPECT_EQ(Press(f.cmdParaRead, {Cancel}), Texts{Text(355)});
  DevSetting[0].Stroke = 50;
  UseAxes(7);
  EXPECT_EQ(Press(f.cmdParaRead, {No, Cancel}), (Texts{Text(355), question}));
  pump.After(1'000'000, [] { frmMain.cmdComCancel.Press(); });
  EXPECT_EQ(Press(f.cmdParaRead, {No, Ok}).back(), Text(425));
  EXPECT_EQ(f.txtHomePush[0].Text + f.txtHomePush[3].Text, "77");
  EXPECT_TRUE(AppState.AxisMuko[3] && DevSetting[0].Stroke == 50);
  EXPECT_EQ(Press(f.cmdParaRead, {No, Ok}).back(), question);
  EXPECT_EQ(f.txtHomePush[0].Text + f.txtHomePush[3].Text, "5050");
  EXPECT_TRUE(!AppState.AxisMuko[3] && DevSetting[0].Stroke == 100 && !ParaIsChanged());
}

TEST_F(ParaFlows, AWriteStopsWhereItMust) {
  const auto stops = [&](const Answers& answers, std::vector<int> choices, const std::string& box) {
    const auto muko = AppState.AxisMuko;
    EXPECT_EQ(Press(f.cmdParaWrite, answers, choices).back(), box);
    EXPECT_EQ(AppState.AxisMuko, muko);
    EXPECT_EQ(port.sent.find("0WD"), std::string::npos);
  };
  stops({No}, {}, Text(470));
  UseAxes(7);
  stops({Yes}, {-1}, Text(470));
  stops({Yes}, {1}, TwoLines(7, 8) + "\n\nAXIS4 OFFSET  Home offset (PLS)");
  EXPECT_NE(details.find("\nAXIS4 PUSH  Home push\n"), std::string::npos) << details;
  UseAxes(kAllAxes);
  f.txtHomePush[0].Text = "0";
  stops({Yes}, {}, TwoLines(1524, 1525));
  EXPECT_EQ(details, "PUSH(1): 0\n");
  f.chkTokuParaChange.Set(false);
  AppState.AxisCount = 5;
  stops({Yes, No}, {}, TwoLines(631, 632) + "\n" + Text(633));
}

TEST_F(ParaFlows, AWriteThatFailsTellsWhatTheControllerHas) {
  using enum qvr7sim::FaultKind;
  const std::string all = Text(6511, Text(6520, "0"), Text(6521, "D", "AXIS4"));
  const std::string some = Text(6511, Text(6520, "0"), Text(6521, "4", "AXIS1"));
  const std::tuple<qvr7sim::FaultKind, const char*, std::string> rows[] = {
      {kErrorReply, "0WD0", Text(6512, Text(6520, "0")) + "\n" + Text(6514)},
      {kDeaf, "0WD0", Text(6513, Text(6520, "0")) + "\n" + Text(6515)},
      {kErrorReply, "0WD5",
       Text(6510, some) + "\n" + Text(6512, Text(6521, "5", "AXIS2")) + "\n" + Text(6515)},
      {kDeaf, "0WD1",
       Text(6510, Text(6520, "0")) + "\n" + Text(6513, Text(6520, "1")) + "\n" + Text(6515)},
      {kErrorReply, "0WE2", Text(6510, all) + "\n" + Text(6516)},
      {kSilence, "0WE2", Text(6510, all) + "\n" + Text(6517)}};
  for (const auto& [fault, at, told] : rows) {
    SCOPED_TRACE(at);
    Spoil(fault, at, 0);
    const Texts boxes = Press(f.cmdParaWrite, {Yes});
    Ct().ClearFaults();
    EXPECT_EQ(std::count(boxes.begin(), boxes.end(), Text(6485) + "\n" + told), 1);
    frmMain.cmdReset.Press();
  }
}

TEST_F(ParaFlows, TheUserChoosesWhoseAxesAreWritten) {
  for (const int of_ct : {0, 1}) {  // the PC's three, which the controller has then
    UseAxes(of_ct ? kAllAxes : 7);
    f.comboOneAxis.Pick(2 + of_ct);
    EXPECT_EQ(Press(f.cmdParaWrite, {Yes, Yes}, {of_ct}).back(), Text(1527));
    EXPECT_EQ(port.sent.find("0WD00010F01001E007") == std::string::npos, of_ct == 1);
    EXPECT_EQ(Ct().CommittedBlock(0).substr(0, 10), "010701001E");
    EXPECT_TRUE(AppState.AxisMuko[3] && f.comboOneAxis.ListIndex == 2);
  }
}

/// What is written is taken over where the user wants that; another mode ends the tool once every
/// view was asked.
TEST_F(ParaFlows, AWriteToTheEnd) {
  frmPosi.PosiChanged = True;
  Type(f.txtAxisMmStroke[0], "90");
  for (const bool last : {false, true}) {
    f.optPosPrg[last ? 1 : 0].Press();
    EXPECT_EQ(Press(f.cmdParaWrite, {Yes, last ? Yes : No, last ? No : Cancel}),
              (Texts{Text(470), Text(685), Text(1527), TwoLines(492, 497), Text(391)}));
    EXPECT_EQ(Ct().CommittedBlock(0).substr(18, 2), last ? "00" : "01");
    EXPECT_EQ(Ct().CommittedBlock(4).substr(8, 6), "004650");
    EXPECT_EQ(AppState.StrokePulse[0], last ? 18000 : 20000);
    EXPECT_TRUE(!ParaIsChanged() && f.txtAxisStroke[0].Difference.empty());
    EXPECT_EQ(forms.ended, last);
  }
}

TEST_F(ParaFlows, AVerificationNamesWhatDiffers) {
  const std::string path = "/data/job.pmt";
  forms.on_file_dialog = [&](const FileDialogCall&) { return path; };
  ASSERT_EQ(WriteParaFile(path), 0);
  EXPECT_EQ(Press(f.cmdConpareCT), Texts{Text(826)});
  EXPECT_EQ(Press(f.cmdConpareFile, {Ok}), (Texts{Text(679), Text(826)}));
  for (const int axis : {0, 2}) Type(f.txtHomeOffset[axis], "123");
  Pick(f.comboActSize[0], " 42");
  f.comboPgFunc[3].Pick(1);
  Type(f.txtHomeOut, "9");
  Type(f.txtInpLimit[2], "99");
  f.optStopPause[f.optStopPause[0].Value ? 1 : 0].Press();
  const std::string report =
      "Result of Verify - NG\n<HOME Parameter> :OFFSET(1),OFFSET(3),\n"
      "<AXIS Parameter> :ACTUATOR(1),\n<PG Parameter> :FUNCTION(4),\n"
      "<Etc Parameter> :HOME OUT,IN-P WID(3),\n<SP Parameter> :PPUT Write\n";
  EXPECT_EQ(Press(f.cmdConpareCT), Texts{report});
  EXPECT_TRUE(details.starts_with("OFFSET(1): here 123, other side ")) << details;
  EXPECT_EQ(std::count(details.begin(), details.end(), '\n'), 7);
  EXPECT_EQ(Press(f.cmdConpareFile, {Ok}).back(), report);
}

}  // namespace
}  // namespace tr7
