#include "sim/faults.h"

#include <gtest/gtest.h>

#include "tests/sim/exchange.h"

namespace qvr7sim {
namespace {

Fault Once(FaultKind kind, int at_byte = -1, const char* prefix = "", int at_request = 1) {
  return {.kind = kind, .at_request = at_request, .prefix = prefix, .at_byte = at_byte};
}

const std::string kGood = "0RV140R4M\r\n";

TEST(Faults, BendTheReplyOnce) {
  const struct {
    Fault fault;
    const char* reply;
  } cases[] = {
      {Once(FaultKind::kSilence), ""},
      {Once(FaultKind::kDeaf), ""},
      {Once(FaultKind::kLostByte, 0), "RV140R4M\r\n"},
      {Once(FaultKind::kLostByte, 4), "0RV10R4M\r\n"},
      {Once(FaultKind::kLostByte, 99), "0RV140R4M\r"},
      {Once(FaultKind::kDoubled), "0RV140R4M\r\n0RV140R4M\r\n"},
      {Once(FaultKind::kWrongPrefix), "0ZZ140R4M\r\n"},
      {Once(FaultKind::kWrongLength), "0RV140R4\r\n"},
      {Once(FaultKind::kErrorReply), "0%%001\r\n"},
  };
  for (const auto& row : cases) {
    Exchange pc;
    pc.controller.AddFault(row.fault);
    pc.controller.Receive("0RV\r\n", 0);
    EXPECT_EQ(pc.controller.Take(1'000'000) + pc.controller.Take(2'000'000), row.reply)
        << FaultName(row.fault.kind);
    pc.now_us = 2'000'000;
    EXPECT_EQ(pc.Raw("0RV\r\n"), kGood) << FaultName(row.fault.kind);
  }
}

TEST(Faults, ChangedAndExtraBytesKeepTheRest) {
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    for (const bool extra : {false, true}) {
      Exchange pc(qvr7sim::Setup::Useful(), seed);
      pc.controller.AddFault(Once(extra ? FaultKind::kExtraByte : FaultKind::kChangedByte));
      pc.controller.Receive("0RV\r\n", 0);
      const std::string got = pc.controller.Take(1'000'000);
      std::size_t at = 0;
      while (at < kGood.size() && got[at] == kGood[at]) ++at;
      ASSERT_TRUE(extra || at < kGood.size());
      EXPECT_EQ(got.substr(at + 1), kGood.substr(extra ? at : at + 1)) << seed;
    }
  }
}

TEST(Faults, DelayAndSplitMoveBytesInTime) {
  Fault delay = Once(FaultKind::kDelay);
  delay.time_us = 30000;
  Exchange late;
  late.controller.AddFault(delay);
  late.Ask("0RV");
  EXPECT_EQ(late.now_us, 5209 + 30000 + 11459);
  Fault split = Once(FaultKind::kSplit, 4);
  split.time_us = 50000;
  Exchange torn;
  torn.controller.AddFault(split);
  torn.controller.Receive("0RV\r\n", 0);
  EXPECT_EQ(torn.controller.Take(5209 + 4167 + 50000), "0RV1");
  EXPECT_EQ(torn.controller.Take(5209 + 4167 + 50000 + 7292), "40R4M\r\n");
}

TEST(Faults, SilenceCarriesTheRequestOutAndDeafnessDoesNot) {
  for (const FaultKind kind : {FaultKind::kSilence, FaultKind::kDeaf, FaultKind::kErrorReply}) {
    Exchange pc;
    pc.controller.AddFault(Once(kind));
    pc.Ask("0WG01005006");
    const int start = pc.controller.WrittenGroup(1).first;
    EXPECT_EQ(start, kind == FaultKind::kSilence ? 5 : 1) << FaultName(kind);
  }
  Exchange pc;
  pc.controller.SetSilent(true);
  EXPECT_EQ(pc.Ask("0WG01005006"), "");
  pc.controller.SetSilent(false);
  Talk(pc, "0RG01>0RG01001004");
}

TEST(Faults, CountAndPrefixChooseTheRequestAndAnAlarmStands) {
  Fault refusal = Once(FaultKind::kErrorReply, -1, "0RG", 2);
  refusal.error = {'3', '1', '8'};
  Fault alarm = Once(FaultKind::kAlarm, -1, "0RA");
  alarm.error = {'1', '3', '4'};
  Exchange pc;
  pc.controller.AddFault(refusal);
  pc.controller.AddFault(alarm);
  Talk(pc,
       "0RG01>0RG01001004 0RV>0RV140R4M 0RG01>0%%318 0RG01>0RG01001004 0RG01>0RG01001004 "
       "0RA>0%%134 0RV>0%%134 0AR>0AR 0RA>0RAF");
}

TEST(Faults, InputsMoveWhatIsNotHeldAndAPowerCycleLosesWhatIsNotStored) {
  Fault moving = Once(FaultKind::kMoving, -1, "0RA");
  Fault power = Once(FaultKind::kPowerCycle, -1, "0WE3");
  moving.time_us = 1'500'000;
  power.time_us = 500'000;
  for (const std::string held : {"0000", "1011", "1111"}) {
    Exchange pc;
    pc.controller.AddFault(moving);
    pc.controller.AddFault(power);
    const std::string rest = held == "0000" ? "0" : held == "1011" ? "D" : "F";
    Talk(pc, "0CM0" + held + ">0CM0" + held + " 0RA>0RA" + rest + " +2000 0RA>0RAF");
    Talk(pc, "0WG01005006>0WG01 0WE3> 0RV>0RV140R4M 0RG01>0RG01001004 0WE3>0WE3");
    EXPECT_EQ(pc.controller.ControlDigits(), "0000");
  }
}

TEST(Faults, ATimedAlarmSpeaksUnasked) {
  Exchange pc;
  pc.controller.SetFaults({{}, {{90000, {'2', '0', '7'}, true}, {40000, {'1', '0', '5'}, false}}});
  EXPECT_EQ(pc.controller.NextEventUs(), 40000);
  EXPECT_EQ(pc.controller.Take(40000), "");
  EXPECT_EQ(pc.controller.StandingAlarm(), (Alarm{'1', '0', '5'}));
  EXPECT_EQ(pc.controller.Take(90000 + 8334), "0%%207\r\n");
  EXPECT_EQ(pc.controller.StandingAlarm(), (Alarm{'2', '0', '7'}));
  EXPECT_EQ(pc.controller.NextEventUs(), std::nullopt);
}

}  // namespace
}  // namespace qvr7sim
