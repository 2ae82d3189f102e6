#include "sim/memory.h"

#include <gtest/gtest.h>

#include "tests/sim/exchange.h"

namespace qvr7sim {
namespace {

const std::string kRecord = "0320F427100000" + std::string(46, '0');
const std::string kData(32, '5');

TEST(Memory, OnlyTheRightFrameCommits) {
  struct Family {
    std::string write;
    std::string commit;
    std::string (*written)(const Controller&);
    std::string (*committed)(const Controller&);
  };
  const auto text = [](std::pair<int, int> g) {
    return std::to_string(g.first) + "-" + std::to_string(g.second);
  };
  static const auto group_text = text;
  const Family families[] = {
      {"0WP007" + kRecord, "0WA006008", [](const Controller& c) { return c.WrittenPosition(7); },
       [](const Controller& c) { return c.CommittedPosition(7); }},
      {"0WD5" + kData, "0WE2", [](const Controller& c) { return c.WrittenBlock(5); },
       [](const Controller& c) { return c.CommittedBlock(5); }},
      {"0WG0A011012", "0WE3", [](const Controller& c) { return group_text(c.WrittenGroup(10)); },
       [](const Controller& c) { return group_text(c.CommittedGroup(10)); }},
      {"0WS03" + kData, "0WE1", [](const Controller& c) { return c.WrittenMacro(3); },
       [](const Controller& c) { return c.CommittedMacro(3); }},
      {"0WK4" + kData, "0WF", [](const Controller& c) { return c.WrittenSystemBlock(4); },
       [](const Controller& c) { return c.CommittedSystemBlock(4); }}};
  const std::string others[] = {"0WA001006", "0WA008020", "0WE", "0WE1", "0WE2", "0WE3", "0WF"};
  for (const Family& family : families) {
    Exchange pc;
    const std::string before = family.committed(pc.controller);
    pc.Ask(family.write);
    const std::string after = family.written(pc.controller);
    EXPECT_NE(after, before) << family.write;
    for (const std::string& other : others) {
      if (other == family.commit) continue;
      EXPECT_EQ(pc.Ask(other), other);
    }
    EXPECT_EQ(family.committed(pc.controller), before) << family.write;
    EXPECT_EQ(pc.Ask(family.commit), family.commit);
    EXPECT_EQ(family.committed(pc.controller), after) << family.commit;
  }
}

TEST(Memory, EveryFamilyIsLostWithoutItsCommit) {
  const struct {
    std::string write, commit, read;
  } rows[] = {{"0WP007" + kRecord, "0WA007007", "0RP007"},
              {"0WD5" + kData, "0WE2", "0RD5"},
              {"0WG0A011012", "0WE3", "0RG0A"},
              {"0WS03" + kData, "0WE1", "0RS03"},
              {"0WK4" + kData, "0WF", "0RK4"}};
  for (const auto& [write, commit, read] : rows) {
    Exchange pc;
    const std::string before = pc.Ask(read);
    pc.Ask(write);
    const std::string after = pc.Ask(read);
    EXPECT_NE(after, before) << write;
    pc.controller.PowerCycle(pc.now_us);
    EXPECT_EQ(pc.Ask(read), before) << write;
    pc.Ask(write);
    pc.Ask(commit);
    pc.controller.PowerCycle(pc.now_us);
    EXPECT_EQ(pc.Ask(read), after) << commit;
  }
}

std::string Block0(unsigned mask, int mode) {
  std::string data(32, '0');
  data[3] = "0123456789ABCDEF"[mask];
  data[19] = static_cast<char>('0' + mode);
  return data;
}

TEST(Memory, ModeAndMaskTakeEffectAtThePowerCycleAfterTheirCommit) {
  for (const bool commit : {false, true}) {
    Exchange pc;
    const std::string wanted = Block0(5, 1);
    EXPECT_EQ(pc.Ask("0WD0" + wanted), "0WD0");
    if (commit) {
      EXPECT_EQ(pc.Ask("0WE"), "0WE");
    }
    EXPECT_EQ(pc.Ask("0RD0"), "0RD0" + wanted);
    EXPECT_EQ(pc.controller.RunningMask(), 15u);
    EXPECT_EQ(pc.controller.RunningMode(), Mode::kPosition);
    EXPECT_EQ(pc.Ask("0RA"), "0RAF");
    EXPECT_EQ(pc.Ask("0MG01"), "0%%003");
    pc.controller.PowerCycle(pc.now_us);
    EXPECT_EQ(pc.controller.RunningMask(), commit ? 5u : 15u);
    EXPECT_EQ(pc.controller.RunningMode(), commit ? Mode::kProgram : Mode::kPosition);
    EXPECT_EQ(pc.Ask("0RA"), commit ? "0RA5" : "0RAF");
    EXPECT_EQ(pc.Ask("0MG01"), commit ? "0MG01" : "0%%003");
    EXPECT_EQ(pc.Ask("0RD0") == "0RD0" + wanted, commit);
  }
}

TEST(Memory, AMaskWithoutAFittedAxisLeavesTheOneBefore) {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.axis_count = 2;
  setup.mask = 3;
  Exchange pc(setup);
  pc.Ask("0WD0" + Block0(12, 0));
  pc.Ask("0WE");
  pc.controller.PowerCycle(pc.now_us);
  EXPECT_EQ(pc.controller.RunningMask(), 3u);
}

TEST(Setup, PositionRecordsSurviveTheLine) {
  PositionRecord record;
  record.axis[0] = {48, 10, 1, 10000, 70, 99};
  record.axis[3] = {4095, 200, 3, 262143, 20, 1};
  record.itpl = 1;
  record.out = 15;
  record.sm = 20;
  const std::string digits = EncodePosition(record);
  EXPECT_EQ(digits.substr(0, 14), "0300A427104663");
  EXPECT_EQ(digits.substr(42), "FFFC8FFFFF14011F14");
  PositionRecord back;
  ASSERT_TRUE(DecodePosition(digits, &back));
  EXPECT_EQ(EncodePosition(back), digits);
  EXPECT_EQ(back.axis[3].way, 3);
  EXPECT_EQ(back.axis[3].pulses, 262143);
  EXPECT_FALSE(DecodePosition(digits.substr(1), &back));
  EXPECT_FALSE(DecodePosition("X" + digits.substr(1), &back));
}

TEST(Setup, CheckNamesWhatIsWrong) {
  const struct {
    void (*spoil)(qvr7sim::Setup&);
    const char* part;
  } cases[] = {{[](qvr7sim::Setup& s) { s.axis_count = 2; }, "mask"},
               {[](qvr7sim::Setup& s) { s.devices[2].lead = 0; }, "axis 3: lead"},
               {[](qvr7sim::Setup& s) { s.positions[1000]; }, "position numbers"}};
  EXPECT_EQ(qvr7sim::Setup::Useful().Check(), "");
  for (const auto& [spoil, part] : cases) {
    qvr7sim::Setup setup = qvr7sim::Setup::Useful();
    spoil(setup);
    EXPECT_NE(setup.Check().find(part), std::string::npos) << part << ": " << setup.Check();
  }
}

}  // namespace
}  // namespace qvr7sim
