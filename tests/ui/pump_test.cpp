// The pump on Qt's event loop: ticks, waits inside of ticks, and sleep while nothing is due.

#include <QTimer>

#include "forms/timer.h"
#include "tests/ui/ui_test.h"

namespace tr7 {
namespace {

class PumpTest : public UiTest {
 protected:
  std::int64_t NowMs() const { return desktop.pump.NowUs() / 1000; }
};

TEST_F(PumpTest, WorkThatHasBecomePossibleIsServedAtOnceAndCostsNothingBefore) {
  bool work = false;
  int ticks = 0;
  Timer timer(2, true);
  timer.HasWork = [&work] { return work; };
  timer.Tick = [&] {
    work = false;
    ++ticks;
  };
  WaitMs(50);
  const std::uint64_t sleeps = desktop.pump.sleeps;
  WaitMs(200);
  EXPECT_EQ(ticks, 0);
  EXPECT_LE(desktop.pump.sleeps - sleeps, 5u);
  work = true;
  Pump();
  EXPECT_EQ(ticks, 1);
}

TEST_F(PumpTest, TicksThatNeverPauseStillLetTheUserInAndHeldTimersWait) {
  Timer busy(2, true);
  int ticks = 0;
  busy.HasWork = [] { return true; };
  busy.Tick = [&ticks] { ++ticks; };
  bool clicked = false;
  QTimer::singleShot(20, &user, [&clicked] { clicked = true; });
  EXPECT_TRUE(Until([&clicked] { return clicked; }, 1000));
  {
    const QtPump::HoldTimers hold(desktop.pump);
    ticks = 0;
    WaitMs(60);
    EXPECT_EQ(ticks, 0);
  }
  EXPECT_TRUE(Until([&ticks] { return ticks > 0; }, 200));
}

}  // namespace
}  // namespace tr7
