// Programs over the line: every byte, the boxes, and what a failure leaves.

#include <random>
#include <set>

#include "forms/frm_prog_syogokekka.h"
#include "prog/prog_check.h"
#include "prog/prog_hint.h"
#include "prog/vocabulary.h"
#include "sim/program_text.h"
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

// What may be typed and passes the check is the same in the controller, whose own reading of the
// texts it is.
TEST_F(ProgTransfer, AnyLegalListingTravelsUnchanged) {
  ProgView& view = Program({"NOP"});
  std::mt19937 random(7);
  constexpr const char* kTexts[] = {"",   "1",  "2",   "20", "70",  "0.5", "R1",   "r50", "PR4",
                                    "I1", "O1", "O16", "F1", "f50", "/I1", "/f50", "999", "1.5"};
  std::set<std::string> commands;
  for (int number = 1; number <= 7; ++number) {
    std::vector<ProgCells> listing;
    std::string digits;
    while (listing.size() < kMostProgSteps) {
      const int code = 1 + static_cast<int>(random() % (kCommands - 1));
      ProgCells cells;
      cells[kProgCommand] = CmdName(code);
      bool good = cells[kProgCommand] != "LB" || !commands.contains("LB");
      for (int col = kProgOperand1; col <= kProgResult; ++col) {
        if (ColumnIsUsed(code, col)) cells[col] = kTexts[random() % std::size(kTexts)];
        good = good && CellFault(code, col, cells[col]).empty();
      }
      ProgStore one;
      one.ProgDA.resize(1);
      if (!good || EncodeCells(cells, one.ProgDA[0]) + programCheckProc(one) != 0) continue;
      listing.push_back(cells);
      digits += qvr7sim::AssembleStep({cells[1], cells[2], cells[3], cells[4], cells[5]}).value();
      commands.insert(cells[kProgCommand]);
    }
    PutListing(view.flgdProg, listing);
    Forget();
    Write(view, number);
    ASSERT_EQ(Lines().at(2), "0WM0" + std::to_string(number) + digits);
    EXPECT_EQ(Read(number).Store.ProgCtDA, view.Store.ProgDA);
    frmMain.mnuFileClose.Press();
    SetActiveView(&view);
  }
  EXPECT_GT(commands.size(), 45u) << "all but jumps by number and subroutines, or nearly";
}

TEST_F(ProgTransfer, EachClassOfNumbersHasItsLimit) {
  ProgView& view = Program({"LB 1"});
  for (const int number : {7, 8, 21, 100}) {
    const int most = GetProgStepMax(number);
    for (const int count : {1, most - 1, most, most + 1}) {
      SCOPED_TRACE(std::to_string(count) + " steps to " + std::to_string(number));
      Put(view, Texts(count, "TIM 1"));
      Forget();
      Write(view, number);
      EXPECT_EQ(SentLines(3).find("0WM") == std::string::npos, count > most) << forms.LastBox();
      if (count > most) continue;
      EXPECT_EQ(Lines()[2].size(), 5u + 19u * static_cast<unsigned>(std::min(count + 1, most)));
      EXPECT_EQ(Steps(Read(number)).size(), static_cast<std::size_t>(count));
      frmMain.mnuFileClose.Press();
      SetActiveView(&view);
    }
  }
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

TEST_F(ProgTransfer, AWriteThatFailsSaysWhatItHasLeft) {
  const std::string half = "neither the old one nor the new one";
  using enum FaultKind;
  const std::tuple<FaultKind, const char*, bool, int> rows[] = {
      {kSilence, "0WM", true, 3000},   {kSilence, "0WM", true, 0}, {kErrorReply, "0WM", false, 0},
      {kSilence, "0MW", true, 3000},   {kSilence, "0MW", true, 0}, {kErrorReply, "0MW", true, 0},
      {kErrorReply, "0CM01", false, 0}};
  const auto start = [this] {
    StartAnew();
    StartOnline();
    AppState.ProgStepsRead = True;
  };
  for (const auto& [fault, at, is_half, cancel_ms] : rows) {
    start();
    Spoil(fault, at, 0);
    if (cancel_ms > 0) pump.After(cancel_ms * 1000, [] { frmMain.cmdComCancel.Press(); });
    Write(Program({"TIM 1"}), 3);
    EXPECT_EQ(BoxShown(half), is_half) << at;
    virt.port.Ct().ClearFaults();
    Boxes();
  }
  start();
  Write(Program({"TIM 1", "NOP", "TIM 2"}), 3);
  EXPECT_TRUE(BoxShown(half)) << "an empty step cuts the program";
}

}  // namespace
}  // namespace tr7
