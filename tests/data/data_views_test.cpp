// The views of groups, macros and system parameters: from a click to the bytes in the controller
// or the file, the boxes, and the table that is left.

#include "data/grp_show.h"
#include "data/grp_table.h"
#include "data/sm_table.h"
#include "forms/frm_compare.h"
#include "forms/frm_grp.h"
#include "forms/frm_sq_mcr.h"
#include "forms/frm_system_para.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

constexpr int kGood = 7, kOther = 8, kBad = 0;  ///< values for the first place

/// What the details of a box say of the first place.
struct Details {
  const char *difference, *bad;
};
constexpr Details kOfGroups{"Group 1: here 1 - 8, other side 1 - 7\n", "Group 1: 1 - 0\n"};
constexpr Details kOfMacros{"SM No. 1, step 1: here 5. TIMER 8, other side 5. TIMER 7\n",
                            "SM No. 1, step 1: 5. TIMER 0\n"};

/// One of the two kinds that have a file, as the user meets it.
struct Kind {
  const char* name;
  View& view;
  Menu& menu;
  CommandButton &read, &write, &verify_ct, &open, &save, &verify_file, &restore;
  const char* file;
  const char* head;
  std::function<void(int value)> edit;  ///< types a value into the first place and leaves it
  std::function<int()> held;            ///< what the table holds there
  const char* bad_to_send;
  const char* bad_to_compare;
  const char* differs;
  Details details;
};

void TypeGroupEnd(int value) {
  TextBox& box = frmGrp.Rows[0].txtGrpEndNo;
  box.Type(std::to_string(value));
  box.LostFocus();
}

void ChooseAndTypeStep(int value) {
  SmRow& row = frmSqMcr.Rows[0];
  row.comboMerei.Pick(5);
  row.txtSmData.GotFocus();
  row.txtSmData.Type(value == 0 ? "" : std::to_string(value));  // an emptied value counts as 0
}

constexpr const char* kBadMacros =
    "Invalid data in some of SM Data.\n\nConfirm the value and try it again.\n\n"
    "SM No. in which the invalid value was found is as follows.\n\n<1>,";

std::vector<Kind> Kinds() {
  FrmGrp& g = frmGrp;
  FrmSqMcr& s = frmSqMcr;
  return {
      {"groups", g, frmMain.mnuViewGrp, g.cmdReadGrp, g.cmdWriteGrp, g.cmdGrpCtVerify,
       g.cmdGrpFileOpen, g.cmdGrpFileSave, g.cmdGrpFileVerify, g.cmdGrpRestore, "/a.grp",
       "\"QV-R7\",\"GRP\"\r\n99,3\r\n\"1\",1,7\r\n\"2\",1,1\r\n", TypeGroupEnd,
       [] { return int{GrpTable.GrpEnd[1]}; },
       "Invalid value in some of group data.\nConfirm the following item ant try it again.\n"
       " 1.Is the value setting the range of 1 to 999?\n"
       " 2.Isn't value of start position larger than one of end position.",
       "Invalid value in some of group data.\nConfirm the value and try it again.",
       "Result of Verify - NG\n<Unmatched group No.>\n1, Group No.", kOfGroups},
      {"macros", s, frmMain.mnuViewSM, s.cmdReadSMfromCt, s.cmdWriteSMtoCt, s.cmdSmCTShogo,
       s.cmdSmFileOpen, s.cmdSmFileSave, s.cmdSmFileShogo, s.cmdSmRestore, "/a.smd",
       "\"QV-R7\",\"SM\"\r\n16,2,20\r\n\"1\"\r\n5,7\r\n0,0\r\n", ChooseAndTypeStep,
       [] { return int{SmTable[0][0].Value}; }, kBadMacros, kBadMacros,
       "Result of Verify - NG\n<Unmatched items>\n1,SM No.", kOfMacros},
  };
}

class DataViewsTest : public FlowTest, public ::testing::WithParamInterface<std::size_t> {
 protected:
  void SetUp() override {
    StartOnline();
    kind.menu.Press();
    Forget();
  }
  void Press(CommandButton& button, std::deque<MsgAnswer> answers = {}) {
    forms.answers = std::move(answers);
    button.Press();
  }
  void PressWithFile(CommandButton& button, const char* path) {
    forms.file_answers = {path};
    button.Press();
  }

  Kind kind = Kinds()[GetParam()];
};

TEST_P(DataViewsTest, GoOutComeBackAndAreCompared) {
  kind.edit(kGood);
  Press(kind.write, {MsgAnswer::Yes});
  EXPECT_LT(SentLines(5).find("0CM01"), SentLines(5).rfind("0WE")) << "the axes are held";
  EXPECT_EQ(Boxes().size(), 1u) << "the question alone";
  Press(kind.verify_ct);
  EXPECT_EQ(Boxes(), Texts{"Result of Verify - OK"});
  kind.edit(kOther);
  Press(kind.verify_ct);
  EXPECT_EQ(forms.boxes.back().Details, kind.details.difference);
  EXPECT_EQ(Boxes(), Texts{kind.differs});
  Press(kind.read, {MsgAnswer::Cancel});
  EXPECT_TRUE(forms.boxes.back().Loses) << "the edit stands nowhere else";
  EXPECT_EQ(kind.held(), kOther);
  std::string refusal;
  pump.After(100'000, [&] {
    EXPECT_FALSE(CloseView(kind.view, CloseReason::ControlMenu));
    refusal = frmMain.sbStatusBar.Panels[kPanelError];
  });
  Press(kind.read, {MsgAnswer::Ok});
  EXPECT_EQ(kind.held(), kGood);
  EXPECT_EQ(refusal, Text(5941));
}

TEST_P(DataViewsTest, AreSavedOpenedAndCompared) {
  kind.edit(kGood);
  PressWithFile(kind.save, kind.file);
  EXPECT_TRUE(kind.view.Title().ends_with(std::string("-[") + (kind.file + 1) + "]"));
  const std::string saved = virt.files.Content(kind.file).value();
  EXPECT_TRUE(saved.starts_with(kind.head)) << saved.substr(0, 60);
  kind.edit(kOther);
  PressWithFile(kind.verify_file, kind.file);
  EXPECT_EQ(Boxes(), Texts{kind.differs});
  Press(kind.open, {MsgAnswer::Cancel});
  EXPECT_EQ(kind.held(), kOther);
  EXPECT_EQ(Boxes(), Texts{Text(6450)});
  forms.answers = {MsgAnswer::No};
  PressWithFile(kind.open, kind.file);
  EXPECT_EQ(kind.held(), kGood);
  EXPECT_EQ(Boxes(), Texts{Text(6450)});
  PressWithFile(kind.verify_file, kind.file);
  EXPECT_EQ(Boxes(), Texts{"Result of Verify - OK"});
  PressWithFile(kind.save, "/again");
  EXPECT_EQ(virt.files.Content("/again"), saved);
}

TEST_P(DataViewsTest, BadDataGoNowhere) {
  kind.edit(kBad);
  for (CommandButton* button : {&kind.verify_ct, &kind.verify_file, &kind.save, &kind.write}) {
    button->Press();
    EXPECT_EQ(forms.boxes.back().Details, kind.details.bad);
    EXPECT_EQ(Boxes(), Texts{button == &kind.write ? kind.bad_to_send : kind.bad_to_compare});
  }
  EXPECT_EQ(SentLines(), "");
}

TEST_P(DataViewsTest, ACloseForgetsAndTheNextVisitOffersItBack) {
  EXPECT_FALSE(kind.restore.Visible);
  kind.edit(kGood);
  CloseView(kind.view, CloseReason::Code);
  kind.menu.Press();
  EXPECT_NE(kind.held(), kGood);
  EXPECT_EQ(kind.restore.Caption, "Bring back (12:00)");
  kind.edit(kOther);
  CloseView(kind.view, CloseReason::Code);  // with the offer not taken
  kind.menu.Press();
  for (const int held : {kOther, kGood, kOther}) {  // it changes places
    kind.restore.Press();
    EXPECT_EQ(kind.held(), held);
  }
}

TEST_P(DataViewsTest, TheEndAsksAboutWhatStandsNowhereElse) {
  kind.edit(kGood);
  CloseView(kind.view, CloseReason::Code);
  for (const bool saved : {false, true}) {
    kind.menu.Press();
    if (saved) kind.restore.Press();
    if (saved) PressWithFile(kind.save, kind.file);
    if (!saved) forms.answers = {MsgAnswer::Cancel};
    frmMain.mnuFileExit.Press();
    EXPECT_EQ(BoxShown("neither saved nor written"), !saved);
    EXPECT_EQ(forms.ended, saved);
    Forget();
  }
}

TEST_P(DataViewsTest, NothingIsWrittenWhileAnAxisMovesAndARefusalIsTold) {
  kind.edit(kGood);
  port.Ct().PlaceAxis(1, 15000, pump.NowUs());
  port.Ct().Receive("0MP000F\r\n", pump.NowUs());  // somebody sends the machine home
  pump.RunFor(100'000);
  port.ReadAll();
  Press(kind.write, {MsgAnswer::Yes});
  EXPECT_TRUE(BoxShown("The writing of data is not made during movement."));
  EXPECT_EQ(SentLines(5).find("0CM01"), std::string::npos);
  pump.RunFor(10'000'000);
  Spoil(FaultKind::kErrorReply, "0W");
  Press(kind.write, {MsgAnswer::Yes});
  EXPECT_TRUE(BoxShown("Refused: " + std::string(kind.name).substr(0, 5) + " 1."));
}

INSTANTIATE_TEST_SUITE_P(Kinds, DataViewsTest, ::testing::Values(0, 1),
                         [](const auto& info) { return info.param == 0 ? "groups" : "macros"; });

// What each has for itself.

class GrpViewTest : public FlowTest {
 protected:
  void SetUp() override {
    StartOffline();
    frmMain.mnuViewGrp.Press();
  }
};

TEST_F(GrpViewTest, PagesKeysAndWhatAGroupCovers) {
  FrmGrp& f = frmGrp;
  f.optGrpNo[2].Press();
  EXPECT_EQ(f.Rows[32].lblGrpNo.Caption, "99.");
  f.Rows[32].txtGrpStartNo.Type("2a5");
  f.Rows[32].txtGrpEndNo.Type("3456");
  f.Rows[32].txtGrpEndNo.Enter();
  EXPECT_EQ(forms.focus, &f.Rows[0].txtGrpStartNo);
  f.optGrpNo[0].Press();  // the page goes with a box that was never left
  EXPECT_EQ(GrpTable.GrpStart[99], 25);
  EXPECT_EQ(GrpTable.GrpEnd[99], 345);
  AppState.PosiFirstNo = 1;
  AppState.PosiLastNo = 20;
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"10", "20", "No. 10 to 20, positions: 11"},
      {"10", "21", "not in the table"},
      {"10", "9", "no range"}};
  for (const auto& [start, end, cover] : rows) {
    f.Rows[1].txtGrpStartNo.Type(start);
    f.Rows[1].txtGrpEndNo.Type(end);
    f.Rows[1].txtGrpEndNo.LostFocus();
    EXPECT_EQ(f.Rows[1].lblGrpCover.Caption, cover);
  }
  GrpTable = {};
}

TEST_F(GrpViewTest, FilesOfOlderProductsAndOfOtherKinds) {
  virt.files.Put("/old.grp", "\"QV-L2\",\"GRP\"\r\n99,3\r\n\"7\",3,9\r\n");
  forms.file_answers = {"/old.grp"};
  frmGrp.cmdGrpFileOpen.Press();
  EXPECT_EQ(GrpTable.GrpEnd[7], 9);
  GrpTable.GrpEnd[7] = 8;
  GrpShow();
  virt.files.Put("/p.pmt", "\"QV-R7\",\"PRM\"\r\n5\r\n");
  forms.file_answers = {"/p.pmt"};
  forms.answers = {MsgAnswer::No};
  frmGrp.cmdGrpFileOpen.Press();
  EXPECT_EQ(GrpTable.GrpEnd[7], 8);
  ASSERT_EQ(forms.boxes.size(), 2u);
  EXPECT_TRUE(BoxShown("Not GRP Data file for QV-TR7.\nOpening file is canceled."));
}

TEST_F(GrpViewTest, AMacroStepByItsCommand) {
  frmMain.mnuViewSM.Press();
  FrmSqMcr& f = frmSqMcr;
  f.UpDownSmNo.Set(3);
  EXPECT_FALSE(f.Rows[15].txtSmData.Enabled) << "an end takes no value";
  f.Rows[15].comboMerei.Pick(2);
  f.Rows[15].txtSmData.GotFocus();
  EXPECT_EQ(SmTable[2][15], (SmStep{2, 1})) << "a value out of range becomes 1";
  f.Rows[15].txtSmData.Type("5");
  EXPECT_NE(SmTable[2][15].Value, 5) << "IN-OFF takes 1 to 4";
  SmTable[2] = {};
  SmTable[4][0] = {kSmBlank, 3};
  EXPECT_EQ(SmData_Check(), 0);
  EXPECT_EQ(SmTable[4][0], SmStep{}) << "a blank cell of the controller is an end";
}

class SysParaViewTest : public FlowTest {};

TEST_F(SysParaViewTest, AreReadMarkedRefusedAndWritten) {
  StartOnline();
  frmMain.mnuViewSysPara.Press();
  Forget();
  FrmSystemPara& f = frmSystemPara;
  TextBox& slot17 = f.Fields[16].txtSystemPara;
  forms.answers = {MsgAnswer::Yes};
  f.cmdWritetoCt.Press();
  EXPECT_TRUE(BoxShown("No data in some of parameters"));
  EXPECT_EQ(SentLines(), "") << "an empty field stops it before the line is used";
  f.cmdReadFromCt.Press();
  EXPECT_EQ(slot17.Text, "32");
  Forget();
  slot17.Type("256");
  EXPECT_EQ(slot17.Difference, "In the controller: 32");
  for (const auto& [value, box] : {std::pair{"256", "Invalid value in some parameters."},
                                   {"255", "Completed writing parameters."}}) {
    slot17.Type(value);
    forms.answers = {MsgAnswer::Yes};
    f.cmdWritetoCt.Press();
    EXPECT_TRUE(BoxShown(box));
    EXPECT_EQ(forms.boxes.back().Details, slot17.Text == "256" ? "No. 17: 256 (0 to 255)\n" : "");
    Forget();
  }
  EXPECT_EQ(port.Ct().CommittedSystemBlock(2).substr(0, 2), "FF");
  slot17.Type("0255");
  EXPECT_EQ(slot17.Difference, "");
  for (const bool another : {false, true}) {
    CloseView(f, CloseReason::Code);
    GoOffline();
    frmMain.mnuViewSysPara.Press();
    EXPECT_EQ(slot17.Text, "") << "offline nobody knows what the controller holds";
    CloseView(f, CloseReason::Code);
    if (another) AppState.CtVersionText = "000";  // of the one before
    frmMain.mnuSettingOnline.Press();
    frmMain.mnuViewSysPara.Press();
    EXPECT_EQ(slot17.Text.empty(), another);
  }
  slot17.Type("7");
  forms.answers = {MsgAnswer::Cancel};
  EXPECT_FALSE(CloseView(f, CloseReason::Code)) << "it is in no controller";
}

}  // namespace
}  // namespace tr7
