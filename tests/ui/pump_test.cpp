// The pump on Qt's event loop: ticks, waits inside of ticks, and sleep while nothing is due.

#include <QEventLoop>
#include <QTimer>
#include <vector>

#include "forms/timer.h"
#include "state/wait.h"
#include "tests/ui/ui_test.h"

namespace tr7 {
namespace {

class PumpTest : public UiTest {
 protected:
  std::int64_t NowMs() const { return desktop.pump.NowUs() / 1000; }
};

TEST_F(PumpTest, APeriodicTimerKeepsItsIntervalInALoopOfAnothersToo) {
  Timer timer(20, true);
  int ticks = 0;
  const std::int64_t start = NowMs();
  QEventLoop loop;  // as a menu or a drag runs one of its own
  timer.Tick = [&ticks, &loop] {
    if (++ticks == 5) loop.quit();
  };
  QTimer::singleShot(5000, &loop, &QEventLoop::quit);
  loop.exec();
  EXPECT_EQ(ticks, 5);
  EXPECT_GE(NowMs() - start, 5 * timer.Interval);
}

TEST_F(PumpTest, ATickThatWaitsLetsTheOthersTick) {
  Timer slow(10, true), quick(10, true);
  int quick_ticks_inside = -1, quick_ticks = 0;
  slow.Tick = [&] {
    slow.Stop();
    const int before = quick_ticks;
    TusinWaitMs(100);
    quick_ticks_inside = quick_ticks - before;
  };
  quick.Tick = [&quick_ticks] { ++quick_ticks; };
  ASSERT_TRUE(Until([&] { return quick_ticks_inside >= 0; }));
  EXPECT_GE(quick_ticks_inside, 3);
}

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
