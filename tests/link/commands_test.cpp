#include <functional>
#include <tuple>
#include <utility>

#include "device/ct_device.h"
#include "link/motion_commands.h"
#include "link/status_commands.h"
#include "state/online.h"
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

TEST_F(CommandsTest, MotionTexts) {
  AxisArray<DirectMoveAxis> axes;
  axes[1] = {true, 20, 3, 10000};
  TusinFailure failure;
  const std::pair<std::function<int()>, const char*> rows[] = {
      {[] { return MoveAxesToCt(5, 0); }, "0MP0059"},
      {[] { return MoveAxesToCt(0x3E7, 1); }, "0MS3E79"},
      {[&] { return JogStartToCt(90, 7, failure); }, "0JR90002"},
      {[&] { return JogStartToCt(5, 1, failure); }, "0JR02000"},
      {[&] { return JogStartToCt(100, 0, failure); }, "0JR01000"},
      {[] { return StartProgToCt(7); }, "0MG07"},
      {[] { return StartProgToCt(100); }, "0MG64"},
      {[&] { return MoveDirectToCt(axes, "00"); },
       "0MV0010100000001403102710001010000000010100000000"}};
  allow_unanswered = true;
  Axes(true, false, false, true);
  for (const auto& [command, line] : rows) {
    SetOnline();
    command();  // what the controller makes of it is its own affair
    EXPECT_EQ(LastLine(), line);
  }
}

TEST_F(CommandsTest, PresentPositions) {
  EXPECT_EQ(CtComStart(), 0);
  Axes(true, false, false, true);
  port.Ct().PlaceAxis(1, 1234, pump.NowUs());
  port.Ct().PlaceAxis(4, -3, pump.NowUs());
  AxisArray<std::int32_t> pulses{7, 7, 7, 7};
  ASSERT_EQ(ReadPresentPosFromCt(pulses), 0);
  EXPECT_EQ(LastLine(), "0RC9");
  EXPECT_EQ(pulses, (AxisArray<std::int32_t>{1234, 7, 7, 0}));
  AppState.AxisPattern = 15;
  EXPECT_EQ(ReadAlarmFromCt(), 1) << "the controller answers F for four axes at rest";
}

TEST_F(CommandsTest, Versions) {
  EXPECT_EQ(GetVersionNo() + GetAxisVersionNo(4), 0);
  EXPECT_EQ(AppState.CtVersionText + AppState.CtModelMarker + AppState.AxisVersionText[3],
            "140R4M120");
  EXPECT_EQ(GetVersionNoAxis(), 4);
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
