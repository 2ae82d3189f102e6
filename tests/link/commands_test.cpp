#include <functional>
#include <utility>

#include "base/text_helpers.h"
#include "device/ct_device.h"
#include "link/motion_commands.h"
#include "link/port.h"
#include "link/status_commands.h"
#include "state/online.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class CommandsTest : public StateTest {
 protected:
  CommandsTest() { SetOnline(); }
  void Axes(bool a1, bool a2, bool a3, bool a4) { AppState.AxisMuko = {!a1, !a2, !a3, !a4}; }
  std::string LastLine() const {
    const std::string all = port.sent.substr(0, port.sent.size() - 2);
    const std::size_t before = all.rfind("\r\n");
    return before == std::string::npos ? all : all.substr(before + 2);
  }
};

TEST_F(CommandsTest, ControlModeText) {
  const struct {
    int mode, m, mask;
    bool axis2_in_use;
    std::string line;
  } rows[] = {
      {0, 0, 15, true, "0CM00000"}, {1, 1, 3, true, "0CM11100"},  {1, 1, 3, false, "0CM11000"},
      {2, 2, 15, true, "0CM22222"}, {1, 7, 15, true, "0CM01111"}, {3, 1, 15, true, "0CM10000"},
      {2, -1, 8, true, "0CM00002"},
  };
  for (const auto& row : rows) {
    Axes(true, row.axis2_in_use, true, true);
    CtControlModeSet(row.mode, row.m, row.mask);
    EXPECT_EQ(LastLine(), row.line);
  }
}

TEST_F(CommandsTest, ControlModeLiftsTheOfflineState) {
  AppState.Offline = True;
  EXPECT_EQ(CtControlModeSet(0, 0, 0), 0);
  EXPECT_TRUE(AppState.OfflineTemporarilyLifted);
  EXPECT_FALSE(AppState.Offline);
}

TEST_F(CommandsTest, ComStartMovesTheState) {
  AppState.Offline = False;
  EXPECT_EQ(CtComStart(), 0);
  EXPECT_EQ(LastLine(), "0CM1");
  port.Ct().SetSilent(true);
  EXPECT_EQ(CtComStart(), 1);
  EXPECT_TRUE(AppState.Offline);
}

TEST_F(CommandsTest, MotionTexts) {
  EXPECT_EQ(CtComStart(), 0);
  const auto line = [this](int result) {
    (void)result;  // what the controller makes of it is its own affair
    SetOnline();
    return LastLine();
  };
  allow_unanswered = true;
  EXPECT_EQ(line(MoveAxesToCt(5, 0)), "0MP005F");
  EXPECT_EQ(line(MoveAxesToCt(0x3E7, 1)), "0MS3E7F");
  EXPECT_EQ(line(MoveAxesToCt(0x1F, 0)), "0MP01FF");
  Axes(false, false, false, false);
  EXPECT_EQ(line(MoveAxesToCt(1, 0)), "0MP0010");
  Axes(true, true, true, true);
  EXPECT_EQ(line(JogStartToCt(50, 2)), "0JR50100");
  EXPECT_EQ(line(JogStartToCt(90, 7)), "0JR90002");
  EXPECT_EQ(line(JogStartToCt(5, 1)), "0JR02000");
  EXPECT_EQ(line(JogStartToCt(100, 0)), "0JR01000");
  for (const auto& [program, text] : {std::pair{7, "0MG07"}, {10, "0MG0A"}, {100, "0MG64"}}) {
    EXPECT_EQ(line(StartProgToCt(program)), text);
  }
  AxisArray<DirectMoveAxis> axes;
  axes[1] = {true, 20, 3, 10000};
  EXPECT_EQ(line(MoveDirectToCt(axes, "00")),
            "0MV00101000000"
            "01403102710"
            "00101000000"
            "00101000000"
            "00");
  EXPECT_EQ(LastMoveDirectText(), LastLine());
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
  Axes(true, false, false, false);
  EXPECT_EQ(ReadPresentPosFromCt(pulses), 0) << "one axis: 11 characters";
}

TEST_F(CommandsTest, StandingStillByMask) {
  EXPECT_EQ(CtComStart(), 0);
  AppState.AxisPattern = 15;
  EXPECT_EQ(ReadAlarmFromCt(), 1) << "the controller answers F for four axes";
  port.Ct().SetSilent(true);
  EXPECT_EQ(ReadAlarmFromCt(), -1);
}

TEST_F(CommandsTest, Versions) {
  EXPECT_EQ(GetVersionNo(), 0);
  EXPECT_EQ(AppState.CtVersionText, "140");
  EXPECT_EQ(AppState.CtModelMarker, "R4M");
  EXPECT_EQ(AppState.CtAxisDigit, 4);
  EXPECT_EQ(GetAxisVersionNo(4), 0);
  EXPECT_EQ(AppState.AxisVersionText[3], "120");
  EXPECT_EQ(GetVersionNoAxis(), 4);
  port.Ct().SetSilent(true);
  EXPECT_EQ(GetVersionNoAxis(), -1);
}

/// A line that comes twice is there, right in length and prefix, when the next reply is waited for.
TEST_F(CommandsTest, ALateReplyOfAnotherBoardOrBlockIsRefused) {
  const auto read_blocks = [] {
    std::string reply;
    return ReadParaBlock('3', 1000, reply) != 0 ? 1 : ReadParaBlock('4', 1000, reply);
  };
  const struct {
    const char* doubled;
    std::function<int()> read;
    std::string last;
  } rows[] = {{"0RV2", [] { return GetAxisVersionNo(4); }, "0RV3"}, {"0RD3", read_blocks, "0RD4"}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.read(), 0);
    qvr7sim::Fault fault;
    fault.kind = qvr7sim::FaultKind::kDoubled;
    fault.prefix = row.doubled;
    fault.at_request = 1;
    port.Ct().AddFault(fault);
    EXPECT_EQ(row.read(), 1);
    EXPECT_EQ(LastLine(), row.last);
    pump.RunFor(1'000'000);  // what is left on the line goes by
  }
}

TEST_F(CommandsTest, AlarmResetClearsTheAlarm) {
  port.Ct().RaiseAlarm({'1', '0', '5'}, pump.NowUs());
  EXPECT_EQ(AlarmResetToCt(), 0);
  EXPECT_FALSE(port.Ct().StandingAlarm());
}

}  // namespace
}  // namespace tr7
