// Several monitors on one line.

#include "monitor/poll.h"

#include "motion/motion_now.h"
#include "state/busy_scope.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

/// A monitor whose poll is so many requests; each poll leaves its letter.
struct Watcher {
  Watcher(std::string& polls, char letter, int requests) {
    ticks.Tick = [this, &polls, letter, requests] {
      static_cast<void>(poll.Run([&] {
        polls += letter;
        std::string reply;
        auto outcome = TusinOutcome::Good;
        for (int i = 0; i < requests && outcome == TusinOutcome::Good; ++i) {
          outcome = TusinWait("0RH", 6, 1000, reply);
        }
        return outcome;
      }));
    };
    ticks.Start();
    poll.Begin();
  }
  Timer ticks{20};
  Poll poll{ticks};
};

using PollTest = FlowTest;

TEST_F(PollTest, MonitorsTakeTurnsKnowTheirPaceAndLeaveTheLineToAMotionAndATransfer) {
  StartOnline();
  std::string polls;
  Watcher a(polls, 'a', 20), b(polls, 'b', 20), c(polls, 'c', 1);
  pump.RunFor(20'000'000);
  for (std::size_t i = 3; i < polls.size(); ++i) EXPECT_EQ(polls[i], polls[i - 3]) << polls;
  EXPECT_GT(c.poll.PaceMs(), 300);
  EXPECT_TRUE(c.poll.IsLate());
  const auto rest = [&] {
    pump.RunFor(1'000'000);
    const std::size_t before = polls.size();
    pump.RunFor(1'000'000);
    return polls.size() == before;
  };
  BeginMotion(Motion::Jog);
  EXPECT_TRUE(rest());
  EndMotion();
  const BusyScope transfer;
  EXPECT_TRUE(rest());
}

}  // namespace
}  // namespace tr7
