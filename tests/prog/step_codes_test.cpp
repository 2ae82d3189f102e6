// Cells to codes and back, by the vocabulary.

#include <random>
#include <sstream>

#include "base/text_helpers.h"
#include "prog/command_list.h"
#include "prog/prog_hint.h"
#include "prog/prog_step.h"
#include "prog/step_decode.h"
#include "prog/step_encode.h"
#include "prog/vocabulary.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class StepCodes : public StateTest {
 protected:
  StepCodes() { EXPECT_EQ(ReadCommandLst(), 0); }
};

constexpr std::int32_t kUnread = -77;

std::int32_t Encoded(const char* command, int column, const char* text) {
  return seekInputData(SeekCmdCode(command), column, text).value_or(kUnread);
}

std::string Shown(const char* command, int column, std::int32_t code) {
  ProgStep step;
  step[kProgCommand] = SeekCmdCode(command);
  step[column] = code;
  return StepCellToText(step, column).Text();
}

TEST_F(StepCodes, TypedTextsBecomeCodes) {
  const struct {
    const char* command;
    int column;
    const char* text;
    std::int32_t code;
    const char* marked = nullptr;  ///< a part of what the cell is marked with
  } rows[] = {
      {"MVP", 2, "999", 999000},
      {"MVP", 3, "1000", 0, "counts for nothing here. It takes position 1 to 999, R1 to R100"},
      {"MVP", 2, "R101", 4190608, "out of range"},
      {"MVP", 2, "r1", 4190608},
      {"MVP", 2, "1.5", 1500, "out of range"},
      {"MVP", 3, "PR1", 0, "counts for nothing"},
      {"MVP", 2, "SPRING", kUnread, "cannot be read"},
      {"MVP", 2, "i1", kUnread, "cannot be read"},
      {"PMOV", 3, "5", 0, "does not use"},
      {"HOME", 2, "16", 0, "axis pattern 1 to 15"},
      {"VEL", 2, "401", 0, "speed 1 to 400"},
      {"ACC", 2, "2000", 200000},
      {"ACC", 2, "9.99", 0, "counts for nothing"},
      {"ACC", 2, "R1", 0, "counts for nothing"},
      {"TIM", 2, "999.999", 999999},
      {"TIM", 2, "1000", 1000, "counts as 1 seconds"},
      {"LB", 2, "51", 51000, "out of range"},
      {"JUMP", 2, "r50", 4190657},
      {"CALL", 2, "99", 99000, "out of range"},
      {"WTON", 2, "O17", 4190245, "out of range"},
      {"WTON", 3, "1000", 1000000, "out of range"},
      {"ON", 2, "I1", 0, "O1 to O16, F1 to F100, f1 to f50"},
      {"OUT", 2, "256", 256000, "out of range"},
      {"=", 3, "-5", 0, "counts for nothing"},
      {"=", 3, "PR4", 4190712},
      {"<=", 3, "0.0005", 1},
      {"ZOUT", 3, "0.5", 500, "out of range"},
      {"PUST1", 2, "0", 0},
      {"PUST4", 2, "19", 19000, "0, 20 to 70"},
      {"MVP", 4, "/f50", 1249},
      {"MVP", 4, "I18", 18},
      {"MVP", 4, "R1", 0, "counts for nothing"},
      {"LB", 4, "I1", 0, "does not use"},
      {"MVP", 5, "F100", 199},
      {"MVP", 5, "I3", 3, "out of range"},
      {"MVP", 5, "7", 0, "counts for nothing"},
      {"VEL", 5, "O1", 0, "does not use"},
      {"MVP", 2, "99999999999999999999", 0, "counts for nothing"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.command) + " " + row.text);
    EXPECT_EQ(Encoded(row.command, row.column, row.text), row.code);
    const std::string fault = CellFault(SeekCmdCode(row.command), row.column, row.text);
    EXPECT_EQ(fault.empty(), !row.marked) << fault;
    EXPECT_NE(fault.find(row.marked ? row.marked : ""), std::string::npos) << fault;
  }
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
    EXPECT_EQ(Shown(command.c_str(), column, code), text == "_" ? "" : text) << command << code;
  }
  EXPECT_EQ(count, 26);
}

// Whatever a controller holds is shown, and what is not marked as doubtful reads back as it was.
TEST_F(StepCodes, AnyDigitsShowAndReadBack) {
  std::mt19937 random(1);
  int read_back = 0;
  for (int i = 0; i < 200'000; ++i) {
    ProgStep step;
    step[kProgCommand] = static_cast<int>(random() % 70);
    const int column = 2 + static_cast<int>(random() % 4);
    constexpr std::int32_t kBelow[] = {0x1000000, 1000'000, 100, 510};
    const std::int32_t above = random() % 2 && column <= 3 ? kBandBase : 0;
    step[column] = std::min<std::int32_t>(
        above + static_cast<std::int32_t>(random() % kBelow[above ? 3 : random() % 4]), 0xFFFFFF);
    const StepCell cell = StepCellToText(step, column);
    const std::string text = cell.Text().empty() ? "0" : cell.Text();
    if (cell.bare || cell.Text().empty() || !CellFault(step[kProgCommand], column, text).empty()) {
      continue;
    }
    ++read_back;
    EXPECT_EQ(seekInputData(step[kProgCommand], column, text), step[column]) << text;
  }
  EXPECT_GT(read_back, 20'000);
}

TEST_F(StepCodes, HintsTellWhatACellTakes) {
  EXPECT_EQ(ProgHint(SeekCmdCode("MVP"), 2),
            "Operation1: position 1 to 999, R1 to R100, r1 to r50");
  EXPECT_EQ(ProgHint(SeekCmdCode("PTST"), 5),
            "Result: O1 to O16, F1 to F100, f1 to f50, must be given");
  EXPECT_EQ(CommandMeaning(SeekCmdCode("%")), "%: Operation1 becomes Operation1 % Operation2");
  for (int code = 0; code < kCommands; ++code) {
    EXPECT_NE(CommandMeaning(code).find(CmdName(code)), std::string::npos) << code;
  }
}

TEST_F(StepCodes, AListOfAnotherLengthIsToldOnceAndAMissingOneEachTime) {
  PutList("Command.lst", "2\r\n\"A\"\r\n\"B\"\r\n");
  EXPECT_EQ(ReadCommandLst() + ReadCommandLst(), 0);
  EXPECT_EQ(SeekCmdCode("B"), 1);
  EXPECT_EQ(Boxes().size(), 1u);
  PutList("Command.lst", "3\r\n\"A\"\r\n");
  EXPECT_EQ(ReadCommandLst(), 1);
  EXPECT_TRUE(BoxShown("No device list file."));
  EXPECT_EQ(SeekCmdCode("A"), -1);
}

}  // namespace
}  // namespace tr7
