#include <iterator>

#include "sim/random.h"
#include "tests/sim/exchange.h"

namespace qvr7sim {
namespace {

TEST(Frames, FixedReplies) {
  Exchange pc;
  Talk(pc,
       "0RV>0RV140R4M 0RV1>0RV1120R7R 0RV4>0RV4120R7R 0CM0>0CM0 0CM1>0CM1 0CM00000>0CM00000 "
       "0CM11100>0CM11100 0RA>0RAF 0RH>0RH0 0AR>0AR 0SP>0SP 0RCF>0RCF00000000000000000000 "
       "0RC5>0RC50000000000 0RC0>0RC0 0RD0>0RD0010F01001E0000000000000000000000 "
       "0RG01>0RG01001004 0RG0E>0RG0E001028 0RG63>0RG63001001 "
       "0RS01>0RS0111315541000000000000000000000000 0RK0>0RK003E803F203FC04060410041A0424042E "
       "0RK2>0RK2202122232425262728292A2B2C2D2E2F");
}

/// A refused frame is no alarm.
TEST(Frames, Refusals) {
  Exchange pc;
  Talk(pc,
       "0>0%%001 0XX>0%%001 1RV>0%%001 0rv>0%%001 0RPX>0%%002 0RP01>0%%002 0RP0001>0%%002 "
       "0RP000>0%%003 0RP3E8>0%%003 0RP00a>0%%002 0WP005>0%%002 0WA002001>0%%003 "
       "0WA000001>0%%003 0WA001>0%%002 0RDE>0%%003 0RD>0%%002 0RK7>0%%003 0RG00>0%%003 "
       "0RG64>0%%003 0RS15>0%%003 0WG013E9001>0%%003 0WG01X>0%%002 0WE4>0%%003 0WE12>0%%002 "
       "0WF1>0%%002 0CM>0%%002 0CM3>0%%003 0CM1111>0%%002 0RV5>0%%003 0RC>0%%002 0MP001>0%%002 "
       "0MP3E81>0%%003 0JR0111>0%%002 0JR01113>0%%003 0MG01>0%%003 0RI0>0%%002 0RO1>0%%002 "
       "0WO1234>0%%002 0FR0000>0%%003 0FR6501>0%%003 0HR001>0%%002 0HP0101>0HP01100000000 "
       "0HP0105>0%%003 0FR0133>0FR0133X "
       "0RR00>0%%003 0RM65>0%%003 0WM01>0%%002 0MW1>0%%002 0RR64>0RR6400");
  EXPECT_EQ(pc.Ask("0WM15" + std::string(21 * kStepDigits, '1')), "0%%003");
  EXPECT_EQ(pc.Ask(""), "0%%001");
  EXPECT_FALSE(pc.controller.StandingAlarm());
}

/// What is written is read back at once, and outlasts a loss of power by its own commit alone.
TEST(Frames, EveryFamilyIsLostWithoutItsCommit) {
  const std::tuple<std::string, std::string, std::string> families[] = {
      {"0RP007", "0320F427100000" + std::string(46, '0'), "0WA006008"},
      {"0RD5", std::string(32, '7'), "0WE2"},
      {"0RG0A", "011012", "0WE3"},
      {"0RS03", std::string(32, '1'), "0WE1"},
      {"0RK4", std::string(32, 'F'), "0WF"},
      {"0RM64", std::string(38, '1'), "0MW64"}};
  const char* commits[] = {"0WA001006", "0WA008020", "0WE", "0WE1", "0WE2", "0WE3", "0WF", "0MW01"};
  for (const auto& [read, data, commit] : families) {
    Exchange pc;
    const std::string before = pc.Ask(read);
    const std::string write = "0W" + read.substr(2);
    for (const bool committed : {false, true}) {
      EXPECT_EQ(pc.Ask(write + data), write);
      EXPECT_EQ(pc.Ask(read), read + data);
      for (const std::string other : commits) {
        EXPECT_EQ(pc.Ask(other == commit ? "0RV" : other), other == commit ? "0RV140R4M" : other);
      }
      if (committed) {
        EXPECT_EQ(pc.Ask(commit), commit);
      }
      pc.controller.PowerCycle(pc.now_us);
      EXPECT_EQ(pc.Ask(read), committed ? read + data : before) << write;
    }
  }
}

TEST(Frames, AnyLineGetsExactlyOneReplyLine) {
  const std::string names[] = {"0CM", "0RA", "0RH", "0AR", "0RV", "0MP", "0MS", "0MV", "0JR",
                               "0SP", "0RC", "0MG", "0RP", "0WP", "0WA", "0RD", "0RG", "0RS",
                               "0RK", "0WD", "0WG", "0WS", "0WK", "0WE", "0WF", "0RR", "0RM",
                               "0WM", "0MW", "0RI", "0RO", "0WO", "0FR", "0HR", "0HP", "0TN",
                               "0TS", "0PT", "0DM", "0PM", "0PN", ""};
  const std::string characters = "0000000011112234567899ABCDEFX a\t\x80%";
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.paced = false;
  setup.homed = true;
  Controller controller(setup);
  Random random(20);
  std::int64_t now_us = 0;
  for (int i = 0; i < 50000; ++i) {
    std::string request = names[random.Below(std::size(names))];
    for (std::uint64_t left = random.Below(random.Chance(0.1) ? 80 : 8); left > 0; --left) {
      request += characters[random.Below(characters.size())];
    }
    controller.Receive(request + "\r\n", now_us);
    now_us += 100000;
    const std::string reply = controller.Take(now_us);
    ASSERT_EQ(reply.find("\r\n"), reply.size() - 2) << request;
    EXPECT_TRUE(reply.starts_with("0%%") || reply.substr(0, 3) == request.substr(0, 3)) << request;
    for (int axis = 1; axis <= kAxes; ++axis) {
      const int pulses = controller.Axis(axis, now_us).pulses;
      ASSERT_TRUE(pulses >= 0 && pulses <= 0xFFFFFF) << request;
    }
  }
}

}  // namespace
}  // namespace qvr7sim
