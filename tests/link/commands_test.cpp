#include "device/ct_device.h"
#include "link/motion_commands.h"
#include "link/status_commands.h"
#include "tests/support/link_test.h"

namespace tr7 {
namespace {

class CommandsTest : public LinkTest {
 protected:
  std::string LastLine() { return Sent().back(); }
};

TEST_F(CommandsTest, ControlModeText) {
  const std::tuple<int, int, int, bool, const char*> rows[] = {
      {0, 0, 15, true, "0CM00000"}, {1, 1, 3, true, "0CM11100"},  {1, 1, 3, false, "0CM11000"},
      {1, 7, 15, true, "0CM01111"}, {3, 1, 15, true, "0CM10000"}, {2, -1, 8, true, "0CM00002"}};
  for (const auto& [mode, m, mask, axis2_in_use, line] : rows) {
    Axes(true, axis2_in_use, true, true);
    AppState.Offline = True;
    CtControlModeSet(mode, m, mask);
    EXPECT_EQ(LastLine(), line);
    EXPECT_FALSE(AppState.Offline) << "lifted for the hold";
  }
}

/// A line that comes twice is there, right in length and prefix, when the next reply is waited for.
TEST_F(CommandsTest, ALateReplyOfAnotherBoardOrBlockIsRefused) {
  const auto read_blocks = [] {
    std::string reply;
    return ReadParaBlock('3', 1000, reply) != 0 ? 1 : ReadParaBlock('4', 1000, reply);
  };
  const std::tuple<const char*, std::function<int()>, const char*> rows[] = {
      {"0RV2", [] { return GetAxisVersionNo(4); }, "0RV3"}, {"0RD3", read_blocks, "0RD4"}};
  for (const auto& [doubled, read, last] : rows) {
    Spoil(qvr7sim::FaultKind::kDoubled, doubled);
    EXPECT_EQ(read(), 1);
    EXPECT_EQ(LastLine(), last);
    pump.RunFor(1'000'000);  // what is left on the line goes by
  }
}

}  // namespace
}  // namespace tr7
