// Several monitors on one line, and what else wants it.

#include "monitor/poll.h"

#include "motion/motion_now.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

/// A monitor whose poll is so many requests; each poll leaves its letter.
struct Watcher {
  Watcher(std::string& polls, char letter, int interval_ms, int requests) : ticks(interval_ms) {
    ticks.Tick = [this, &polls, letter, requests] {
      static_cast<void>(poll.Run([&] {
        polls += letter;
        auto outcome = TusinOutcome::Good;
        for (int i = 0; i < requests && outcome == TusinOutcome::Good; ++i) {
          std::string reply;
          outcome = TusinWait("0RH", 6, 1000, reply);
        }
        return outcome;
      }));
    };
    ticks.Start();
    poll.Begin();
  }
  Timer ticks;
  Poll poll{ticks};
};

class PollTest : public FlowTest {
 protected:
  PollTest() { StartOnline(); }
  /// The polls that begin within so many milliseconds.
  std::string Within(int ms) {
    polls.clear();
    pump.RunFor(std::int64_t{ms} * 1000);
    return polls;
  }
  std::string polls;
};

TEST_F(PollTest, MonitorsThatWantMoreThanTheLineHasTakeTurnsAndKnowTheirPace) {
  Watcher a(polls, 'a', 20, 20), b(polls, 'b', 20, 20), c(polls, 'c', 20, 1);
  Within(20'000);
  for (std::size_t i = 3; i < polls.size(); ++i) EXPECT_EQ(polls[i], polls[i - 3]) << polls;
  EXPECT_GT(c.poll.PaceMs(), 300);
  EXPECT_TRUE(c.poll.IsLate());
}

TEST_F(PollTest, WhatElseHasTheLineIsNotDisturbed) {
  Watcher a(polls, 'a', 100, 1);
  BeginMotion(Motion::Jog);
  a.poll.Soon();
  EXPECT_EQ(Within(1000), "");
  EXPECT_TRUE(a.poll.IsLate());
  EndMotion();
  EXPECT_EQ(Within(350), "aaaa");  // at once, and by its interval
  EXPECT_FALSE(a.poll.IsLate());
}

}  // namespace
}  // namespace tr7
