// What differs between two sides, and what the user takes over: one view for every kind of data.

#include <cctype>

#include "forms/frm_compare.h"
#include "forms/frm_grp.h"
#include "forms/frm_prog_no.h"
#include "forms/frm_sq_mcr.h"
#include "prog/prog_align.h"
#include "prog/prog_listing.h"
#include "prog/prog_undo.h"
#include "prog/prog_view.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

using enum MsgAnswer;
using Visit = std::function<void()>;

enum Source { kScreen, kController, kFile };

/// A kind of data as the user meets it.
struct Kind {
  const char* name;
  CommandButton &compare, &save;
  std::function<void()> load;
  std::function<void(const char* value)> edit;  ///< types a value into one place
  std::function<std::string()> held;            ///< what stands there
  const char *of_controller, *typed;
  const char *row, *file_row;  ///< of the difference, against the controller and the file
  int compared;
};

void Leave(TextBox& box, const char* value) {
  box.Type(value);
  box.LostFocus();
}

class CompareTest : public FlowTest, public ::testing::WithParamInterface<std::size_t> {
 protected:
  std::vector<Kind> Kinds() {
    const auto open_and_read = [this](Menu& menu, CommandButton& read) {
      menu.Press();
      forms.answers = {Ok};
      read.Press();
    };
    return {
        {"positions", frmPosi.cmdPosiCompare, frmPosi.cmdPosiSaveAs, [this] { ReadRange(2, 4); },
         [](const char* value) { frmPosi.flgdData.TypeInto(RowOfPosition(3), kVel, value); },
         [] { return Cell(3, kVel); }, "30", "45", "VEL1 3: 45 | 30", "VEL1 3: 30 | 45", 81},
        {"parameters", frmParameta2.cmdParaCompare, frmParameta2.cmdSaveParaFile,
         [=] { open_and_read(frmMain.mnuViewPara, frmParameta2.cmdParaRead); },
         [](const char* value) { Leave(frmParameta2.txtHomePush[1], value); },
         [] { return frmParameta2.txtHomePush[1].Text; }, "50", "77", "PUSH AXIS2: 77 | 50",
         "PUSH AXIS2: 50 | 77", 103},
        {"groups", frmGrp.cmdGrpCompare, frmGrp.cmdGrpFileSave,
         [=] { open_and_read(frmMain.mnuViewGrp, frmGrp.cmdReadGrp); },
         [](const char* value) { Leave(frmGrp.Rows[0].txtGrpEndNo, value); },
         [] { return frmGrp.Rows[0].txtGrpEndNo.Text; }, "4", "99", "Group 1: 1 - 99 | 1 - 4",
         "Group 1: 1 - 4 | 1 - 99", 99},
        {"macros", frmSqMcr.cmdSmCompare, frmSqMcr.cmdSmFileSave,
         [=] { open_and_read(frmMain.mnuViewSM, frmSqMcr.cmdReadSMfromCt); },
         [](const char* value) {
           frmSqMcr.Rows[1].comboMerei.Pick(3);
           frmSqMcr.Rows[1].txtSmData.Type(value);
         },
         [] { return frmSqMcr.Rows[1].txtSmData.Text; }, "1", "4",
         "Step 2 1: 3. OUT-ON 4 | 3. OUT-ON 1", "Step 2 1: 3. OUT-ON 1 | 3. OUT-ON 4", 320},
        {"programs", program.cmdProgCompare, program.cmdProgSaveAs,
         [this] {
           forms.on_modal["frmProgNo"] = [](View&) { frmProgNo.cmdOk.Press(); };
           ShowView(program);
           PutSteps({"TIM 1", "VEL 30", "STOP 5"});
           program.cmdProgWrite.Press();
         },
         [this](const char* value) { program.flgdProg.TypeInto(2, kProgOperand1, value); },
         [this] { return program.flgdProg.Text(2, kProgOperand1); }, "30", "45",
         "Changed step 2: VEL 45 | VEL 30", "Changed step 2: VEL 30 | VEL 45", 3},
    };
  }
  void SetUp() override {
    StartOnline();
    AnswerRange("frmSelectPosiNo3", 2, 4);
    kind.load();
    Forget();
  }

  /// The listing's steps: command and first operation, with a blank between.
  void PutSteps(const Texts& steps) {
    program.flgdProg.SetRows(1);
    program.flgdProg.SetRows(1 + static_cast<int>(steps.size()));
    for (int row = 1; row < program.flgdProg.Rows(); ++row) {
      const std::string& step = steps[row - 1];
      const std::size_t blank = step.find(' ');
      program.flgdProg.SetText(row, kProgCommand, step.substr(0, blank));
      program.flgdProg.SetText(row, kProgOperand1, step.substr(blank + 1));
    }
  }
  Texts Steps() const {
    Texts steps;
    for (int row = 1; row < program.flgdProg.Rows(); ++row) {
      steps.push_back(program.flgdProg.Text(row, 1) + " " + program.flgdProg.Text(row, 2));
    }
    return steps;
  }

  static Visit Compare(Source here, Source there) {
    return [=] {
      frmCompare.comboHere.Pick(here);
      frmCompare.comboThere.Pick(there);
      frmCompare.cmdCompare.Press();
    };
  }
  /// Presses the kind's button; what the user does in the view, one after the other.
  void Run(std::vector<Visit> visits) {
    forms.modals.clear();
    InDialog("frmCompare", {[visits] {
               for (const Visit& visit : visits) visit();
               frmCompare.cmdClose.Press();
             }});
    kind.compare.Press();
    EXPECT_EQ(std::count(forms.modals.begin(), forms.modals.end(), "frmCompare"), 1);
  }
  static std::string Row(int row) {
    const auto cell = [row](int col) -> std::string {
      return frmCompare.flgdCompare.Text(row, col);
    };
    return cell(0) + " " + cell(1) + ": " + cell(2) + " | " + cell(3);
  }
  /// The rows on show, and the words above and below them.
  static Texts Shown() {
    Texts texts;
    for (int row = 1; row < frmCompare.flgdCompare.Rows(); ++row) texts.push_back(Row(row));
    return texts;
  }
  static std::string Count(int differing, int compared) {
    const std::string all = std::to_string(compared);
    return differing == 0 ? Text(6561, all) : Text(6560, std::to_string(differing), all);
  }

  ProgView& program = NewProgView();
  Kind kind = Kinds()[GetParam()];
};

TEST_P(CompareTest, AgainstTheControllerAndTakenOverOneByOne) {
  kind.edit(kind.typed);
  pump.After(20'000, [] { EXPECT_TRUE(frmCompare.Visible && !frmCompare.cmdClose.Enabled); });
  Run({Compare(kScreen, kController), [this] {
         EXPECT_EQ(Shown(), Texts{kind.row});
         EXPECT_EQ(frmCompare.lblCount.Caption, Count(1, kind.compared));
         frmCompare.chkEqualToo.Set(true);
         EXPECT_EQ(Shown().size(), kind.compared);
         frmCompare.chkEqualToo.Set(false);
         port.sent.clear();
         frmCompare.flgdCompare.Choose();
         EXPECT_EQ(SentLines(), "") << "nothing goes to the controller";
         EXPECT_EQ(Shown(), Texts());
         EXPECT_EQ(frmCompare.lblCount.Caption, Count(0, kind.compared));
         EXPECT_FALSE(frmCompare.cmdTake.Enabled);
       }});
  EXPECT_EQ(kind.held(), kind.of_controller);
  EXPECT_TRUE(GetParam() != 0 || frmPosi.PosiChanged);
  Run({Compare(kController, kScreen), [] { EXPECT_EQ(Shown(), Texts()); }});
}

TEST_P(CompareTest, AFileAgainstTheOtherTwoAndTakenOverAtOnce) {
  kind.edit(kind.typed);
  forms.file_answers = {"/typed"};
  forms.answers = {Ok};
  kind.save.Press();
  kind.load();
  forms.file_answers = {"/typed", "/typed", "/typed"};
  Run({Compare(kFile, kController), [this] {
         EXPECT_EQ(Shown().size(), 1u);
         EXPECT_FALSE(frmCompare.cmdTakeAll.Enabled) << "this side is not the screen";
         Compare(kScreen, kFile)();
         EXPECT_EQ(Shown(), Texts{kind.file_row});
         EXPECT_EQ(frmCompare.flgdCompare.Text(0, 3), "File \"typed\"");
         forms.answers = {No, Yes};
         frmCompare.cmdTakeAll.Press();
         EXPECT_EQ(kind.held(), kind.of_controller);
         EXPECT_TRUE(forms.boxes.back().Loses) << "Enter is a No";
         frmCompare.cmdTakeAll.Press();
         EXPECT_EQ(Shown(), Texts());
       }});
  EXPECT_EQ(kind.held(), kind.typed);
}

TEST_P(CompareTest, WhatDoesNotComeInLeavesNothingToTake) {
  kind.edit(kind.typed);
  virt.files.Put("/bad", "\"QV-R7\",\"PRG\"\r\n1\r\n");
  const auto nothing = [this] {
    EXPECT_EQ(frmCompare.lblCount.Caption, Text(6562));
    EXPECT_FALSE(frmCompare.lblNote.Caption.empty()) << "it says why there is nothing";
    EXPECT_EQ(Shown(), Texts());
    EXPECT_FALSE(frmCompare.cmdTake.Enabled || frmCompare.cmdTakeAll.Enabled);
    EXPECT_EQ(kind.held(), kind.typed);
  };
  forms.file_answers = {std::nullopt, "/bad"};
  Run({Compare(kScreen, kController), [&] {
         EXPECT_EQ(Shown().size(), 1u);
         Compare(kScreen, kScreen)();  // refused in place
         EXPECT_EQ(Boxes(), Texts{Text(6563)});
         Compare(kScreen, kFile)();
         nothing();
         Compare(kScreen, kFile)();
         nothing();
         EXPECT_FALSE(Boxes().empty());
       }});
}

INSTANTIATE_TEST_SUITE_P(Kinds, CompareTest, ::testing::Range(std::size_t{0}, std::size_t{5}));

// What a kind has for itself.

using ComparePositions = CompareTest;
INSTANTIATE_TEST_SUITE_P(, ComparePositions, ::testing::Values(std::size_t{0}));

TEST_P(ComparePositions, PositionsOfOneSideAndValuesThatTheTableRefuses) {
  forms.file_answers = {"/a.qvd"};
  forms.answers = {Ok};
  kind.save.Press();
  ReadRange(3, 3);
  Forget();
  kind.edit("45");
  forms.file_answers = {"/a.qvd"};
  Run({[this] {
    Compare(kScreen, kFile)();
    EXPECT_EQ(Shown(), (Texts{"Whole position 2: (none) | (data)", "VEL1 3: 45 | 30",
                              "Whole position 4: (none) | (data)"}));
    forms.answers = {Yes};
    frmCompare.cmdTakeAll.Press();
    EXPECT_EQ(Shown(), Texts{"Whole position 2: (none) | (data)"});
    EXPECT_EQ(frmCompare.lblNote.Caption,
              Text(6570, "2") + "\n" + Text(6565, "1", "Whole position 2: " + Text(6568)));
  }});
  EXPECT_EQ(AppState.PosiLastNo, 4);
}

TEST_P(ComparePositions, TheReadingOfTheControllerIsCancelledInTheView) {
  ReadRange(1, 99);
  Forget();
  Run({[this] {
    pump.After(1'000'000, [] { frmCompare.cmdComCancel.Press(); });
    Compare(kScreen, kController)();
    EXPECT_EQ(Boxes(), Texts{Text(425)});
    EXPECT_EQ(frmCompare.lblNote.Caption, Text(7832, "Controller"));
    EXPECT_TRUE(frmCompare.cmdClose.Enabled && !frmCompare.cmdComCancel.Visible);
  }});
}

using CompareParameters = CompareTest;
INSTANTIATE_TEST_SUITE_P(, CompareParameters, ::testing::Values(std::size_t{1}));

TEST_P(CompareParameters, LockedRowsStay) {
  forms.answers = {Yes};
  frmParameta2.chkTokuParaChange.Set(true);
  Leave(frmParameta2.txtAutoStartPrgNo, "9");
  frmParameta2.chkTokuParaChange.Set(false);
  Run({Compare(kScreen, kController), [] {
         EXPECT_EQ(Shown(), Texts{"AUTO START PRG No. : 9 | 0"});
         frmCompare.cmdTake.Press();
         EXPECT_EQ(Shown().size(), 1u);
         EXPECT_NE(frmCompare.lblNote.Caption.find(Text(6567)), std::string::npos);
       }});
  EXPECT_EQ(frmParameta2.txtAutoStartPrgNo.Text, "9");
}

using ComparePrograms = CompareTest;
INSTANTIATE_TEST_SUITE_P(, ComparePrograms, ::testing::Values(std::size_t{4}));

TEST_P(ComparePrograms, StepsComeInAndGoAndCanBeHadBack) {
  PutSteps({"TIM 1", "TIM 2", "TIM 3", "VEL 0.5"});
  forms.file_answers = {"/typed", "/typed", "/typed"};
  forms.answers = {Ok, Yes};
  kind.save.Press();
  const Texts before{"TIM 1", "TIM 3", "VEL R1", "VEL 0.5"};
  PutSteps(before);
  Run({[&] {
    Compare(kScreen, kFile)();
    EXPECT_EQ(Shown(), (Texts{"Inserted step - / 2: (none) | TIM 2",
                              "Removed step 3 / -: VEL R1 | (none)"}));
    frmCompare.cmdTakeAll.Press();
    EXPECT_EQ(Shown(), Texts());
    EXPECT_EQ(Steps(), (Texts{"TIM 1", "TIM 2", "TIM 3", "VEL 0.5"}));
    EXPECT_TRUE(program.Store.ProgChanged && ProgUndo(program));
    EXPECT_EQ(Steps(), before);
  }});
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.programs[1] = "080001F400000000000";
  port.Ct() = qvr7sim::Controller(setup, 1);
  PutSteps({"VEL 1"});
  Run({Compare(kScreen, kController), [&] {
         EXPECT_EQ(Shown(), Texts{"Changed step 1: VEL 1 | VEL 500"});
         frmCompare.flgdCompare.SelectCell(1, 0);
         frmCompare.cmdTake.Press();
         EXPECT_NE(frmCompare.lblNote.Caption.find("cannot hold"), std::string::npos);
       }});
  EXPECT_EQ(Steps(), Texts{"VEL 1"}) << "typed, 500 would be another code";
}

// Letters are steps, and small and capital ones of one command; rows as "here there", "_" for none.
TEST(AlignSteps, MostStepsStandBesideTheSame) {
  const char* const rows[][3] = {
      {"abcd", "acd", "aa b_ cc dd "}, {"", "ab", "_a _b "},
      {"aBc", "abxc", "aa Bb _x cc "}, {"abab", "baba", "a_ bb aa bb _a "},
      {"axb", "aYXb", "aa _Y xX bb "}, {"aa", "aaa", "aa aa _a "}};
  for (const auto& [here, there, aligned] : rows) {
    std::vector<StepLook> looks[2];
    for (const char* step = here; *step; ++step) looks[0].push_back({*step, std::tolower(*step)});
    for (const char* step = there; *step; ++step) looks[1].push_back({*step, std::tolower(*step)});
    std::string shown;
    for (const AlignedSteps& row : AlignSteps(looks[0], looks[1])) {
      shown += {row.here < 0 ? '_' : here[row.here], row.there < 0 ? '_' : there[row.there], ' '};
    }
    EXPECT_EQ(shown, aligned);
  }
}

}  // namespace
}  // namespace tr7
