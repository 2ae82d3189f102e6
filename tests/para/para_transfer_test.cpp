// The parameter memory in blocks: the place of every row, and the bytes that carry it both ways.

#include "device/ct_device.h"
#include "para/para_blocks.h"
#include "para/para_check.h"
#include "para/para_transfer_commands.h"
#include "steps/outcome.h"
#include "tests/support/link_test.h"

namespace tr7 {
namespace {

using qvr7sim::FaultKind;

class BlocksTest : public LinkTest {
 protected:
  /// The controller holds this in a block.
  void PlantBlock(int block, const std::string& data) {
    Plant(std::string("0WD") + ParaBlockChar(block) + data);
    ASSERT_EQ(port.Ct().WrittenBlock(block), data);
  }
  /// Reads the controller's parameters into `ParamSet`.
  void Take() {
    ASSERT_EQ(ReadParaFromCt(), Outcome::Done);
    ASSERT_EQ(TakeParamTable(), 0);
    Sent();
  }
};

/// Both ends of every row's range as the check has them, found by asking it.
std::pair<double, double> RangeOf(ParamSetRecord set, int row) {
  const auto holds = [&](double value) {
    return SetParaValue(set, row, 0, value) && ParaRowInRange(set, row, 0);
  };
  double low = 0, high = 262143;
  while (!holds(low)) ++low;
  while (!holds(high) && high > low) --high;
  return {low, high};
}

TEST_F(BlocksTest, EveryRowHoldsBothEndsOfItsRange) {
  Take();
  for (int row = 1; row <= kParaRows; ++row) {
    if (row == kRowActuator) continue;
    SCOPED_TRACE(ParaRowName(row));
    ParamSetRecord wide = ParamSet;
    // Beyond a lead of 8 the jog speed is not checked: as much as its row holds.
    if (row == kRowJogVel) wide.AxisLead[0] = 9;
    if (row == 3) wide.AxisLead[0] = 8;
    const auto [low, high] = RangeOf(wide, row);
    ASSERT_LT(low, high);
    for (const double value : {low, high}) {
      for (int axis = 0; axis < (IsAxisRow(row) ? kAxes : 1); ++axis) {
        ParamSetRecord before = wide;
        SetParaValue(before, row, axis, value);
        ParaBlocks blocks;
        blocks.fill(std::string(kParaBlockLength, '7'));
        ASSERT_FALSE(EncodePara(before, AxisList(kAllAxes), blocks));
        ParaTableRecord table;
        ASSERT_TRUE(DecodePara(blocks, AxisList(kAllAxes), table));
        EXPECT_EQ(table, ParaTableOf(before)) << value;
      }
    }
  }
}

TEST_F(BlocksTest, DeviceTexts) {
  Take();
  const auto encoded = [](const char* size, const char* speed, int stroke) {
    ParamSetRecord set = ParamSet;
    set.ActSize[1] = size;
    set.ActSpeed[1] = speed;
    set.ActStroke[1] = static_cast<std::int16_t>(stroke);
    set.Actuator[1] = JoinActuator(size, speed, stroke);
    ParaBlocks blocks;
    blocks.fill(std::string(kParaBlockLength, '0'));
    if (EncodePara(set, AxisList(kAllAxes), blocks)) return std::string("refused");
    ParaTableRecord table;
    EXPECT_TRUE(DecodePara(blocks, AxisList(kAllAxes), table));
    EXPECT_EQ(table[1][kRowActuator], Variant(set.Actuator[1]));
    return blocks[7].substr(16, 8);
  };
  EXPECT_EQ(encoded(" 42", "D", 600), "42D 5802");
  EXPECT_EQ(encoded("E35", "L", 255), "35E FF00");
  for (const char* size : {"E35", "A28"}) EXPECT_EQ(encoded(size, "H", 100), "refused");
  for (const char* speed : {"E", "LL"}) EXPECT_EQ(encoded(" 28", speed, 100), "refused");
  EXPECT_EQ(encoded(" 28", "L", 1000), "refused");
}

// Writing.

TEST_F(BlocksTest, WritesWhatChangedAndNothingElse) {
  // What no row holds is not the tool's to change.
  const std::string spare = "0123456789ABCDEF";
  PlantBlock(1, spare.substr(0, 8) + "04030201" + spare);
  std::string device = port.Ct().WrittenBlock(4);
  device.replace(14, 2, "A5");
  device.replace(24, 8, "CAFE1234");
  PlantBlock(4, device);
  Take();
  ParamSet.HomeVel[0] = 33;
  ParamSet.HomeSeq[2] = 4;
  ParamSet.SmTimer = 255;
  std::vector<std::string> expected;
  for (int block = 0; block < kParaBlocks; ++block) {
    expected.push_back(port.Ct().WrittenBlock(block));
  }
  expected[0].replace(8, 2, "FF");
  expected[1].replace(12, 2, "04");
  expected[2].replace(8, 4, "0021");
  EXPECT_EQ(WriteParaToCt(), Outcome::Done);
  const auto block_lines = [](const std::string& command) {
    std::string lines;
    for (const char c : std::string("0123456789ABCD")) lines += command + c + " ";
    return lines;
  };
  EXPECT_EQ(Commands(), block_lines("0RD") + block_lines("0WD") + "0WE2");
  for (int block = 0; block < kParaBlocks; ++block) {
    EXPECT_EQ(port.Ct().CommittedBlock(block), expected[static_cast<std::size_t>(block)]) << block;
  }
}

TEST_F(BlocksTest, AxesThatAreNotLiveKeepTheirBlocks) {
  Take();
  Axes(true, false, false, true);
  ParamSet.AxisLead.fill(7);
  ParamSet.HomeSeq.fill(0);
  const std::string before = port.Ct().WrittenBlock(7);
  EXPECT_EQ(WriteParaToCt(), Outcome::Done);
  EXPECT_EQ(Commands(),
            "0RD0 0RD1 0RD2 0RD3 0RD4 0RDB 0RDC 0RDD "
            "0WD0 0WD1 0WD2 0WD3 0WD4 0WDB 0WDC 0WDD 0WE2");
  EXPECT_EQ(port.Ct().CommittedBlock(7), before);
  EXPECT_EQ(port.Ct().CommittedBlock(4).substr(2, 2), "07");
  EXPECT_EQ(port.Ct().CommittedBlock(1).substr(8, 8), "00020300");
  // Axes that the parameter view adds are live though they are not in use yet.
  ParaFlags.ShownAxisCount = 2;
  EXPECT_EQ(WriteParaToCt(), Outcome::Done);
  EXPECT_NE(Commands().find("0WD7"), std::string::npos);
}

TEST_F(BlocksTest, TheAxisMaskGoesOutInAFormOfItsOwn) {
  Take();
  const std::string block0 = port.Ct().WrittenBlock(0);
  ASSERT_EQ(block0, "010F01001E0000000000000000000000");
  Axes(true, true, false, false);
  EXPECT_EQ(WriteAxisSettingToCt(), Outcome::Done);
  EXPECT_EQ(Sent(), (std::vector<std::string>{"0RD0", "0WD00010F01001E003000000000000000000"}));
  Spoil(FaultKind::kChangedByte, "0WD00010F", 3);
  EXPECT_EQ(WriteAxesAndParaToCt(), Outcome::Failed);
  EXPECT_EQ(port.Ct().WrittenBlock(0), block0) << "put back where the line serves";
  // Twice in a row, and then the parameters: the block is whole again, with what no row holds.
  EXPECT_EQ(WriteAxisSettingToCt(), Outcome::Done);
  EXPECT_EQ(WriteParaToCt(), Outcome::Done);
  EXPECT_EQ(port.Ct().CommittedBlock(0), block0);
  EXPECT_TRUE(AxisSettingSent.Block0Sent.empty());
}

}  // namespace
}  // namespace tr7
