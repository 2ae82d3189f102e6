#include "core/main_entry.h"
#include "forms/timer.h"
#include "link/error_list.h"
#include "link/motion_commands.h"
#include "link/port.h"
#include "link/request_queue.h"
#include "link/status_commands.h"
#include "link/task_commands.h"
#include "link/tusin_wait.h"
#include "state/online.h"
#include "state/progress.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

TusinOutcome ReadNumber(int number, std::string& reply) {
  return TusinWait("0RP" + HexPad(number, 3), 68, 5000, reply);
}

using qvr7sim::Fault;
using qvr7sim::FaultKind;

class ExchangeTest : public StateTest {
 protected:
  ExchangeTest() {
    SetOnline();
    ReadErrorList();
  }
  TusinFailure failure;
  /// One read of position 1, the request that the tests spoil.
  TusinOutcome Read() { return ReadNumber(1, reply); }
  void ExpectOffline(bool port_open) {
    EXPECT_TRUE(AppState.Offline);
    EXPECT_FALSE(frmMain.imgOnline.Visible);
    EXPECT_EQ(port.IsOpen(), port_open);
  }
  std::string reply;
};

TEST_F(ExchangeTest, ControllerOffFourSendsOneBoxPortShut) {
  AppState.PortOccupy = True;
  port.Ct().SetSilent(true);
  const std::int64_t start = pump.NowUs();
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_EQ(SentLines(), "0RP001 0RP001 0RP001 0RP001 ");
  EXPECT_TRUE(forms.LastBox().starts_with(Text(100)));
  EXPECT_NEAR(static_cast<double>(pump.NowUs() - start) / 1e6, 4 * 5.0 + 0.11, 0.1);
  ExpectOffline(false);
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_EQ(forms.boxes.size(), 1u) << "nothing goes out while offline";
}

TEST_F(ExchangeTest, AFaultOfTheLineIsMendedOrToldInItsWords) {
  using Second = std::tuple<FaultKind, const char*, int>;
  const Second none{FaultKind::kSplit, "none", 1}, mute{FaultKind::kDeaf, "0CM0", 1};
  const struct {
    FaultKind first;
    Second second;
    const char* sent;
    std::string box;   ///< begins so; empty: the read is good
    bool open = true;  ///< a port that is to stay open does
  } rows[] = {{FaultKind::kDeaf, none, "0RP001 0RP001 ", ""},
              {FaultKind::kSplit, none, "0RP001 ", ""},
              {FaultKind::kWrongPrefix, none, "0RP001 0CM0 0RP001 ", ""},
              {FaultKind::kWrongLength, none, "0RP001 0CM0 0RP001 ", ""},
              {FaultKind::kWrongLength,
               {FaultKind::kWrongPrefix, "0RP", 2},
               "0RP001 0CM0 0RP001 0CM0 ",
               Text(108),
               false},
              {FaultKind::kWrongPrefix, mute, "0RP001 0CM0 ", Text(104)},
              {FaultKind::kWrongLength, mute, "0RP001 0CM0 ", Text(105) + "\n" + Text(106)}};
  AppState.PortOccupy = True;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.sent + row.box);
    SetOnline();
    port.sent.clear();
    port.Ct().ClearFaults();
    port.Ct().ClearRequests();
    Spoil(row.first, "0RP");
    std::apply([this](auto... second) { Spoil(second...); }, row.second);
    const bool good = row.box.empty();
    EXPECT_EQ(Read(), good ? TusinOutcome::Good : TusinOutcome::Failed);
    EXPECT_EQ(SentLines(), row.sent);
    EXPECT_EQ(Boxes(), good ? Texts{} : Texts{row.box});
    EXPECT_EQ(AppState.Offline, !good);
    EXPECT_EQ(port.IsOpen(), row.open);
  }
}

TEST_F(ExchangeTest, TheGroupMoveStopEndsTheResynchronisation) {
  Spoil(FaultKind::kWrongPrefix, "0RP");
  Spoil(FaultKind::kDelay, "0CM0");
  AppState.GroupMoveStop = True;
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_TRUE(forms.boxes.empty() && AppState.Offline);
  TusinPortCloseForce();
  SetOnline();
  Spoil(FaultKind::kWrongPrefix, "0SP");
  EXPECT_EQ(StopToCt(1000, failure), 0) << "not that of a stop";
}

TEST_F(ExchangeTest, AnAlarmWhilePollingIsShownAtOnce) {
  EXPECT_EQ(Read(), TusinOutcome::Good);
  port.Ct().RaiseAlarm({'0', '0', '1'}, pump.NowUs(), true);
  pump.RunFor(100'000);
  EXPECT_TRUE(AppState.AlarmOn && frmMain.imgAlarm.Visible);
  EXPECT_FALSE(AppState.Offline);  // no request was answered with it
  EXPECT_EQ(port.sent, "0RP001\r\n");
  // The next good reply says that all is well again.
  port.Ct().PowerCycle(pump.NowUs());
  EXPECT_EQ(Read(), TusinOutcome::Good);
  EXPECT_FALSE(AppState.AlarmOn || frmMain.imgAlarm.Visible);
}

TEST_F(ExchangeTest, APortThatDoesNotOpenIsTriedFourTimesAndTold) {
  const std::pair<PortFault, std::string> rows[] = {
      {PortFault::NoSuchPort, Text(5900, "sim")},
      {PortFault::InUse, Text(5901, "sim")},
      {PortFault::NotPermitted, Text(5902, "sim")},
      {PortFault::DeviceError, Text(5903, "sim", "simulated fault")},
      {PortFault::None, Text(5904, "2")},  // a number with no device behind it
  };
  for (const auto& [fault, reason] : rows) {
    AppState.Offline = False;
    AppState.PortNo = fault == PortFault::None ? 2 : 1;
    port.open_fault = fault;
    const std::int64_t start = pump.NowUs();
    EXPECT_EQ(Read(), TusinOutcome::Failed);
    EXPECT_NEAR(static_cast<double>(pump.NowUs() - start), 3 * 100e3 + 110e3, 10e3);
    EXPECT_EQ(port.sent, "");
    EXPECT_EQ(Boxes(), Texts{Text(109) + "\n\n" + Text(110) + "\n\n" + reason});
    ExpectOffline(false);
  }
}

TEST_F(ExchangeTest, APortThatVanishesIsToldOnceByWhoeverNeedsIt) {
  const std::string lost = Text(5905, "sim", "simulated fault") + "\n\n" + Text(5920);
  // The port dies at this write, or by itself after so long: when a request needs it, or while
  // idle.
  const std::tuple<int, int, bool> rows[] = {{1, 0, true}, {-1, 30'000, true}, {-1, 30'000, false}};
  AppState.PortOccupy = True;
  for (const auto& [writes, vanishes_us, needed] : rows) {
    SetOnline();
    port.writes_until_dead = -1;
    EXPECT_EQ(Read(), TusinOutcome::Good);
    port.writes_until_dead = writes;
    if (vanishes_us > 0) pump.After(vanishes_us, [this] { port.Vanish(); });
    const std::int64_t start = pump.NowUs();
    EXPECT_EQ(needed ? Read() : TusinOutcome::Failed, TusinOutcome::Failed);
    EXPECT_LT(pump.NowUs() - start, 300'000);
    pump.RunFor(1'000'000);
    EXPECT_EQ(Boxes(), Texts{lost});
    EXPECT_FALSE(frmMain.imgComPort.Visible);
    ExpectOffline(false);
  }
}

TEST_F(ExchangeTest, AStopEndsTheWaitOfACommandWithoutTimeout) {
  Spoil(FaultKind::kSilence, "0MG", 0);
  pump.After(3'600'000'000, [this] { EXPECT_EQ(StopToCt(1000, failure), 0); });
  EXPECT_NE(StartProgToCt(1), 0);
  EXPECT_EQ(port.sent, "0MG01\r\n0SP\r\n");
  EXPECT_TRUE(forms.boxes.empty());
}

TEST_F(ExchangeTest, AStopIsNotConfusedByTheReplyToWhatItCutShort) {
  port.Ct().AddFault({FaultKind::kDelay, 0.0, 1, "0RP", 400'000, 0});
  pump.After(100'000, [this] { EXPECT_EQ(StopToCt(1000, failure), 0); });
  EXPECT_EQ(Read(), TusinOutcome::Withdrawn);
  EXPECT_EQ(port.sent, "0RP001\r\n0SP\r\n");
}

// A wait inside a wait, and what becomes of those that queue.

/// Ticks once, as soon as it may.
struct Once : Timer {
  Once(std::function<bool()> may, std::function<void()> what) : Timer(1, true) {
    HasWork = std::move(may);
    Tick = [this, what] {
      Stop();
      what();
    };
  }
};

TEST_F(ExchangeTest, AWaitInsideAWaitEndsWithItsOwnOutcome) {
  const std::pair<std::string, bool (*)(const SimPort&)> moments[] = {
      {"before", [](const SimPort& p) { return p.sent.empty() && !TusinQueue.IsEmpty(); }},
      {"during", [](const SimPort& p) { return !p.sent.empty(); }},
      {"after", [](const SimPort& p) { return !p.sent.empty() && TusinQueue.IsEmpty(); }}};
  for (const auto& [when, may] : moments) {
    for (const std::string silent : {"", "0RP001", "0RP002"}) {
      SCOPED_TRACE(when + " " + silent);
      port.sent.clear();
      port.Ct().ClearFaults();
      forms.boxes.clear();
      SetOnline();
      if (!silent.empty()) Spoil(FaultKind::kSilence, silent, 0);
      std::optional<TusinOutcome> inner, outer;
      std::string inner_reply;
      const Once nested([&, may = may] { return may(port); },
                        [&] {
                          inner = ReadNumber(2, inner_reply);
                          EXPECT_FALSE(outer);
                        });
      if (when == "before") frmMain.TimerTusin.Stop();
      const Once lets_go([&] { return inner || TusinQueue.waiting.size() == 2; },
                         [] { frmMain.TimerTusin.Start(); });
      outer = Read();
      EXPECT_EQ(outer == TusinOutcome::Good, silent != "0RP001");
      EXPECT_EQ(inner == TusinOutcome::Good, silent.empty());
      EXPECT_TRUE(inner != TusinOutcome::Good || inner_reply.starts_with("0RP002"));
      EXPECT_TRUE(outer != TusinOutcome::Good || reply.starts_with("0RP001"));
      EXPECT_EQ(forms.boxes.size(), silent.empty() ? 0u : 1u);
      EXPECT_EQ(AppState.Offline, !silent.empty());
    }
  }
}

/// Ten requests wait behind the one on the line; the fifth would start a movement.
class FullQueueTest : public ExchangeTest {
 protected:
  FullQueueTest() {
    for (int i = 2; i <= kQueueRows; ++i) {
      pump.After(i * 1'000, [this, i] {
        std::string text;
        if (i != 6) return Count(ReadNumber(i, text));
        Count(JogStartToCt(50, 0, failure) == 0 ? TusinOutcome::Good : TusinOutcome::Withdrawn);
      });
    }
  }
  void Count(TusinOutcome outcome) { ++ends[outcome]; }
  std::map<TusinOutcome, int> ends;
};

TEST_F(FullQueueTest, AStopOvertakesWhatWaitsAndNoStartFollowsIt) {
  pump.After(20'000, [this] {
    std::string text;
    EXPECT_EQ(ReadNumber(12, text), TusinOutcome::QueueFull);
    EXPECT_EQ(StopToCt(1000, failure), 0);
  });
  EXPECT_EQ(Read(), TusinOutcome::Good);
  EXPECT_EQ(ends[TusinOutcome::Good], 9);
  EXPECT_EQ(port.sent.substr(0, 21), "0RP001\r\n0SP\r\n0RP002\r\n");
  EXPECT_EQ(port.sent.find("0JR"), std::string::npos);
}

TEST_F(FullQueueTest, AStopOfAxesOvertakesAStopOfPrograms) {
  Spoil(FaultKind::kSilence, "0PN");
  pump.After(20'000, [] { EXPECT_EQ(TaskMonitorStartToCt(), TusinOutcome::Good); });
  pump.After(300'000, [this] { EXPECT_EQ(StopToCt(1000, failure), 0); });
  EXPECT_EQ(Read(), TusinOutcome::Good);
  EXPECT_EQ(port.sent.substr(0, 23), "0RP001\r\n0PN\r\n0SP\r\n0PN\r\n");
}

TEST_F(FullQueueTest, ClosingTheToolEndsAllThatWait) {
  port.Ct().SetSilent(true);
  pump.After(20'000, UnloadFrame);
  const std::int64_t start = pump.NowUs();
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_EQ(ends[TusinOutcome::Failed], 9);
  SetOnline();  // as a flow beneath the close may do
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_LT(pump.NowUs() - start, 30'000);
  EXPECT_EQ(port.sent, "0RP001\r\n");
}

/// What stands ahead on the line takes its time, and so does its answer.
TEST_F(ExchangeTest, ALongFrameThatIsCancelledEarlyLeavesTheLineInOrder) {
  const ProgressScope progress("", 1, true);
  pump.After(100'000, [] { frmMain.cmdComCancel.Press(); });
  EXPECT_EQ(TusinWait("0WM01" + std::string(1'900, '0'), 7, 5000, reply), TusinOutcome::Withdrawn);
  EXPECT_EQ(ReadNumber(2, reply), TusinOutcome::Good);
  EXPECT_TRUE(forms.boxes.empty() && !AppState.Offline);
}

TEST_F(ExchangeTest, CancelEndsAWaitAndItsLateReplyIsNobodys) {
  qvr7sim::Fault late;
  late.kind = FaultKind::kDelay;
  late.at_request = 1;
  late.time_us = 400'000;
  port.Ct().AddFault(late);
  const ProgressScope progress("", 1, true);
  std::int64_t pressed = 0;
  pump.After(100'000, [&] {
    pressed = pump.NowUs();
    frmMain.cmdComCancel.Press();
  });
  EXPECT_EQ(Read(), TusinOutcome::Withdrawn);
  EXPECT_LE(pump.NowUs() - pressed, 200'000);
  EXPECT_EQ(ReadNumber(2, reply), TusinOutcome::Good);
  EXPECT_EQ(reply.substr(0, 6), "0RP002");
  EXPECT_EQ(port.sent, "0RP001\r\n0CM0\r\n0RP002\r\n");
  EXPECT_TRUE(forms.boxes.empty());
}

TEST_F(ExchangeTest, AnErrorReplyToTheResynchronisationKeepsTheState) {
  Spoil(FaultKind::kWrongPrefix, "0RP");
  Spoil(FaultKind::kErrorReply, "0CM0");
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_EQ(port.sent, "0RP001\r\n0CM0\r\n");
  EXPECT_TRUE(AppState.AlarmOn);
  EXPECT_FALSE(AppState.Offline);
}

}  // namespace
}  // namespace tr7
