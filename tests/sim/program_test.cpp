// Programs that run.

#include <fstream>
#include <span>

#include "sim/input_script.h"
#include "sim/parse.h"
#include "sim/program_text.h"
#include "sim/random.h"
#include "sim/text.h"
#include "tests/sim/exchange.h"

namespace qvr7sim {
namespace {

/// "MVP,1,,I1,O1 TIM,0.5": steps as they are typed, cells apart by commas.
std::string Assemble(const std::string& text) {
  std::string digits;
  for (const std::string& step : Split(text, " \n")) {
    StepCells cells;
    std::size_t at = 0;
    for (char c : step) c == ',' ? void(++at) : cells[at].push_back(c);
    const auto assembled = step[0] == '#' ? step.substr(1) : AssembleStep(cells);
    EXPECT_TRUE(assembled) << step;
    digits += assembled.value_or("");
  }
  return digits;
}

/// Program mode, homed axes; positions 50 to 53 by axis 1, 54 by axes 1 and 2, 55 by 2.
qvr7sim::Setup ProgramSetup() {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.mode = Mode::kProgram;
  setup.homed = true;
  setup.devices[1].pg = 1;
  const auto place = [&setup](int number, int axis, int way, int pulses) {
    setup.positions[number].axis[axis] = {50, 10, way, pulses, 0, 0};
  };
  for (int number = 50; number < 54; ++number) place(number, 0, number == 52 ? 3 : 1, 1000);
  place(51, 0, 1, 2000);
  place(53, 0, 1, 20001);
  place(54, 0, 1, 1000);
  place(54, 1, 1, 4000);
  place(55, 1, 1, 4000);
  return setup;
}

/// One thing that stands in the controller, as a test names it: "O1", "F3", "R1", "r1", "PR2" of
/// program 1, "A1" the place of an axis, "v1" its movement, "T" the tasks, "err" the alarm.
std::string Fact(const Exchange& pc, const std::string& name) {
  const Operand signal = DecodeStep(Assemble("=,R1 ON," + name).substr(kStepDigits)).op1;
  const ProgramValues& values = pc.controller.Values(pc.now_us);
  if (signal.kind <= RefKind::kLocalFlag) return values.IsOn(signal, 1) ? "1" : "0";
  const std::int64_t thousandths = values.Thousandths(signal, 1);
  const bool whole = signal.kind != RefKind::kPositionVariable;
  return std::to_string(whole ? thousandths / 1000 : thousandths);
}

std::string Facts(Exchange& pc, const std::string& names) {
  std::string facts;
  for (const std::string& wanted : Split(names, " ")) {
    const std::string name = wanted.substr(0, wanted.find('='));
    facts += facts.empty() ? "" : " ";
    facts += name + "=";
    if (name[0] == 'A') {
      facts += std::to_string(pc.Axis(name[1] - '0').pulses);
    } else if (name == "T") {
      facts += pc.Ask("0TN").substr(3);
    } else if (name == "err") {
      facts += pc.Ask("0RV").substr(3, 3);
      facts += ":" + std::to_string(pc.controller.FailedStep().second);
    } else {
      facts += Fact(pc, name);
    }
  }
  return facts;
}

/// What stands in the controller so long after the start of program 1.
void ExpectFacts(const std::string& program, int wait_ms, const std::string& facts,
                 const std::string& inputs) {
  SCOPED_TRACE(program + " after " + std::to_string(wait_ms));
  qvr7sim::Setup setup = ProgramSetup();
  std::string error;
  setup.inputs = ParseInputScript(inputs, &error).value();
  setup.programs[1] = Assemble(program);
  setup.programs[2] = Assemble("ON,F9 PMOV,51,,,F8 TIM,9");
  Exchange pc(setup);
  EXPECT_EQ(pc.Ask("0DM01"), "0DM");
  pc.now_us = wait_ms * 1000;
  EXPECT_EQ(Facts(pc, facts), facts);
}

struct Meaning {
  const char* program;
  int wait_ms;
  const char* facts;
  const char* inputs = "";
};

void ExpectMeanings(std::span<const Meaning> meanings) {
  for (const auto& [program, wait_ms, facts, inputs] : meanings) {
    ExpectFacts(program, wait_ms, facts, inputs);
  }
}

TEST(Program, CommandsOfFlow) {
  const Meaning meanings[] = {
      {"ON,O1 TIM,0.5,,,F1 ON,O2", 499, "O1=1 F1=0 O2=0 T=1"},
      {"ON,O1 TIM,0.5,,,F1 ON,O2", 515, "O1=1 F1=1 O2=1 T=0"},
      {"ON,O1,,I1 ON,O2,,/I1 ON,O3,,I2 ON,F1,F2 OFF,F1,,F2", 10, "O1=1 O2=0 O3=0 F1=0 F2=1",
       "0 1 1"},
      {"LB,1 +,r1,1 <,r1,5,,f1 JUMP,1,,f1 JUMP,r1 ON,O1 LB,5 ON,O2", 50, "r1=5 O1=0 O2=1 T=0"},
      {"CALL,2 CALL,2 +,R1,10 SR,2 +,R1,1 CALL,3 SRET SR,3 +,R1,100 SRET ON,O1", 50,
       "R1=212 O1=1 T=0"},
      {"CALL,1 SR,1 +,R1,1 CALL,1 SRET", 50, "R1=8 err=008:4"},
      {"WTON,I1,2,,F1 ON,O1", 3000, "F1=1 O1=1", "1000 1 1"},
      {"WTON,I1,2,,F1 ON,O1", 1990, "F1=0 O1=0 T=1", "2500 1 1"},
      {"ON,F1 WTON,I1,2,,F1 ON,O1", 2015, "F1=0 O1=1 T=0"},
      {"WTOF,I2 ON,O1 END ON,O2", 600, "O1=1 O2=0 T=0", "0 2 1\n 500 2 0 # goes"},
      {"STPG,2,,,F1 STPG,2,,,F2 WTON,F9 EDPG,2,,,F3 EDPG,2,,,F4", 50,
       "F1=1 F2=0 F9=1 F3=1 F4=0 T=0"},
      {"STPG,2 EDPG,1 ON,O1", 50, "F9=1 O1=0 T=1"},
      {"PAUSE ON,O1 REM ON,O2", 50, "O1=0 T=1"},
  };
  ExpectMeanings(meanings);
}

TEST(Program, CommandsOfValues) {
  const Meaning meanings[] = {
      {"=,R1,7 /,R1,2 =,PR1,7 /,PR1,2 %,PR1,2 =,r2,PR1 *,PR2,5", 50, "R1=3 PR1=1500 r2=1 PR2=0"},
      {"=,R1,5 -,R1,9 *,R1,2.5 ==,R1,R1,,F1 !=,R1,0,,F2 >,R1,0,,F3 <=,R1,PR1,,F4 >=,R1,R1,,F5", 50,
       "R1=-10 F1=1 F2=1 F3=0 F4=1 F5=1"},
      {"=,R1,2000 *,R1,R1 *,R1,R1,,F1 /,R1,0,,F2 =,R2,1 CLR,R1,R1", 50, "F1=0 F2=0 R1=0 R2=1"},
      {"IN,R1,I3 INB,R2,I3 OUT,165,O9 OUTB,R2,F11", 50,
       "R1=33 R2=21 O9=1 O10=0 O16=1 F11=1 F12=0 F16=1", "0 3 1\n0 8 1"},
      {"INB,R1,I1", 50, "err=003:1", "0 2 1\n0 4 1"},
  };
  ExpectMeanings(meanings);
}

// 50 mm/s and 100 ms, 200 pulses a mm, where nothing else is told.
TEST(Program, CommandsOfMotion) {
  const Meaning meanings[] = {
      {"HOME,1 PMOV,50 PGR,1", 9000, "err=117:3"},
      {"MVP,50 ON,O1", 200, "O1=0 A1=997"},
      {"MVP,50 ON,O1", 215, "A1=1000 O1=1"},
      {"VEL,10 ACC,10 MVP,50,,,F1 ON,O1", 520, "F1=0 O1=0"},
      {"VEL,10 ACC,10 MVP,50,,,F1 ON,O1", 530, "A1=1000 F1=1 O1=1"},
      {"MVP,50,52,,F1 ON,O1", 700, "A1=1000 F1=1 O1=1 T=0"},  // 1000, 2000, back by 1000
      {"MVP,51 MVA,52 CPRD,1", 700, "A1=1000 PR1=5000"},
      {"MVP,51 MVI,51 MVI,52", 900, "A1=3000"},
      {"MVP,54 ON,O1", 600, "A1=1000 A2=1806 O1=0"},
      {"=,PR1,12.5 =,PR2,30 MVD,3 PTST,1,51,,F1 PTST,1,50,,F2", 1700, "A1=2500 A2=2000 F1=0 F2=0"},
      {"PMOV,51,,,F1 ON,O1 WTON,F1 ON,O2", 200, "O1=1 O2=0 F1=0 T=1"},
      {"PMOV,51,,,F1 ON,O1 WTON,F1 ON,O2", 330, "A1=2000 O2=1 F1=1 T=0"},
      {"PMOV,51,,,F1", 200, "T=1"},
      {"PMOV,51,,,F1 MVP,55 ON,O1", 400, "F1=1 O1=0"},
      {"STPG,2 WTON,F8 ON,O1", 400, "O1=1"},
      {"PMOV,51,,,F1 TIM,0.1 STOP,,,,F2 ON,O1", 500, "A1=770 F1=0 F2=1 O1=1"},
      {"MVP,54 HOME,2 CPRD,2", 5500, "A1=1000 A2=0 PR2=0 T=0"},
      {"JOG+,1,I1,,F1 ON,O1", 1200, "A1=5800 F1=1 O1=1", "1000 1 1"},
      {"VEL,100 JOG+,2,F9,,F1 JOG-,3,F9,,F2 ON,O1", 9000, "A2=0 F1=0 F2=0 O1=1"},
      {"MVP,50 PGET,1,51 PPUT,1,50 MVP,50 PTST,1,51,,F1", 700, "A1=2000 PR1=10000 F1=1"},
      {"ZONE1,0,5 ZOUT,1,1,,F1 ZOUT,1,2,,F2 ZOUT,1,0,,F3 ZOUT,2,1,,F4", 50, "F1=1 F2=0 F3=0 F4=0"},
      {"PUST1,20,50 MVP,50 ON,O1", 310, "A1=1000 O1=0"},
      {"PUST1,20,50 MVP,50 ON,O1", 320, "O1=1"},
  };
  ExpectMeanings(meanings);
}

TEST(Program, WhatHasNoMeaningOrCannotBeDoneIsAnAlarmAtItsStep) {
  const std::string rows =
      "008:2 ON,F1 JUMP,7;008:1 CALL,3;008:5 LB,1 JUMP,2 SR,1 LB,2 SRET;"
      "008:1 #3A00000000000000000;008:1 #120000003FF0150003E8;008:1 #1203FF01500000001300;"
      "008:1 #1203FF01500000000001;008:1 ON,I1;008:1 ON,O1,I1;008:1 IN,R1,I12;"
      "003:1 OUT,256,O1;008:1 OUT,1,I1;003:1 /,R1,0;008:1 CLR,R2,R1;008:1 STPG,3;"
      "003:1 VEL,R1;003:1 MVP,1000;106:1 MVP,53;106:1 MVI,52;106:2 =,PR1,101 PPUT,1,50;"
      "23E:2 VEL,150 JOG-,2,F9";
  for (const std::string& row : Split(rows, ";")) {
    ExpectFacts(row.substr(6), 50, "err=" + row.substr(0, 5), "");
  }
}

TEST(Program, TheLineStartsShowsAndStopsTasks) {
  qvr7sim::Setup setup = ProgramSetup();
  setup.programs[10] = Assemble("LB,1 TIM,1 JUMP,1");
  setup.programs[100] = Assemble("VEL,1 MVP,50 MVP,51 JUMP,1 LB,1");
  Exchange pc(setup);
  const std::string steps = "0C0003E8000000" + std::string(5, '0');
  Talk(pc,
       "0TN>0TN0 0DM64>0DM 0DM0A>0DM 0DM64>0DM +100 0TN>0TN2 0TS>0TS640A0000000000000000 "
       "0PT0A>0PT0A020A0003E800000000000 0PT64>0PT64020200C35000000000000 "
       "0PT05>0PT05000000000000000000000 0WM05" +
           steps +
           ">0%%004 0PM0A>0PM 0PM0A>0PM 0TN>0TN1 "
           "0PN>0PN +100 0WM64" +
           steps + ">0WM64 0TN>0TN0 0RA>0RAF 0DM00>0%%003 0PN0>0%%002");
  const int stopped = pc.Axis(1).pulses;
  EXPECT_TRUE(stopped > 20 && stopped < 200) << stopped << ", on its way to 1000";
  // What stops the axes ends the programs.
  for (const char* stop : {"0SP>0SP", "0AR>0AR"}) {
    setup.programs[100] = Assemble("VEL,1 MVP,50 MVP,51");
    Exchange other(setup);
    Talk(other, "0DM64>0DM 0DM0A>0DM +100");
    if (stop[1] == 'A') other.controller.RaiseAlarm({'0', '0', '5'}, other.now_us);
    Talk(other, std::string(stop) + " 0TN>0TN0 +9000 0RA>0RAF");
    EXPECT_LT(other.Axis(1).pulses, 60);
    Talk(other, "0DM64>0DM +100 0TN>0TN1");
    other.controller.PowerCycle(other.now_us);
    Talk(other, "0TN>0TN0 0RA>0RAF");
  }
  setup.mode = Mode::kPosition;
  EXPECT_EQ(Exchange(setup).Ask("0DM0A"), "0%%003");
}

TEST(Program, AnyStepsEndInAnAlarmOrGoOn) {
  const char* operands[] = {"000000", "0003E8", "0007D0", "3FF001", "3FF015", "3FF064",
                            "3FF12C", "3FF190", "3FF1F5", "3FF000", "FFFFFF", "200001"};
  Random random(10);
  qvr7sim::Setup setup = ProgramSetup();
  setup.paced = false;
  Exchange pc(setup);
  for (int round = 0; round < 2000; ++round) {
    std::string steps;
    for (int step = 0; step < 4; ++step) {
      steps += Hex(static_cast<unsigned>(random.Below(59)), 2) + operands[random.Below(12)] +
               operands[random.Below(12)] + Hex(random.Chance(0.5) ? 0U : 1U, 3) +
               Hex(random.Chance(0.5) ? 0U : 100U, 2);
    }
    pc.Ask("0AR");
    Talk(pc, "0PN>0PN +100 0WM01" + steps + ">0WM01 0DM01>0DM +300 0AR>0AR");
    const AxisState axis = pc.Axis(1);
    ASSERT_TRUE(axis.pulses >= 0 && axis.pulses <= axis.max_pulses) << steps;
  }
  EXPECT_GT(pc.controller.StepsDone(), 2000);
}

TEST(Program, TheSamplesDoWhatTheySay) {
  const std::tuple<std::vector<std::string>, int, const char*> rows[] = {
      {{"pick_and_place"}, 60, "R1=2 O1=0 O2=0 O3=0 A1=400 A2=0 A3=0 A4=12000 T=0"},
      {{"palletising"}, 600, "R1=12 R2=41 O1=0 O3=1 A1=400 A2=0 A3=0 A4=12000 T=0"},
      {{"handshake_a", "handshake_b"}, 120, "R1=3 F1=0 F2=0 O1=1 O2=0 A4=12000 T=0"},
      {{"handshake_a"}, 120, "R1=0 F1=0 O1=0 O2=1 T=0"}};
  for (const auto& [files, seconds, facts] : rows) {
    SCOPED_TRACE(files[0]);
    qvr7sim::Setup setup = qvr7sim::Setup::Useful();
    setup.mode = Mode::kProgram;
    std::string error;
    setup.inputs = ParseInputScript("0 1 1\n20000 2 1", &error).value();
    for (const std::string& file : files) {
      std::ifstream stream(TR7_SOURCE_DIR "/samples/" + file + ".prg", std::ios::binary);
      const std::string text{std::istreambuf_iterator<char>(stream), {}};
      const auto digits = AssembleProgramFile(text, &error);
      ASSERT_TRUE(digits) << error;
      setup.programs[++setup.running_tasks] = *digits;
    }
    Exchange pc(setup);
    pc.Wait(seconds * 1'000'000);
    EXPECT_EQ(Facts(pc, facts), facts);
  }
}

}  // namespace
}  // namespace qvr7sim
