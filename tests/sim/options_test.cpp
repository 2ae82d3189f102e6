#include "sim/options.h"

#include <gtest/gtest.h>

#include "sim/commands.h"
#include "sim/parse.h"

namespace qvr7sim {
namespace {

TEST(Options, FillTheSetup) {
  Options options;
  const std::string record(60, '1');
  const std::string line =
      "--axes 3 --mask=0x5 --mode prg --device 2:E35:H:300:12:192:2:1 --device=1:42:D:50:4:400 "
      "--marker R9X --main-version 2.0 --axis-version 3:777 --empty --group 99:10:20 "
      "--macro 20:1135 --start 2:-50 --homed --rest-f --baud 38400 --processing-ms 7 "
      "--commit-ms 0 --no-pace --seed 99 --silent --quit-on-eof "
      "--push 2:-50:1500 --input-wait-ms 9 --tell-motion --fault lost-byte,p=0.5,prefix=0RP,byte=3 "
      "--alarm-at 2.5:1:4 --fail-homing 2 --input 3=1 --tasks 2 --step-us 50 "
      "--position 999:" +
      record;
  ASSERT_EQ(ParseOptions(Split(line, " "), &options), "");
  const qvr7sim::Setup& setup = options.setup;
  const Device &first = setup.devices[0], &second = setup.devices[1];
  EXPECT_TRUE(setup.axis_count == 3 && setup.mask == 5 && setup.mode == Mode::kProgram);
  EXPECT_TRUE(second.size == "E35" && second.stroke_mm == 300 && second.type == 2 &&
              second.pg == 1);
  EXPECT_TRUE(first.size == " 42" && first.speed == 'D');
  EXPECT_EQ(setup.marker + setup.version + setup.axis_versions[2], "R9X2.0777");
  EXPECT_EQ(EncodePosition(setup.positions.at(999)), record);
  EXPECT_EQ(setup.macros.at(20), (std::vector<std::pair<int, int>>{{1, 1}, {3, 5}}));
  EXPECT_TRUE(setup.homed && setup.rest_as_f && !setup.paced);
  EXPECT_TRUE(setup.baud == 38400 && setup.processing_us == 7000 && setup.commit_us == 0);
  EXPECT_TRUE(options.seed == 99 && options.silent && options.quit_on_eof && options.tell_motion);
  const Fault& fault = options.faults.on_requests.at(0);
  EXPECT_TRUE(fault.kind == FaultKind::kLostByte && fault.probability == 0.5 &&
              fault.at_request == 0 && fault.prefix == "0RP" && fault.at_byte == 3);
  EXPECT_EQ(options.faults.alarms.at(0).at_us, 2500000);
  EXPECT_EQ(options.faults.alarms[0].alarm, (Alarm{'1', '0', '4'}));
  const TimedInput& input = setup.inputs.at(0);
  EXPECT_TRUE(input.at_us == 0 && input.signal.place.value == 3 && input.value == 1);
  EXPECT_TRUE(setup.running_tasks == 2 && setup.step_us == 50);
}

TEST(Options, WrongOnesSayWhatIsWrong) {
  const std::pair<const char*, const char*> cases[] = {
      {"--bogus", "--bogus"},
      {"--axes", "needs a value"},
      {"--axes 5", "--axes"},
      {"--homed=1", "takes no value"},
      {"--device 5:28:L:100:2:400", "--device"},
      {"--fault sulk", "--fault"},
      {"--alarm-at 1:5:1", "--alarm-at"},
      {"--axes 2 --mask 4", "mask"},
      {"--input 19=1", "--input"},
      {"--program 1:/dev/null", "no program file"},
  };
  for (const auto& [line, part] : cases) {
    Options options;
    const std::string message = ParseOptions(Split(line, " "), &options);
    EXPECT_NE(message.find(part), std::string::npos) << line << ": " << message;
  }
}

TEST(Commands, AnswerAndAct) {
  Controller controller(qvr7sim::Setup::Useful());
  bool quit = false;
  const auto run = [&](const std::string& line) { return RunCommand(line, &controller, 0, &quit); };
  EXPECT_EQ(run("push 1 5"), "error the servo holds the axis");
  for (const std::string& line :
       Split("silence on,silence off,alarm 1 4,lose-servo 1,push 1 5,power-cycle,faults off,"
             "fail-homing 3,place 2 100,input 18 on",
             ",")) {
    EXPECT_EQ(run(line), "ok " + line);
  }
  EXPECT_EQ(run("fault lost-byte p=0.5"), "ok fault lost-byte");
  EXPECT_EQ(run("status"),
            "ok mode=pos mask=15 silent=off alarm=none axis1=5 axis2=100 axis3=0 axis4=0 "
            "tasks=none out=none io=001000C,30000");
  for (const std::string& line : Split(
           " ,silence,silence maybe,alarm,alarm 5 1,alarm 1 12,alarm 1 4 loud,fault sulk,faults on,"
           "fail-homing 5,place 5 1,push 1,lose-servo 9,input 19 on,power-cycle now,quit now,dance",
           ",")) {
    EXPECT_TRUE(run(line).starts_with("error ")) << line;
  }
  EXPECT_FALSE(quit || controller.StandingAlarm());
  EXPECT_EQ(run("quit"), "ok quit");
  EXPECT_TRUE(quit);
}

}  // namespace
}  // namespace qvr7sim
