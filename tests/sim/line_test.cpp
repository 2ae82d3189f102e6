#include "sim/line.h"

#include <gtest/gtest.h>

#include "tests/sim/exchange.h"

namespace qvr7sim {
namespace {

TEST(Line, BytesBecomeReadableOneByOneAndNeverEarly) {
  Line line(9600, true);
  line.ToPc("AB\r\nCD", 1000);
  line.ToPc("E", 1100);  // a second burst waits for the first
  EXPECT_EQ(line.NextByteUs(), 1000 + 1042);
  EXPECT_EQ(line.NextLineUs(), 1000 + line.Span(4)) << "the line feed";
  EXPECT_EQ(line.Take(1000 + 1041), "");
  EXPECT_EQ(line.Take(1000 + 1042), "A");
  EXPECT_EQ(line.Take(1000 + line.Span(4)), "B\r\n");
  EXPECT_EQ(line.NextLineUs(), 1000 + line.Span(6) + line.Span(1)) << "the last byte";
  EXPECT_EQ(line.Take(1000 + line.Span(6)), "CD");
  line.Drop();
  EXPECT_EQ(line.NextByteUs(), std::nullopt);
}

TEST(Line, RequestsComeOutOneByOneWhenTheirLastByteIsIn) {
  Line line(9600, true);
  line.FromPc("0R", 0);
  line.FromPc("V\r\n0RA\r\n0R", 1500);
  EXPECT_EQ(line.NextRequestUs(), 2084 + 3125);
  EXPECT_EQ(line.TakeRequest(2084 + 3124), std::nullopt);
  EXPECT_EQ(line.TakeRequest(2084 + 3125), "0RV\r\n");
  EXPECT_EQ(line.TakeRequest(50000), "0RA\r\n");
  EXPECT_EQ(line.NextRequestUs(), std::nullopt);
  line.FromPc("H\r\n", 50000);
  EXPECT_EQ(line.TakeRequest(60000), "0RH\r\n");
}

TEST(Line, WaitingBytesAndRequestsAreLimited) {
  Line line(9600, true);
  for (int i = 0; i < 100; ++i) line.FromPc(std::string(10000, 'x'), 0);
  line.FromPc("\n", 0);
  EXPECT_EQ(line.NextRequestUs(), std::nullopt);
  Line unpaced(9600, false);
  unpaced.FromPc(std::string(3000, 'x') + "\r\n", 0);
  EXPECT_EQ(unpaced.TakeRequest(0)->size(), 2050u);
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

TEST(Pacing, ADroppedLineLosesRequestAndReply) {
  Controller controller(qvr7sim::Setup::Useful());
  controller.Receive("0WG01005006\r\n", 0);
  controller.DropLine();
  EXPECT_EQ(controller.NextEventUs(), std::nullopt);
  EXPECT_EQ(controller.WrittenGroup(1), std::make_pair(1, 4));
  controller.Receive("0RV\r\n", 100000);
  EXPECT_EQ(controller.NextLineUs(), 105209);
  EXPECT_EQ(controller.Take(107000), "0");
  controller.DropLine();
  EXPECT_EQ(controller.Take(1000000), "");
}

}  // namespace
}  // namespace qvr7sim
