#include "sim/line.h"

#include <gtest/gtest.h>

#include "tests/sim/exchange.h"

namespace qvr7sim {
namespace {

TEST(Line, SpanRoundsUpToMicroseconds) {
  EXPECT_EQ(Line(9600, true).Span(1), 1042);
  EXPECT_EQ(Line(9600, true).Span(48), 50000);
  EXPECT_EQ(Line(19200, true).Span(1), 521);
  EXPECT_EQ(Line(38400, true).Span(68), 17709);
  EXPECT_EQ(Line(9600, false).Span(1000), 0);
}

TEST(Line, BytesBecomeReadableOneByOneAndNeverEarly) {
  Line line(9600, true);
  line.ToPc("ABC", 1000);
  EXPECT_EQ(line.NextByteUs(), 1000 + 1042);
  EXPECT_EQ(line.Take(1000 + 1041), "");
  EXPECT_EQ(line.Take(1000 + 1042), "A");
  EXPECT_EQ(line.NextByteUs(), 1000 + 2084);
  EXPECT_EQ(line.Take(1000 + 3125), "BC");
  EXPECT_EQ(line.NextByteUs(), std::nullopt);
}

TEST(Line, ASecondBurstWaitsForTheFirst) {
  Line line(9600, true);
  line.ToPc("AB", 0);
  line.ToPc("C", 100);
  EXPECT_EQ(line.Take(2084), "AB");
  EXPECT_EQ(line.NextByteUs(), 2084 + 1042);
  line.FromPc("0R", 0);
  line.FromPc("V\r\n", 1500);
  EXPECT_EQ(line.NextRequestUs(), 2084 + 3125);
  EXPECT_EQ(line.TakeRequest(2084 + 3124), std::nullopt);
  EXPECT_EQ(line.TakeRequest(2084 + 3125), "0RV\r\n");
}

TEST(Line, TwoRequestsInOneBurstComeOutOneByOne) {
  Line line(9600, false);
  line.FromPc("0RA\r\n0RH\r\n0R", 5);
  EXPECT_EQ(line.TakeRequest(5), "0RA\r\n");
  EXPECT_EQ(line.TakeRequest(5), "0RH\r\n");
  EXPECT_EQ(line.TakeRequest(5), std::nullopt);
  EXPECT_EQ(line.NextRequestUs(), std::nullopt);
  line.FromPc("V\r\n", 6);
  EXPECT_EQ(line.TakeRequest(6), "0RV\r\n");
}

TEST(Line, WaitingBytesAndRequestsAreLimited) {
  Line line(9600, true);
  for (int i = 0; i < 100; ++i) line.FromPc(std::string(10000, 'x'), 0);
  line.FromPc("\n", 0);
  EXPECT_EQ(line.NextRequestUs(), std::nullopt);
  Line unpaced(9600, false);
  unpaced.FromPc(std::string(3000, 'x') + "\r\n", 0);
  EXPECT_EQ(unpaced.TakeRequest(0)->size(), 258u);
}

TEST(Line, NextLineIsTheLineFeedOrTheLastByte) {
  Line line(9600, true);
  line.ToPc("AB\r\nCD", 0);
  EXPECT_EQ(line.NextLineUs(), line.Span(4));
  line.Take(line.Span(4));
  EXPECT_EQ(line.NextLineUs(), line.Span(6));
  line.Drop();
  EXPECT_EQ(line.NextLineUs(), std::nullopt);
}

TEST(Pacing, AReplyStartsWhenTheRequestIsInAndTakesItsBytes) {
  const struct {
    int baud;
    std::int64_t processing_us;
    const char* request;
    std::int64_t last_byte_us;
  } cases[] = {
      {9600, 0, "0RV", 5209 + 11459},  // 5 bytes out, 11 bytes back
      {9600, 3000, "0RV", 5209 + 3000 + 11459}, {19200, 0, "0RV", 2605 + 5730},
      {9600, 0, "0RP001", 8334 + 70834},         // 8 out, 68 back
      {9600, 3000, "0WF", 5209 + 50000 + 5209},  // a commit takes its own time
  };
  for (const auto& row : cases) {
    qvr7sim::Setup setup = qvr7sim::Setup::Useful();
    setup.baud = row.baud;
    setup.processing_us = row.processing_us;
    Exchange pc(setup);
    pc.Ask(row.request);
    EXPECT_EQ(pc.now_us, row.last_byte_us) << row.request << " at " << row.baud;
  }
}

TEST(Pacing, NextLineSkipsTheBytesOfALine) {
  Controller controller(qvr7sim::Setup::Useful());
  controller.Receive("0RV\r\n", 0);
  EXPECT_EQ(controller.NextLineUs(), 5209);
  EXPECT_EQ(controller.Take(5209), "");
  EXPECT_EQ(controller.NextEventUs(), 5209 + 1042);
  EXPECT_EQ(controller.NextLineUs(), 5209 + 11459);
  EXPECT_EQ(controller.Take(5209 + 11459), "0RV140R4M\r\n");
}

TEST(Pacing, ADroppedLineLosesRequestAndReply) {
  Controller controller(qvr7sim::Setup::Useful());
  controller.Receive("0WG01005006\r\n", 0);
  controller.DropLine();
  EXPECT_EQ(controller.NextEventUs(), std::nullopt);
  EXPECT_EQ(controller.WrittenGroup(1), std::make_pair(1, 4));
  controller.Receive("0RV\r\n", 100000);
  EXPECT_EQ(controller.Take(107000), "0");
  controller.DropLine();
  EXPECT_EQ(controller.Take(1000000), "");
}

}  // namespace
}  // namespace qvr7sim
