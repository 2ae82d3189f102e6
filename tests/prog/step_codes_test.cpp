// Cells to codes and back, by the vocabulary.

#include <random>
#include <sstream>

#include "prog/prog_step.h"
#include "prog/step_encode.h"
#include "tests/fuzz/program_targets.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class StepCodes : public StateTest {
 protected:
  StepCodes() { EXPECT_EQ(ReadCommandLst(), 0); }
};

std::string Shown(const std::string& command, int column, std::int32_t code) {
  ProgStep step;
  step[kProgCommand] = SeekCmdCode(command);
  step[column] = code;
  return StepCellToText(step, column).Text();
}

// Command, column, text, its code, and a word of what the cell is marked with; "_" where there is
// none.
TEST_F(StepCodes, TypedTextsBecomeCodes) {
  std::istringstream rows(
      "MVP 2 999 999000 _  MVP 3 1000 0 nothing  MVP 2 R101 4190608 range  MVP 2 r1 4190608 _ "
      "MVP 2 1.5 1500 range  MVP 3 PR1 0 nothing  MVP 2 SPRING _ read  MVP 2 i1 _ read "
      "PMOV 3 5 0 use  HOME 2 16 0 pattern  VEL 2 401 0 nothing  ACC 2 2000 200000 _ "
      "ACC 2 9.99 0 nothing  ACC 2 R1 0 nothing  TIM 2 999.999 999999 _  TIM 2 1000 1000 seconds "
      "LB 2 51 51000 range  JUMP 2 r50 4190657 _  CALL 2 99 99000 range  WTON 2 O17 4190245 range "
      "WTON 3 1000 1000000 range  ON 2 I1 0 nothing  OUT 2 256 256000 range  = 3 -5 0 nothing "
      "= 3 PR4 4190712 _  <= 3 0.0005 1 _  ZOUT 3 0.5 500 range  PUST1 2 0 0 _ "
      "PUST4 2 19 19000 range  MVP 4 /f50 1249 _  MVP 4 I18 18 _  MVP 4 R1 0 nothing  LB 4 I1 0 "
      "use  LB 4 I 0 use  "
      "MVP 5 F100 199 _  MVP 5 I3 3 range  MVP 5 7 0 nothing  VEL 5 O1 0 use "
      "MVP 2 99999999999999999999 0 nothing");
  std::string command, text, code, marked;
  int column = 0, count = 0;
  for (; rows >> command >> column >> text >> code >> marked; ++count) {
    SCOPED_TRACE(command + " " + text);
    const auto encoded = seekInputData(SeekCmdCode(command), column, text);
    EXPECT_EQ(encoded ? std::to_string(*encoded) : "_", code);
    const std::string fault = CellFault(SeekCmdCode(command), column, text);
    EXPECT_TRUE(marked == "_" ? fault.empty() : fault.find(marked) != std::string::npos) << fault;
  }
  EXPECT_EQ(count, 39);
}

TEST_F(StepCodes, CodesBecomeTexts) {
  std::istringstream rows(
      "VEL 2 500 500  VEL 2 1500 1.5  MVP 2 500 _  MVP 3 0 _  LB 2 51000 _  STPG 2 101000 101000 "
      "ACC 2 255000 2550  ACC 2 999 _  PUST1 2 2000 2  PUST1 2 1999 _  PUST1 2 0 0  = 3 1500 1.500 "
      "= 3 2098652 -1.500  = 3 4190207 -2093.055  = 3 2000001 2000001  = 2 4190708 4190708 "
      "= 2 4190712 PR4  ON 3 0 _  WTON 2 4190245 4190245  WTON 2 4190457 f50  MVP 4 1036 /O16 "
      "MVP 4 19 19  MVP 5 18 18  MVP 5 249 f50  LB 4 1 _  NOP 2 5 _");
  std::string command, text;
  int column = 0, code = 0, count = 0;
  for (; rows >> command >> column >> code >> text; ++count) {
    EXPECT_EQ(Shown(command, column, code), text == "_" ? "" : text) << command << code;
  }
  EXPECT_EQ(count, 26);
}

// Whatever a controller holds is shown, and what is shown as it is meant reads back as it was.
TEST_F(StepCodes, AnyDigitsShowAndReadBack) {
  std::mt19937 random(1);
  std::string steps;
  for (int step = 0; step < 50'000; ++step) {
    constexpr std::uint32_t kBelow[] = {0x1000000, 1000'000, 100, 510};
    steps += static_cast<char>(random() % 70);
    for (int operand = 0; operand < 2; ++operand) {
      const auto which = random() % 4;
      const auto code = random() % kBelow[which] + (which == 3 ? kBandBase : 0);
      for (const int shift : {16, 8, 0}) steps += static_cast<char>(code >> shift);
    }
    const auto condition = random() % 1300;
    for (const auto byte : {condition >> 8, condition, random()}) steps += static_cast<char>(byte);
  }
  FuzzSteps(steps);
}

}  // namespace
}  // namespace tr7
