// Programs over the line: every byte, the boxes, and what a failure leaves.

#include <random>
#include <set>

#include "forms/frm_main.h"
#include "forms/frm_prog_syogokekka.h"
#include "prog/prog_check.h"
#include "prog/prog_commands.h"
#include "prog/step_encode.h"
#include "tests/prog/prog_user.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

class ProgTransfer : public ProgUser {
 protected:
  ProgTransfer() {
    StartOnline();
    AppState.ProgStepsRead = True;  // the tests that want the counts read say so
    Forget();
  }

  ProgView& Read(int number) {
    ChooseProgram(number);
    frmMain.mnuContProgRead.Press();
    auto* view = dynamic_cast<ProgView*>(ActiveView());
    return view ? *view : NewProgView();
  }
  void Write(ProgView& view, int number) {
    ChooseProgram(number);
    view.cmdProgWrite.Press();
  }
};

TEST_F(ProgTransfer, AProgramGoesOutAndComesBack) {
  ProgView& view = Program({"MVP 1 R1 /I1 O1 lost", "= R1 1.5", "VEL 400"});
  view.Store.ProgChanged = True;
  Write(view, 12);
  EXPECT_EQ(Boxes(), Texts{Text(376)});
  EXPECT_EQ(SentLines(5), "0RA 0CM01 0WM0C 0MW0C 0CM00 0RR0C ");
  EXPECT_EQ(Lines()[2],
            "0WM0C"
            "020003E83FF12C3E915"
            "1B3FF12C0005DC00000"
            "08061A8000000000000" +
                std::string(19, '0'));
  EXPECT_FALSE(view.Store.ProgChanged);
  EXPECT_EQ(view.Caption, "Program 12");
  EXPECT_EQ(Steps(Read(12)), (Texts{"MVP 1 R1 /I1 O1", "= R1 1.500", "VEL 400"}));
}

// What may be typed and passes the check is the same in the controller.
TEST_F(ProgTransfer, AnyLegalStepsTravelUnchanged) {
  ASSERT_EQ(ReadCommandLst(), 0);
  std::mt19937 random(7);
  const auto cell = [&random] {
    constexpr const char* kTexts[] = {"0",  "1",  "2",   "20", "70",  "0.5", "R1",   "r50", "PR4",
                                      "I1", "O1", "O16", "F1", "f50", "/I1", "/f50", "999", "1.5"};
    return kTexts[random() % std::size(kTexts)];
  };
  std::set<std::int32_t> commands;
  for (int round = 0; round < 20; ++round) {
    ProgStore store;
    std::vector<ProgStep> program, back;
    while (program.size() < 100) {
      ProgStep step;
      step[kProgCommand] = 1 + static_cast<int>(random() % 57);
      for (int col = 2; col <= 5; ++col) {
        step[col] = seekInputData(step[kProgCommand], col, cell()).value_or(0);
      }
      store.ProgDA = {step};
      if (programCheckProc(store) != 0) continue;
      program.push_back(step);
      commands.insert(step[kProgCommand]);
    }
    ASSERT_EQ(WriteProgdataToCt(1 + round % 7, program), ProgWrite::Done);
    ASSERT_EQ(ReadProgDataFromCt(1 + round % 7, back), Outcome::Done);
    EXPECT_EQ(back, program);
  }
  EXPECT_GT(commands.size(), 50u) << "all but jumps and subroutines";
}

TEST_F(ProgTransfer, EachClassOfNumbersHasItsLimit) {
  ProgView& view = Program({"LB 1"});
  for (const int number : {7, 8, 21, 100}) {
    const int most = GetProgStepMax(number);
    for (const int count : {1, most - 1, most, most + 1}) {
      SCOPED_TRACE(std::to_string(count) + " steps to " + std::to_string(number));
      Put(view, Repeat(static_cast<std::size_t>(count), "TIM 1"));
      Forget();
      Write(view, number);
      if (count > most) {
        EXPECT_EQ(forms.LastBox(), "Program No." + std::to_string(number) + "is up to " +
                                       std::to_string(most) + "steps.");
        EXPECT_EQ(SentLines(3).find("0WM"), std::string::npos);
        continue;
      }
      EXPECT_EQ(Lines()[2].size(), 5u + 19u * static_cast<unsigned>(std::min(count + 1, most)));
      EXPECT_EQ(Steps(Read(number)).size(), static_cast<std::size_t>(count));
      frmMain.mnuFileClose.Press();
      SetActiveView(&view);
    }
  }
}

TEST_F(ProgTransfer, NothingFaultyIsSent) {
  ProgView& view = Program({"VEL 500"});
  view.cmdProgWrite.Press();
  EXPECT_TRUE(view.ErrPaneIsOpen);
  EXPECT_TRUE(BoxShown(Text(134)));
  Put(view, {"TIM 1", "MVP 1 _ _ F200"});  // two digits hold up to 255
  Write(view, 1);
  EXPECT_TRUE(BoxShown("Step 2, Result"));
  Put(view, {"TIM 1"});
  Write(view, 0);
  EXPECT_EQ(SentLines(3).find("0WM"), std::string::npos);
}

TEST_F(ProgTransfer, TheCountsAreReadOnceAnOnlinePeriod) {
  AppState.ProgStepsRead = False;
  ProgView& view = Program({"TIM 1"});
  Write(view, 1);
  EXPECT_EQ(SentLines(3).find("0RR 0RR 0RR"), 0u);
  EXPECT_EQ(ProgCt.ProgStepCounts[1], 1);
  Forget();
  Write(view, 2);
  EXPECT_EQ(SentLines(3), "0RA 0CM 0WM 0MW 0CM 0RR ");
  Boxes();
  GoOffline();
  EXPECT_FALSE(AppState.ProgStepsRead);
}

TEST_F(ProgTransfer, AWriteThatFailsSaysWhatItHasLeft) {
  const struct {
    FaultKind fault;
    const char* at;
    bool half;
  } rows[] = {{FaultKind::kSilence, "0WM", true},
              {FaultKind::kErrorReply, "0WM", false},
              {FaultKind::kSilence, "0MW", true},
              {FaultKind::kErrorReply, "0MW", true}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.at);
    StartAnew();
    StartOnline();
    AppState.ProgStepsRead = True;
    ProgView& view = Program({"TIM 1"});
    view.Store.ProgChanged = True;
    Spoil(row.fault, row.at, 0);
    Write(view, 3);
    EXPECT_EQ(BoxShown("neither the old one nor the new one"), row.half);
    EXPECT_TRUE(view.Store.ProgChanged);
    virt.port.Ct().ClearFaults();
    Boxes();
  }
}

TEST_F(ProgTransfer, AnEmptyStepThatCutsTheProgramIsTold) {
  Write(Program({"TIM 1", "NOP", "TIM 2"}), 3);
  EXPECT_TRUE(BoxShown("neither the old one nor the new one"));
}

TEST_F(ProgTransfer, VerifyTellsEqualOrWhereItDiffers) {
  ProgView& view = Program({"TIM 1 _ _ _ here", "VEL 1"});
  Write(view, 3);
  Boxes();
  ChooseProgram(3);
  view.cmdProgVerifyCt.Press();
  EXPECT_EQ(Boxes(), Texts{Text(354) + "\n\n" + Text(826)});
  Put(view, {"TIM 2"});
  ChooseProgram(3);
  std::string rows;
  InDialog("frmProgSyogokekka", {[&rows] {
             const Grid& grid = frmProgSyogokekka.flgdProgSyogoKekka;
             for (int row = 1; row < grid.Rows(); ++row) {
               for (int col = 0; col < grid.Cols(); ++col) rows += grid.Text(row, col);
             }
             frmProgSyogokekka.cmdClose.Press();
           }});
  view.cmdProgVerifyCt.Press();
  EXPECT_EQ(rows, "1OXOOO2XXXXX");
  Spoil(FaultKind::kSilence, "0RM", 0);
  ChooseProgram(3);
  view.cmdProgVerifyCt.Press();
  EXPECT_NE(ActiveView(), &view) << "a failed read closes the view";
}

TEST_F(ProgTransfer, AFailedReadOpensNoView) {
  Spoil(FaultKind::kSilence, "0RM", 0);
  View* front = ActiveView();
  ChooseProgram(5);
  frmMain.mnuContProgRead.Press();
  EXPECT_EQ(ActiveView(), front);
  EXPECT_TRUE(BoxShown(Text(425)));
}

}  // namespace
}  // namespace tr7
