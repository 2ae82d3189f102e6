// Groups, sequence macros and tuning values: the bytes that carry them both ways.

#include "data/grp_commands.h"
#include "data/grp_table.h"
#include "data/sm_commands.h"
#include "data/sm_table.h"
#include "para/sys_para.h"
#include "para/sys_para_commands.h"
#include "steps/outcome.h"
#include "tests/support/link_test.h"

namespace tr7 {
namespace {

class DataTest : public LinkTest {};

TEST_F(DataTest, GroupsGoOutAndComeBack) {
  GrpTable.GrpStart[1] = 1;
  GrpTable.GrpEnd[1] = 999;
  GrpTable.GrpStart[99] = 500;
  GrpTable.GrpEnd[99] = 501;
  ASSERT_EQ(WriteGrpToCt(), Outcome::Done);
  const std::vector<std::string> lines = Sent();
  ASSERT_EQ(lines.size(), 100u);
  EXPECT_EQ(lines[0], "0WG010013E7");
  EXPECT_EQ(lines[98], "0WG631F41F5");
  EXPECT_EQ(lines[99], "0WE3");
  EXPECT_EQ(port.Ct().CommittedGroup(1), std::pair(1, 999));
  EXPECT_EQ(port.Ct().CommittedGroup(99), std::pair(500, 501));
  ASSERT_EQ(ReadGrpFromCt(), Outcome::Done);
  EXPECT_EQ(GrpStage, GrpTable);
  EXPECT_EQ(Commands(5).substr(0, 17), "0RG01 0RG02 0RG03");
}

TEST_F(DataTest, MacrosGoOutAndComeBack) {
  SmTable[0][0] = {1, 4};
  SmTable[0][15] = {6, 9};
  SmTable[19][1] = {15, 3};
  SmTable[19][2] = {0, 7};  // goes out as it stands, comes back without its value
  ASSERT_EQ(WriteSmToCt(), Outcome::Done);
  const std::vector<std::string> lines = Sent();
  ASSERT_EQ(lines.size(), 21u);
  EXPECT_EQ(lines[0], "0WS0114" + std::string(28, '0') + "69");
  EXPECT_EQ(lines[19], "0WS1400F307" + std::string(26, '0'));
  EXPECT_EQ(lines[20], "0WE1");
  EXPECT_EQ(port.Ct().CommittedMacro(1), lines[0].substr(5));
  ASSERT_EQ(ReadSmFromCt(), Outcome::Done);
  SmTableRecord expected = SmTable;
  expected[19][2].Value = 0;
  EXPECT_EQ(SmStage, expected);
}

TEST_F(DataTest, TuningValuesGoOutAndComeBack) {
  for (std::size_t slot = 1; slot <= kSysParaSlots; ++slot) {
    const bool narrow = slot >= 17 && slot <= 48;
    SysPara[slot] = static_cast<double>(slot) + (narrow ? 100 : 60000);
  }
  SysPara[1] = SysPara[17] = SysPara[72] = 0;
  SysPara[16] = 65535;
  SysPara[48] = 255;
  ASSERT_EQ(WriteSysParaToCt(), Outcome::Done);
  const std::vector<std::string> lines = Sent();
  ASSERT_EQ(lines.size(), 8u);
  EXPECT_EQ(lines[0], "0WK00000EA62EA63EA64EA65EA66EA67EA68");
  EXPECT_EQ(lines[1].substr(32), "FFFF");
  EXPECT_EQ(lines[2], "0WK200767778797A7B7C7D7E7F8081828384");
  EXPECT_EQ(lines[3].substr(34), "FF");
  EXPECT_EQ(lines[6].substr(32), "0000");
  EXPECT_EQ(lines[7], "0WF");
  EXPECT_EQ(port.Ct().CommittedSystemBlock(3), lines[3].substr(4));
  ASSERT_EQ(ReadSysParaFromCt(), Outcome::Done);
  EXPECT_EQ(SysParaRead, SysPara);
  EXPECT_EQ(Commands(), "0RK0 0RK1 0RK2 0RK3 0RK4 0RK5 0RK6");
}

}  // namespace
}  // namespace tr7
