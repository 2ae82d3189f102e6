// The passes over a program, in their order, with every outcome that is meant to be odd.

#include "prog/prog_check.h"

#include "tests/prog/prog_user.h"

namespace tr7 {
namespace {

class ProgCheck : public ProgUser {
 protected:
  ProgCheck() { StartOffline(true); }

  /// "2:22 2:22": step and tag of every record.
  std::string Found(ProgView& view) {
    EXPECT_EQ(TorikomiProg2DA(view), 0);
    const int result = programCheckProc(view.Store);
    EXPECT_EQ(result, view.Store.ProgErrList.empty() ? 0 : 1);
    std::string found;
    for (const ProgError& error : view.Store.ProgErrList) {
      const std::size_t tag = error.text.find(" [SyntaxErr No.");
      found += std::to_string(error.step) + ":" + error.text.substr(tag + 15);
      found.back() = ' ';
    }
    return found;
  }
};

TEST_F(ProgCheck, EveryPassFindsWhatItLooksFor) {
  const std::pair<Texts, const char*> rows[] = {
      {{"MVP 1", "MVA R1 999", "MVI r50 r1", "VEL R1", "ACC 2000", "TIM 999.999 _ /f50"}, ""},
      {{"SR 1", "SRET"}, "1:1 "},
      {{"MVP 0", "PMOV 1 _ _ O1", "MVP 1 1000", "MVP R101"}, "1:2 "},
      {{"ACC R1", "ACC 9", "VEL 0", "VEL 400"}, "1:3 2:3 3:4 "},
      {{"STPG 100", "EDPG 101", "STPG r1"}, "2:5 "},
      {{"NOP", "SR 21", "SRET", "CALL 21", "CALL 7", "CALL R1"}, "2:10 4:10 4:10 "},
      {{"LB 51", "JUMP 51", "JUMP 50"}, "1:7 2:7 1:7 1:7 2:7 3:21 "},
      {{"LB 1", "LB 1", "JUMP 1", "JUMP r1"}, "2:21 "},
      {{"TIM 1000", "TIM PR1"}, ""},  // 1000 counts as 1.000, and PR1 as 0
      {{"WTON O17", "WTOF I1 1000", "WTON f50 999.999"}, "1:14 2:14 "},
      {{"ON O1", "OFF F1 f1", "ON I1", "ON O1 5"}, "3:14 "},
      {{"IN R1 I1", "INB r1 O1"}, "2:14 "},
      {{"OUT 255 O1", "OUT 256 O1", "OUTB 99 F1", "OUTB 100 F1", "OUT R1"}, "2:14 4:14 5:14 "},
      {{"= R1 2000", "+ PR0 1", "- 5 1", "= R1 2000.001", "* R1 -5"}, "3:14 4:14 "},
      {{"% R1 2001", "< R1 2001 _ O1", "== R1 1", "<= r1 PR4"}, "1:14 2:14 3:23 4:23 "},
      {{"PPUT 4 1", "PGET 5 1", "PTST 15 R1 _ O1", "PTST 15 PR1 _ O1", "PTST 1 1"},
       "2:14 4:14 5:23 "},
      {{"CPRD 4", "CPRD 0", "ZOUT 1 2 _ O1", "ZOUT 1 0.5 _ O1"}, "2:14 4:14 "},
      {{"JOG+ 15 I1", "JOG- 1", "JOG+ 16 I1"}, "2:14 3:14 "},
      {{"ZONE1 0 1000", "ZONE4 1001 0", "PUST1 0 100", "PUST4 19 0", "PUST2 70 101"},
       "2:14 4:14 5:14 "},
      {{"CLR R1 r1", "CLR 5 R1"}, "2:14 "},
      {{"HOME 15", "PGR", "MVD 16"}, "2:16 3:16 "},
      {{"SRET"}, "1:22 1:22 "},
      {{"NOP", "SR 1", "NOP"}, "3:22 "},
      {{"NOP", "SR 1", "SR 1", "SRET"}, "3:22 3:22 "},
      {Texts(20, "SR 1"), "1:1 2:22 2:22 "},
      {Texts(12, "VEL 0"), "1:4 2:4 3:4 4:4 5:4 6:4 7:4 8:4 9:4 10:4 11:4 "},
  };
  ProgView& view = Program({"NOP"});
  for (const auto& [steps, found] : rows) {
    view.flgdProg.SetRows(1);
    Put(view, steps);
    EXPECT_EQ(Found(view), found) << steps[0] << " ...";
  }
}

TEST_F(ProgCheck, TheCommandTellsAndOpensThePane) {
  ProgView& view = Program({"VEL 500", "_", "MVP 1"});
  view.cmdProgCheck.Press();
  EXPECT_EQ(Boxes(), Texts{Text(134) + "\n" + Text(135)});
  EXPECT_EQ(Steps(view), (Texts{"VEL 500", "MVP 1"})) << "empty steps go";
  EXPECT_EQ(view.flgdPrgErr.Text(1, 1), "1");
  EXPECT_EQ(view.flgdPrgErr.Text(1, 2), Text(3103) + " [SyntaxErr No.4]");
  view.cmdCloseSyntaxErr.Press();
  EXPECT_FALSE(view.ErrPaneIsOpen);
  view.flgdProg.TypeInto(1, 2, " 400 ");
  view.cmdProgCheck.Press();
  EXPECT_EQ(Boxes(), Texts{Text(133)});
  EXPECT_EQ(view.flgdPrgErr.Text(1, 2), "") << "the errors of before are no more";
  Put(view, {"VEL 1", "VEL R"});
  view.cmdProgCheck.Press();
  EXPECT_NE(Boxes().at(0).find("Step 2, Operation1"), std::string::npos);
  EXPECT_TRUE(view.Store.ProgSyntaxNg && view.ErrPaneIsOpen);
  Put(view, {"VEL 1", "VEL 2"});
  view.cmdProgCheck.Press();
  EXPECT_FALSE(view.Store.ProgSyntaxNg);
  view.cmdCloseSyntaxErr.Press();
  Boxes();
  Put(view, {});
  view.cmdProgCheck.Press();
  EXPECT_EQ(Boxes(), Texts{Text(433) + "\n" + Text(434)});
  EXPECT_FALSE(view.ErrPaneIsOpen);
}

}  // namespace
}  // namespace tr7
