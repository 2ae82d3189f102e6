#include "sim/faults.h"

#include "sim/line.h"
#include "tests/sim/exchange.h"

namespace qvr7sim {
namespace {

TEST(Pacing, AReplyStartsWhenTheRequestIsInAndTakesItsBytes) {
  const std::tuple<int, std::int64_t, const char*, std::int64_t> cases[] = {
      {9600, 0, "0RV", 5209 + 11459},  // 5 bytes out, 11 bytes back
      {9600, 3000, "0RV", 5209 + 3000 + 11459}, {19200, 0, "0RV", 2605 + 5730},
      {9600, 0, "0RP001", 8334 + 70834},         // 8 out, 68 back
      {9600, 3000, "0WF", 5209 + 50000 + 5209},  // a commit takes its own time
  };
  for (const auto& [baud, processing_us, request, last_byte_us] : cases) {
    qvr7sim::Setup setup = qvr7sim::Setup::Useful();
    setup.baud = baud;
    setup.processing_us = processing_us;
    Exchange pc(setup);
    pc.Ask(request);
    EXPECT_EQ(pc.now_us, last_byte_us) << request << " at " << baud;
  }
}

Fault Once(FaultKind kind, int at_byte = -1, const char* prefix = "", int at_request = 1) {
  return {.kind = kind, .at_request = at_request, .prefix = prefix, .at_byte = at_byte};
}

const std::string kGood = "0RV140R4M\r\n";

TEST(Faults, BendTheReplyOnce) {
  const std::pair<Fault, const char*> cases[] = {
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
  for (const auto& [fault, reply] : cases) {
    Exchange pc;
    pc.controller.AddFault(fault);
    pc.controller.Receive("0RV\r\n", 0);
    EXPECT_EQ(pc.controller.Take(1'000'000) + pc.controller.Take(2'000'000), reply)
        << FaultName(fault.kind);
    pc.now_us = 2'000'000;
    EXPECT_EQ(pc.Raw("0RV\r\n"), kGood) << FaultName(fault.kind);
  }
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

TEST(Line, WaitingBytesAndRequestsAreLimited) {
  Line line(9600, true);
  for (int i = 0; i < 100; ++i) line.FromPc(std::string(10000, 'x'), 0);
  line.FromPc("\n", 0);
  EXPECT_EQ(line.NextRequestUs(), std::nullopt);
  Line unpaced(9600, false);
  unpaced.FromPc(std::string(3000, 'x') + "\r\n", 0);
  EXPECT_EQ(unpaced.TakeRequest(0)->size(), 2050u);
}

}  // namespace
}  // namespace qvr7sim
