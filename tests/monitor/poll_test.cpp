// Several monitors on one line, and what else wants it.

#include "monitor/poll.h"

#include <gtest/gtest.h>

#include <string>

#include "link/status_commands.h"
#include "motion/motion_now.h"
#include "session/session.h"
#include "state/busy_scope.h"
#include "steps/transfer_scope.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

constexpr std::int64_t kMs = 1000;

/// A monitor whose poll is so many requests; a letter a poll goes into the test's record.
struct Watcher {
  Watcher(std::string& record, char letter, int interval_ms, int requests)
      : ticks(interval_ms), record(record), letter(letter), requests(requests) {
    ticks.Tick = [this] { end = poll.Run([this] { return Ask(); }); };
    ticks.Start();
    poll.Begin();
  }
  ~Watcher() { poll.End(); }
  Watcher(const Watcher&) = delete;
  Watcher& operator=(const Watcher&) = delete;

  TusinOutcome Ask() {
    record += letter;
    for (int i = 0; i < requests; ++i) {
      std::string reply;
      const auto outcome = TusinWait("0RH", 6, 1000, reply);
      if (outcome != TusinOutcome::Good) return outcome;
      if (!poll.GoesOn()) return TusinOutcome::Withdrawn;
    }
    return TusinOutcome::Good;
  }

  Timer ticks;
  Poll poll{ticks};
  PollEnd end = PollEnd::Skipped;
  std::string& record;
  char letter;
  int requests;
};

class PollTest : public FlowTest {
 protected:
  PollTest() { StartOnline(); }
  void After(int ms) { pump.RunFor(ms * kMs); }
  std::string record;
};

TEST_F(PollTest, MonitorsThatWantMoreThanTheLineHasTakeTurnsAndKnowTheirPace) {
  Watcher a(record, 'a', 20, 20), b(record, 'b', 20, 20), c(record, 'c', 20, 1);
  After(20'000);
  EXPECT_GE(record.size(), 30u);
  for (std::size_t i = 3; i < record.size(); ++i) EXPECT_EQ(record[i], record[i - 3]) << record;
  EXPECT_GT(c.poll.PaceMs(), 300);
  EXPECT_TRUE(c.poll.IsLate());
}

TEST_F(PollTest, WhatElseHasTheLineIsNotDisturbed) {
  Watcher a(record, 'a', 100, 1);
  {
    const TransferScope transfer;
    After(1000);
    a.poll.Soon();
    After(500);
    EXPECT_EQ(record, "");
    EXPECT_TRUE(a.poll.IsLate());
  }
  After(350);
  EXPECT_EQ(record, "aaaa");  // at once, and by its interval
  BeginMotion(Motion::Jog);
  After(1000);
  EXPECT_EQ(record, "aaaa");
  EndMotion();
  After(150);
  EXPECT_EQ(a.end, PollEnd::Done);
  EXPECT_EQ(a.poll.IsLate(), true);  // of the time in between
  After(200);
  EXPECT_FALSE(a.poll.IsLate());
  a.poll.End();
  const std::size_t before = record.size();
  After(1000);
  EXPECT_EQ(record.size(), before);
}

TEST_F(PollTest, AStopOvertakesAPollAndAFailureEndsIt) {
  Watcher a(record, 'a', 100, 50);
  pump.After(120 * kMs, [] {
    std::string reply;
    static_cast<void>(TusinWait("0SP", 5, 1000, reply, {TusinPriority::Next}));
  });
  After(250);
  EXPECT_TRUE(a.poll.IsOn());
  EXPECT_EQ(record, "aa");
  After(5000);
  ExpectOnline();
  port.Ct().SetSilent(true);
  After(10'000);
  EXPECT_EQ(a.end, PollEnd::Failed);
  EXPECT_FALSE(a.poll.IsOn());
  EXPECT_EQ(Boxes().size(), 1u);
}

TEST_F(PollTest, AMonitorThatBeginsAnewInItsOwnWaitTakesNothingOfTheOldPoll) {
  Watcher a(record, 'a', 100, 3);
  pump.After(105 * kMs, [&a] {
    a.poll.End();
    a.poll.Begin();
  });
  pump.RunFor(190 * kMs);
  EXPECT_EQ(a.end, PollEnd::Over);
  After(150);
  EXPECT_EQ(a.end, PollEnd::Done);
}

}  // namespace
}  // namespace tr7
