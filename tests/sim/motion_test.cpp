#include "sim/axes.h"
#include "tests/sim/exchange.h"

namespace qvr7sim {
namespace {

constexpr std::int64_t kSecond = 1'000'000;

qvr7sim::Setup HomedSetup() {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.homed = true;
  return setup;
}

/// Four groups of "0MV": axis 1 goes to `pulses` with 20 mm/s and 30 ms, the others stand.
std::string DirectMove(const std::string& pulses) {
  return "0MV014031" + pulses + "00101000000" + "00101000000" + "00101000000";
}

TEST(Motion, HomingTakesTimeAndGivesTheHomePosition) {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.start_pulses = {4000, 0, 200, 0};
  Exchange pc(setup);
  // No move to a record before homing; axes 2 and 4 stand on their sensors.
  Talk(pc,
       "0MP001F>0%%105 0MP000F>0MP 0RA>0RA0 0RH>0RH0 +500 0RA>0RAA 0RH>0RHA "
       "+3000 0RA>0RAF 0RH>0RHF 0RCF>0RCF00000000000000000000");
}

TEST(Motion, RecordsMoveAbsoluteAndByTheirWay) {
  qvr7sim::Setup setup = HomedSetup();
  const auto record = [&setup](int number, int way, int pulses) {
    setup.positions[number].axis[1] = {100, 5, way, pulses, 0, 0};
  };
  record(50, 1, 5000);
  record(51, 2, 300);
  record(52, 3, 1300);
  record(53, 0, 9);
  Exchange pc(setup);
  const std::pair<std::string, int> steps[] = {{"0MP0322", 5000},  {"0MS0332", 5300},
                                               {"0MP03402", 4000}, {"0MP0352", 4000},
                                               {"0MP0321", 4000},  {"0MP0320", 4000}};
  for (const auto& [request, pulses] : steps) {
    Talk(pc, request + ">" + request.substr(0, 3) + " +2000");
    EXPECT_EQ(pc.Axis(2).pulses, pulses) << request;
    EXPECT_FALSE(pc.controller.AnyMoving(pc.now_us));
  }
}

TEST(Motion, TargetsOutsideTheStrokeStartNothing) {
  Exchange pc(HomedSetup());
  Talk(pc, DirectMove("04E20") + ">0MV +10000");  // 20000, the end of the stroke
  EXPECT_EQ(pc.Axis(1).pulses, 20000);
  Talk(pc, DirectMove("04E21") + ">0%%106 0RA>0RAF");
  EXPECT_FALSE(pc.controller.AnyMoving(pc.now_us));
  Talk(pc, DirectMove("04E20") + "01>0MV");  // a tail changes nothing
  for (const char* head : {"0MV014032", "0MV000031"}) {
    EXPECT_EQ(pc.Ask(head + std::string(38, '0')), "0%%003");
  }
}

TEST(Motion, JogRunsUntilStopOrTheEndOfTheStroke) {
  Exchange pc(HomedSetup());
  Talk(pc, "0JR50200>0JR +1000");
  EXPECT_NEAR(pc.Axis(2).pulses, 950, 25);  // 15 mm/s is 1000 pulses a second, less the rise
  Talk(pc, "0SP>0SP");
  EXPECT_TRUE(pc.Axis(2).moving);
  pc.Wait(kSecond / 10);
  EXPECT_FALSE(pc.Axis(2).moving);
  const int stopped = pc.Axis(2).pulses;
  Talk(pc, "+1000 0JR00100>0JR");
  EXPECT_NEAR(pc.Axis(2).pulses, stopped, 20);
  pc.Wait(3 * kSecond);
  EXPECT_EQ(pc.Axis(2).pulses, 0);
  Talk(pc, "0JR00200>0JR +60000");
  EXPECT_EQ(pc.Axis(2).pulses, 13334);
  // The full speed belongs to digit 0.
  Talk(pc, "0JR02000>0JR +1000");
  const int full = pc.Axis(1).pulses;
  Talk(pc, "0SP>0SP +1000 0JR01000>0JR +60000 0JR12000>0JR +1000");
  EXPECT_NEAR(full, 10 * pc.Axis(1).pulses, 200);
}

TEST(Motion, WhileMovingWritesAndMovesAreRefusedAndReadsAnswer) {
  Exchange pc(HomedSetup());
  const std::string data(32, '0');
  const std::string refused[] = {"0WP005" + std::string(60, '0'),
                                 "0WA001002",
                                 "0WD0" + data,
                                 "0WG01001002",
                                 "0WS01" + data,
                                 "0WK0" + data,
                                 "0WE",
                                 "0WE2",
                                 "0WF",
                                 "0MP001F",
                                 "0MP000F",
                                 "0JR01000",
                                 DirectMove("00000")};
  Talk(pc, DirectMove("04E20") + ">0MV");
  for (const std::string& request : refused) EXPECT_EQ(pc.Ask(request), "0%%004") << request;
  Talk(pc, "0RA>0RAE 0RV>0RV140R4M 0CM1>0CM1 0RG01>0RG01001004");
}

TEST(Motion, AServoThatIsOffYieldsToAHandAndMovesNothing) {
  Exchange pc(HomedSetup());
  pc.controller.AddPush({.at_us = 100'000, .axis = 2, .pulses = 700});
  pc.controller.AddPush({.at_us = 1'500'000, .axis = 2, .pulses = 300});
  Talk(pc,
       "+200 0RC2>0RC200000 0CM10200>0CM10200 0JR00200>0%%00C 0MP002F>0%%00C 0MP000F>0%%00C "
       "0JR02000>0JR 0SP>0SP +2000 0RC2>0RC20012C 0CM00000>0CM00000 0JR00200>0JR");
  EXPECT_FALSE(pc.controller.PushAxis(2, 1, pc.now_us));
}

TEST(Motion, APositionsMacroBelongsToTheMoveThatRunsIt) {
  qvr7sim::Setup setup = HomedSetup();
  setup.start_pulses[0] = 15000;  // of position 3, whose macro waits for an input and 0.5 s
  Exchange pc(setup);
  Talk(pc,
       "0MP0031>0MP +700 0RA>0RAE 0WE3>0%%004 +150 0RA>0RAF 0MS0031>0MS 0RA>0RAF "
       "0MP0031>0MP 0RA>0RAE 0SP>0SP 0RA>0RAF");
}

TEST(Alarm, StopsTheAxesAndAnswersEverythingButReset) {
  Exchange pc(HomedSetup());
  Talk(pc, DirectMove("04E20") + ">0MV +500");
  pc.controller.RaiseAlarm({'2', '0', '7'}, pc.now_us);
  const int stopped = pc.Axis(1).pulses;
  EXPECT_GT(stopped, 0);
  Talk(pc,
       "0RA>0%%207 0RV>0%%207 0CM0>0%%207 0RD0>0%%207 0SP>0%%207 0XX>0%%207 0AR0>0%%207 "
       "0AR>0AR 0RA>0RAF");
  EXPECT_EQ(pc.Axis(1).pulses, stopped);
}

TEST(Alarm, WhatAnAxisRunsInto) {
  const std::pair<const char*, int> rows[] = {
      {"0JR01000>0JR +1000 0RA>0%%13E", -100},
      {"0JR02000>0JR +9000 0RA>0%%13D", 20100},
      {"0JR02000>0JR +500 0CM12000>0CM12000 0RA>0%%12A 0AR>0AR 0CM00000>0CM00000", 2794},
      {"0MV06403102000001010000000010100000000101000000>0MV +100 0RA>0%%113", 75}};
  for (const auto& [talk, pulses] : rows) {
    SCOPED_TRACE(talk);
    Exchange pc(HomedSetup());
    Talk(pc, "0WD2" + pc.Ask("0RD2").substr(4, 30) + "00>0WD2");  // without SOFT LIMIT
    Talk(pc, talk);
    EXPECT_FALSE(pc.controller.AnyMoving(pc.now_us));
    EXPECT_NEAR(pc.Axis(1).pulses, pulses, 1);
  }
}

TEST(Alarm, AFailedHomingStopsAllAxesWithTheSensorAlarm) {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.start_pulses = {0, 0, 10000, 0};
  Exchange pc(setup);
  pc.controller.FailNextHoming(1);
  Talk(pc, "0MP000F>0MP +1000 0RA>0%%134");
  const int third = pc.Axis(3).pulses;
  EXPECT_GT(third, 5000);
  pc.Wait(kSecond);
  EXPECT_EQ(pc.Axis(3).pulses, third);
  Talk(pc, "0AR>0AR 0RH>0RH0 0MP000F>0MP +20000 0RH>0RHF");
}

}  // namespace
}  // namespace qvr7sim
