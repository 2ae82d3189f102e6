// Inputs and outputs: what the terminals tell in position mode, what the PC forces, and what names
// set.

#include "sim/commands.h"
#include "tests/sim/exchange.h"

namespace qvr7sim {
namespace {

qvr7sim::Setup Homed() {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.homed = true;
  return setup;
}

std::string Do(Exchange& pc, const std::string& line) {
  bool quit = false;
  return RunCommand(line, &pc.controller, pc.now_us, &quit);
}

/// Words of a session: "NAME=VALUE" at a terminal, else as `Talk`.
void Play(Exchange& pc, const std::string& words) {
  std::istringstream stream(words);
  for (std::string word; stream >> word;) {
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos) {
      Talk(pc, word);
    } else {
      const std::string line = "input " + word.substr(0, equals) + " " + word.substr(equals + 1);
      EXPECT_EQ(Do(pc, line), "ok " + line);
    }
  }
}

TEST(Terminals, TheHandshakeOfPositionMode) {
  Exchange pc(Homed());
  // Position 3 lowers axis 1 and switches output 1 when it has arrived; its macro waits for an
  // input, and switches it off half a second later.
  Play(pc,
       "0RI>0RI000000F 0RO>0RO30000 P1=1 P2=1 0RI>0RI000003F STB=1 0RI>0RI800003F "
       "0RO>0RO20000 +2800 0RO>0RO21000 EXP-IN1=1 +450 0RO>0RO21000 +100 0RO>0RO30000 "
       "EXP-IN1=0 0RI>0RI800003E STB=0");
  EXPECT_EQ(pc.controller.MotionStarts().back().request, "inputs");
  // STOP brakes, and keeps a start away; what the PC holds stays where it is.
  Play(pc,
       "P2=0 STB=1 +100 0RO>0RO20000 STOP=1 +100 0RO>0RO30000 STB=0 STB=1 0RO>0RO30000 STOP=0 "
       "0CM01111>0CM01111 STB=0 STB=1 +100 0RO>0RO30000");
}

TEST(Terminals, AnAxisTellsItsZoneAndWhatItHoldsByForce) {
  Exchange pc(Homed());
  std::string block = pc.Ask("0RDC");
  block.replace(22, 2, "01");  // ZONE ENABLE of axis 4, which position 4 grips with force
  Play(pc, "0WDC" + block.substr(4) + ">0WDC P4=1 STB=1 0RO>0RO20000 +500 0RO>0RO20080 " +
               "+9000 0RO>0RO300C0");
}

TEST(Terminals, ANumberThatIsNoneIsAnAlarmWhichAnInputResets) {
  Exchange pc(Homed());
  Play(pc, "P2=1 P8=1 STB=1 0RI>0%%003");
  EXPECT_EQ(pc.controller.Outputs(pc.now_us) & 7U, 5U);  // alarm, not ready, in position
  Play(pc, "RES=1 0RI>0RI90000AF");
}

}  // namespace
}  // namespace qvr7sim
