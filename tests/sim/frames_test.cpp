#include <gtest/gtest.h>

#include <iterator>

#include "sim/random.h"
#include "tests/sim/exchange.h"

namespace qvr7sim {
namespace {

const std::string kRecord5 =
    "01E0A427100000"  // axis 1: 30 mm/s, 100 ms, absolute 10000
    "01E0A000000000"
    "01E0A000000000"
    "01E0A000000000"
    "0000";

const std::string kDevice = "00020190004E200028L 640000000000";

TEST(Frames, FixedReplies) {
  Exchange pc;
  Talk(pc,
       "0RV>0RV140R4M 0RV1>0RV1120R7R 0RV4>0RV4120R7R 0CM0>0CM0 0CM1>0CM1 0CM00000>0CM00000 "
       "0CM11100>0CM11100 0RA>0RAF 0RH>0RH0 0AR>0AR 0SP>0SP 0RCF>0RCF00000000000000000000 "
       "0RC5>0RC50000000000 0RC0>0RC0 0RD0>0RD0010F01001E0000000000000000000000 "
       "0RG01>0RG01001004 0RG0E>0RG0E001028 0RG63>0RG63001001 "
       "0RS01>0RS0111315541000000000000000000000000 0RK0>0RK003E803F203FC04060410041A0424042E "
       "0RK2>0RK2202122232425262728292A2B2C2D2E2F");
  for (const char* request : {"0WE", "0WE2", "0WF", "0WA001002"}) {
    EXPECT_EQ(Exchange().Ask(request), request);
  }
  EXPECT_EQ(Exchange().Ask("0RP001").size(), 66u);
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
       "0MP3E81>0%%003 0JR0111>0%%002 0JR01113>0%%003 0MG01>0%%003 0RI>0%%001");
  EXPECT_EQ(pc.Ask(""), "0%%001");
  EXPECT_FALSE(pc.controller.StandingAlarm());
}

TEST(Frames, LineEndsThatAreNotCrLf) {
  Exchange pc;
  EXPECT_EQ(pc.Raw("0RV\n"), "0%%002\r\n");
  EXPECT_EQ(pc.Raw("0R\rV\r\n"), "0%%001\r\n");
  EXPECT_EQ(pc.Raw("0RV\r", 100000), "");
  EXPECT_EQ(pc.Raw("\n"), "0RV140R4M\r\n");
  EXPECT_EQ(pc.Ask(std::string(700, '0')).substr(0, 3), "0%%");
  EXPECT_EQ(pc.Ask("0RV"), "0RV140R4M");
}

TEST(Frames, WritesAreReadBackBeforeTheyAreCommitted) {
  const struct {
    std::string write, echo, read, reply;
  } cases[] = {{"0WP005" + kRecord5, "0WP005", "0RP005", "0RP005" + kRecord5},
               {"0WD3" + std::string(32, '7'), "0WD3", "0RD3", "0RD3" + std::string(32, '7')},
               {"0WDD" + kDevice, "0WDD", "0RDD", "0RDD" + kDevice},
               {"0WG63002003", "0WG63", "0RG63", "0RG63002003"},
               {"0WS14" + std::string(32, '1'), "0WS14", "0RS14", "0RS14" + std::string(32, '1')},
               {"0WK6" + std::string(32, 'F'), "0WK6", "0RK6", "0RK6" + std::string(32, 'F')}};
  for (const auto& row : cases) {
    Exchange pc;
    EXPECT_EQ(pc.Ask(row.write), row.echo);
    EXPECT_EQ(pc.Ask(row.read), row.reply);
  }
}

TEST(Frames, DeviceBlocksCarryEachFieldInItsPlace) {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.devices[1] = {"E35", 'H', 300, 12, 192, 2, 1};
  Exchange pc(setup);
  const std::string first = pc.Ask("0RD4");
  EXPECT_EQ(first.substr(4, 26), "00020190004E200028L 640000");
  const std::string second = pc.Ask("0RD7");
  EXPECT_EQ(second.substr(4, 2), "02");
  EXPECT_EQ(second.substr(6, 2), "0C");
  EXPECT_EQ(second.substr(8, 4), "00C0");
  EXPECT_EQ(second.substr(12, 6), "0012C0");  // 300 / 12 * 192
  EXPECT_EQ(second.substr(20, 4), "35E ");
  EXPECT_EQ(second.substr(24, 4), "2C01");  // 300 mm, low byte first
  EXPECT_EQ(pc.Ask("0RD3").substr(20, 2), "00");
  EXPECT_EQ(pc.Ask("0RD6").substr(20, 2), "01");
}

TEST(Frames, MarkerAndVersionsFollowTheSetup) {
  for (int count = 1; count <= 4; ++count) {
    qvr7sim::Setup setup = qvr7sim::Setup::Useful();
    setup.axis_count = count;
    setup.mask = 1;
    Exchange pc(setup);
    EXPECT_EQ(pc.Ask("0RV"), "0RV140R" + std::to_string(count) + "M");
    EXPECT_EQ(pc.Ask("0RV" + std::to_string(count + 1)), "0%%003");
  }
  qvr7sim::Setup foreign = qvr7sim::Setup::Useful();
  foreign.marker = "L4M";
  foreign.version = "9.9";
  EXPECT_EQ(Exchange(foreign).Ask("0RV"), "0RV9.9L4M");
}

TEST(Frames, RestAndHomeDigitsForAnyMask) {
  for (unsigned mask = 1; mask <= 15; ++mask) {
    qvr7sim::Setup setup = qvr7sim::Setup::Useful();
    setup.mask = mask;
    setup.homed = true;
    const std::string digit(1, "0123456789ABCDEF"[mask]);
    EXPECT_EQ(Exchange(setup).Ask("0RA"), "0RA" + digit);
    EXPECT_EQ(Exchange(setup).Ask("0RH"), "0RH" + digit);
    setup.rest_as_f = true;
    EXPECT_EQ(Exchange(setup).Ask("0RA"), "0RAF");
    EXPECT_EQ(Exchange(setup).Ask("0RH"), "0RHF");
  }
}

TEST(Frames, AnyLineGetsExactlyOneReplyLine) {
  const std::string names[] = {"0CM", "0RA", "0RH", "0AR", "0RV", "0MP", "0MS", "0MV", "0JR",
                               "0SP", "0RC", "0MG", "0RP", "0WP", "0WA", "0RD", "0RG", "0RS",
                               "0RK", "0WD", "0WG", "0WS", "0WK", "0WE", "0WF", ""};
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
    if (!reply.starts_with("0%%")) {
      EXPECT_EQ(reply.substr(0, 3), request.substr(0, 3));
    }
    for (int axis = 1; axis <= kAxes; ++axis) {
      const AxisState state = controller.Axis(axis, now_us);
      ASSERT_TRUE(state.pulses >= 0 && state.pulses <= 0xFFFFFF) << request;
    }
  }
}

}  // namespace
}  // namespace qvr7sim
