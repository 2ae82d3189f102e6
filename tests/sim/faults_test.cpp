#include "sim/faults.h"

#include <gtest/gtest.h>

#include "tests/sim/exchange.h"

namespace qvr7sim {
namespace {

Fault Once(FaultKind kind, int at_byte = -1) {
  Fault fault;
  fault.kind = kind;
  fault.at_request = 1;
  fault.at_byte = at_byte;
  return fault;
}

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
    EXPECT_EQ(pc.Ask("0RV"), "0RV140R4M") << FaultName(row.fault.kind);
  }
}

TEST(Faults, ChangedAndExtraBytesKeepTheRest) {
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    Exchange changed(qvr7sim::Setup::Useful(), seed);
    changed.controller.AddFault(Once(FaultKind::kChangedByte));
    changed.controller.Receive("0RV\r\n", 0);
    const std::string good = "0RV140R4M\r\n";
    const std::string got = changed.controller.Take(1'000'000);
    ASSERT_EQ(got.size(), good.size());
    int differing = 0;
    for (std::size_t i = 0; i < good.size(); ++i) differing += got[i] != good[i];
    EXPECT_EQ(differing, 1) << seed;

    Exchange extra(qvr7sim::Setup::Useful(), seed);
    extra.controller.AddFault(Once(FaultKind::kExtraByte));
    extra.controller.Receive("0RV\r\n", 0);
    std::string longer = extra.controller.Take(1'000'000);
    ASSERT_EQ(longer.size(), good.size() + 1);
    bool found = false;
    for (std::size_t i = 0; i < longer.size() && !found; ++i) {
      found = longer.substr(0, i) + longer.substr(i + 1) == good;
    }
    EXPECT_TRUE(found) << seed;
  }
}

TEST(Faults, DelayAndSplitMoveBytesInTime) {
  Fault delay = Once(FaultKind::kDelay);
  delay.time_us = 30000;
  Exchange late;
  late.controller.AddFault(delay);
  EXPECT_EQ(late.Ask("0RV"), "0RV140R4M");
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
    EXPECT_EQ(pc.controller.Requests(), std::vector<std::string>{"0WG01005006"});
  }
}

TEST(Faults, CountAndPrefixChooseTheRequest) {
  Fault fault = Once(FaultKind::kErrorReply);
  fault.prefix = "0RP";
  fault.at_request = 2;
  fault.error = {'3', '1', '8'};
  Exchange pc;
  pc.controller.AddFault(fault);
  const std::pair<const char*, bool> asked[] = {
      {"0RP001", false}, {"0RV", false}, {"0RP002", true}, {"0RP002", false}, {"0RP003", false}};
  for (const auto& [request, refused] : asked) {
    EXPECT_EQ(pc.Ask(request) == "0%%318", refused) << request;
  }
}

TEST(Faults, AnAlarmFaultStands) {
  Fault fault = Once(FaultKind::kAlarm);
  fault.error = {'1', '3', '4'};
  fault.prefix = "0RA";
  Exchange pc;
  pc.controller.AddFault(fault);
  Talk(pc, "0RV>0RV140R4M 0RA>0%%134 0RV>0%%134 0AR>0AR 0RA>0RAF");
}

TEST(Faults, ATimedAlarmSpeaksUnasked) {
  Exchange pc;
  pc.controller.SetFaults({{}, {{90000, {'2', '0', '7'}, true}, {40000, {'1', '0', '5'}, false}}});
  EXPECT_EQ(pc.controller.NextEventUs(), 40000);
  EXPECT_EQ(pc.controller.Take(40000), "");
  EXPECT_EQ(pc.controller.StandingAlarm(), (Alarm{'1', '0', '5'}));
  EXPECT_EQ(pc.controller.NextEventUs(), 90000);
  EXPECT_EQ(pc.controller.Take(90000 + 8334), "0%%207\r\n");
  EXPECT_EQ(pc.controller.StandingAlarm(), (Alarm{'2', '0', '7'}));
  EXPECT_EQ(pc.controller.NextEventUs(), std::nullopt);
}

TEST(Faults, ProbabilityIsMetAndFollowsTheSeed) {
  const auto run = [](std::uint64_t seed) {
    Fault fault;
    fault.kind = FaultKind::kErrorReply;
    fault.probability = 0.25;
    Exchange pc(qvr7sim::Setup::Useful(), seed);
    pc.controller.AddFault(fault);
    std::string pattern;
    for (int i = 0; i < 1000; ++i) pattern += pc.Ask("0RA") == "0RAF" ? '.' : 'x';
    return pattern;
  };
  const std::string first = run(7);
  EXPECT_EQ(run(7), first);
  EXPECT_NE(run(8), first);
  EXPECT_NEAR(static_cast<double>(std::count(first.begin(), first.end(), 'x')), 250.0, 60.0);
}

TEST(Faults, ASilentControllerHearsNothingUntilItIsBack) {
  Exchange pc;
  pc.controller.SetSilent(true);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(pc.Ask("0WG01005006"), "");
  EXPECT_EQ(pc.controller.Requests().size(), 4u);
  EXPECT_EQ(pc.controller.WrittenGroup(1), std::make_pair(1, 4));
  pc.controller.SetSilent(false);
  EXPECT_EQ(pc.Ask("0RV"), "0RV140R4M");
}

}  // namespace
}  // namespace qvr7sim
