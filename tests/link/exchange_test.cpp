#include <algorithm>

#include "base/text_helpers.h"
#include "forms/frm_main.h"
#include "link/error_list.h"
#include "link/port.h"
#include "link/request_queue.h"
#include "link/status_commands.h"
#include "link/tusin_wait.h"
#include "state/online.h"
#include "state/text.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

using qvr7sim::Fault;
using qvr7sim::FaultKind;

/// How often a line went out.
long Sent(const SimPort& port, const std::string& line) {
  long count = 0;
  for (std::size_t at = 0; (at = port.sent.find(line + "\r\n", at)) != std::string::npos; ++at) {
    ++count;
  }
  return count;
}

class ExchangeTest : public StateTest {
 protected:
  explicit ExchangeTest(const qvr7sim::Setup& setup = qvr7sim::Setup::Useful()) : StateTest(setup) {
    SetOnline();
    ReadErrorList();
  }
  /// One read of position 1, the request that the tests spoil.
  TusinOutcome Read() { return TusinWait("0RP001", 68, 5000, reply); }
  void Spoil(FaultKind kind, int at_request, const std::string& prefix = "0RP") {
    Fault fault;
    fault.kind = kind;
    fault.at_request = at_request;
    fault.prefix = prefix;
    port.Ct().AddFault(fault);
  }
  void ExpectOffline(bool port_open) {
    EXPECT_TRUE(AppState.Offline);
    EXPECT_FALSE(frmMain.imgOnline.Visible);
    EXPECT_EQ(port.IsOpen(), port_open);
  }
  std::string reply;
};

TEST_F(ExchangeTest, AGoodReplyMakesTheLineOnline) {
  frmMain.imgAlarm.Visible = true;
  frmMain.sbStatusBar.Panels[kPanelError] = "old alarm";
  EXPECT_EQ(Read(), TusinOutcome::Good);
  EXPECT_EQ(port.sent, "0RP001\r\n");
  EXPECT_EQ(reply.size(), 68u);
  EXPECT_EQ(reply.substr(0, 6), "0RP001");
  EXPECT_EQ(port.settings, "9600,N,8,1");
  EXPECT_FALSE(AppState.Offline);
  EXPECT_FALSE(frmMain.imgAlarm.Visible);
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], "");
  EXPECT_TRUE(port.IsOpen());
}

TEST_F(ExchangeTest, ControllerOffFourSendsOneBoxPortShut) {
  AppState.PortOccupy = True;
  port.Ct().SetSilent(true);
  const std::int64_t start = pump.NowUs();
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_EQ(port.sent, "0RP001\r\n0RP001\r\n0RP001\r\n0RP001\r\n");
  ASSERT_EQ(forms.boxes.size(), 1u);
  EXPECT_EQ(
      forms.LastBox(),
      "Communication timeout error!\n\nCheck the followings;\n\n 1.Power ON for controller?\n\n "
      "2.Communication cables are connected?");
  EXPECT_NEAR(static_cast<double>(pump.NowUs() - start) / 1e6, 4 * 5.0 + 0.11, 0.1);
  ExpectOffline(false);
}

TEST_F(ExchangeTest, ASilentSendIsRepeatedAndGood) {
  Spoil(FaultKind::kDeaf, 1);
  EXPECT_EQ(Read(), TusinOutcome::Good);
  EXPECT_EQ(port.sent, "0RP001\r\n0RP001\r\n");
  EXPECT_TRUE(forms.boxes.empty());
}

TEST_F(ExchangeTest, ASplitReplyIsPutTogether) {
  Spoil(FaultKind::kSplit, 1);
  EXPECT_EQ(Read(), TusinOutcome::Good);
  EXPECT_EQ(port.sent, "0RP001\r\n");
}

TEST_F(ExchangeTest, OneBadReplyIsResynchronisedAndSentAgain) {
  for (FaultKind kind : {FaultKind::kWrongPrefix, FaultKind::kWrongLength}) {
    port.sent.clear();
    port.Ct().ClearFaults();
    port.Ct().ClearRequests();
    Spoil(kind, 1);
    EXPECT_EQ(Read(), TusinOutcome::Good) << qvr7sim::FaultName(kind);
    EXPECT_EQ(port.sent, "0RP001\r\n0CM0\r\n0RP001\r\n") << qvr7sim::FaultName(kind);
    EXPECT_TRUE(forms.boxes.empty());
  }
}

qvr7sim::Setup Unpaced() {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.paced = false;
  return setup;
}

/// A line whose bytes are all there at once, as behind a buffering converter.
class BufferedLineTest : public ExchangeTest {
 protected:
  BufferedLineTest() : ExchangeTest(Unpaced()) {}
};

TEST_F(BufferedLineTest, TwoLinesInOneReadAreOneOfTheWrongLength) {
  Spoil(FaultKind::kDoubled, 1);
  EXPECT_EQ(Read(), TusinOutcome::Good);
  EXPECT_EQ(port.sent, "0RP001\r\n0CM0\r\n0RP001\r\n");
  EXPECT_EQ(AppState.TusinBadReplyKind, 2);
  EXPECT_TRUE(forms.boxes.empty());
}

TEST_F(ExchangeTest, ASecondBadReplyEndsOffline) {
  Spoil(FaultKind::kWrongLength, 1);
  Spoil(FaultKind::kWrongPrefix, 2);
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_EQ(port.sent, "0RP001\r\n0CM0\r\n0RP001\r\n0CM0\r\n");
  ASSERT_EQ(forms.boxes.size(), 1u);
  EXPECT_EQ(forms.LastBox(), Text(108));
  ExpectOffline(false);
}

TEST_F(ExchangeTest, NoAnswerToTheResynchronisationIsBounded) {
  const struct {
    FaultKind kind;
    std::string box;
  } rows[] = {
      {FaultKind::kWrongPrefix, Text(104)},
      {FaultKind::kWrongLength, Text(105) + "\n" + Text(106)},
  };
  for (const auto& row : rows) {
    for (bool occupy : {false, true}) {
      AppState.PortOccupy = occupy;
      AppState.Offline = False;
      forms.boxes.clear();
      port.sent.clear();
      port.Ct().ClearFaults();
      Spoil(row.kind, 1);
      Spoil(FaultKind::kDeaf, 1, "0CM0");
      const std::int64_t start = pump.NowUs();
      EXPECT_EQ(Read(), TusinOutcome::Failed);
      EXPECT_LT(pump.NowUs() - start, 1'000'000);
      EXPECT_EQ(port.sent, "0RP001\r\n0CM0\r\n");
      ASSERT_EQ(forms.boxes.size(), 1u);
      EXPECT_EQ(forms.LastBox(), row.box);
      ExpectOffline(occupy);
    }
  }
}

TEST_F(ExchangeTest, AnErrorReplyToTheResynchronisationKeepsTheState) {
  Spoil(FaultKind::kWrongPrefix, 1);
  Fault fault;
  fault.kind = FaultKind::kErrorReply;
  fault.at_request = 1;
  fault.prefix = "0CM0";
  port.Ct().AddFault(fault);
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_EQ(port.sent, "0RP001\r\n0CM0\r\n");
  EXPECT_TRUE(AppState.AlarmOn);
  EXPECT_EQ(AppState.TusinResult.prefix, "0CM");
  EXPECT_FALSE(AppState.Offline);
}

TEST_F(ExchangeTest, TheGroupMoveStopEndsTheResynchronisation) {
  Spoil(FaultKind::kWrongPrefix, 1);
  Spoil(FaultKind::kDelay, 1, "0CM0");
  AppState.GroupMoveStop = True;
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_TRUE(forms.boxes.empty());
  EXPECT_TRUE(AppState.Offline);
}

TEST_F(ExchangeTest, AnAlarmReplyNamesTheAlarmAndEndsOffline) {
  AppState.PortOccupy = True;
  port.Ct().RaiseAlarm({'2', '0', '9'}, pump.NowUs());
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_EQ(port.sent, "0RP001\r\n");
  EXPECT_TRUE(frmMain.imgAlarm.Visible);
  EXPECT_EQ(AppState.CtErrorNo, "9");
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], "AXIS2:" + AppState.CtErrorName);
  ExpectOffline(false);
}

TEST_F(ExchangeTest, AnAlarmWhilePollingIsShownAtOnce) {
  EXPECT_EQ(Read(), TusinOutcome::Good);
  port.Ct().RaiseAlarm({'0', '0', '1'}, pump.NowUs(), true);
  pump.RunFor(100'000);
  EXPECT_TRUE(AppState.AlarmOn);
  EXPECT_TRUE(frmMain.imgAlarm.Visible);
  EXPECT_EQ(AppState.LastCtErrorText, "0%%001\r\n");
  EXPECT_FALSE(AppState.Offline);  // no request was answered with it
  EXPECT_EQ(port.sent, "0RP001\r\n");
  // The next good reply says that all is well again.
  port.Ct().PowerCycle(pump.NowUs());
  EXPECT_EQ(Read(), TusinOutcome::Good);
  EXPECT_FALSE(AppState.AlarmOn || frmMain.imgAlarm.Visible);
}

TEST_F(ExchangeTest, AnAlarmUnaskedEndsTheRequestThatWaits) {
  pump.After(20'000, [this] { port.Ct().RaiseAlarm({'3', '0', '9'}, pump.NowUs(), true); });
  Spoil(FaultKind::kSilence, 1);
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_EQ(port.sent, "0RP001\r\n");
  EXPECT_EQ(forms.LastBox(), Text(104) + "\nError No.9\n[" + AppState.CtErrorName + "]");
  ExpectOffline(false);
}

TEST_F(ExchangeTest, APortThatDoesNotOpenIsTriedFourTimesAndTold) {
  const struct {
    PortFault fault;
    std::string reason;
  } rows[] = {
      {PortFault::NoSuchPort, Text(5900, "sim")},
      {PortFault::InUse, Text(5901, "sim")},
      {PortFault::NotPermitted, Text(5902, "sim")},
      {PortFault::DeviceError, Text(5903, "sim", "simulated fault")},
      {PortFault::None, Text(5904, "2")},  // a number with no device behind it
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.reason);
    AppState.Offline = False;
    AppState.PortNo = row.fault == PortFault::None ? 2 : 1;
    forms.boxes.clear();
    port.open_fault = row.fault;
    const std::int64_t start = pump.NowUs();
    EXPECT_EQ(Read(), TusinOutcome::Failed);
    EXPECT_NEAR(static_cast<double>(pump.NowUs() - start), 3 * 100e3 + 110e3, 10e3);
    EXPECT_EQ(port.sent, "");
    ASSERT_EQ(forms.boxes.size(), 1u);
    EXPECT_EQ(forms.LastBox(), Text(109) + "\n\n" + Text(110) + "\n\n" + row.reason);
    ExpectOffline(false);
  }
}

TEST_F(ExchangeTest, APortThatVanishesIsAPortFailure) {
  EXPECT_EQ(Read(), TusinOutcome::Good);
  port.writes_until_dead = 1;
  EXPECT_EQ(Read(), TusinOutcome::Failed);
  EXPECT_TRUE(BoxShown(Text(109)));
  ExpectOffline(false);
}

TEST_F(ExchangeTest, NothingGoesOutWhileOffline) {
  AppState.Offline = True;
  const std::int16_t id = TusinRequestPut("0RP001", 68, 5000, 0, 0, True);
  pump.RunFor(1'000'000);
  EXPECT_EQ(port.sent, "");
  AppState.Offline = False;
  AppState.TusinTimeoutMs = 5000;
  pump.RunFor(1'000'000);
  EXPECT_EQ(AppState.TusinResult.id, id);
}

TEST_F(ExchangeTest, ACommandWithoutTimeoutWaitsForEver) {
  port.Ct().SetSilent(true);
  pump.After(3'600'000'000, [this] { port.Ct().SetSilent(false); });
  pump.SetLimit(pump.NowUs() + 7'200'000'000);
  std::string text;
  EXPECT_THROW(TusinWait("0MG01", 7, 0, text), VirtualTimeExceeded);
  EXPECT_EQ(Sent(port, "0MG01"), 1);
}

TEST(RequestQueue, IdsRowsAndTheirOddities) {
  TusinQueues = RequestQueues{};
  for (int i = 0; i < kQueueRows; ++i)
    EXPECT_EQ(TusinRequestPut("0RA", 6, 1, 0, 0, True), 1000 + i);
  EXPECT_EQ(TusinRequestPut("0RA", 6, 1, 0, 0, True), -1);
  TusinQueues.ordinary.Shift();
  EXPECT_EQ(TusinRequestPut("0RA", 6, 1, 0, 0, True), 1012) << "the refused one took an id";
  TusinQueues.next_id = 1999;
  TusinQueues.ordinary.Shift();
  EXPECT_EQ(TusinRequestPut("0RA", 6, 1, 0, 0, True), 1999);
  TusinQueues.ordinary.Shift();
  EXPECT_EQ(TusinRequestPut("0RA", 6, 1, 0, 0, True), 1000);

  TusinQueues = RequestQueues{};
  EXPECT_EQ(TusinRequestPutHigh("0RA", 6, 1, 0, 0, True), 1);
  EXPECT_EQ(TusinQueues.priority.rows[0].command, "0RA");
  TusinRequestPut("0RA", 6, 1, 0, 0, True);
  EXPECT_EQ(TusinRequestPutHigh("0RB", 6, 1, 0, 0, True), 2);
  EXPECT_EQ(TusinQueues.priority.rows[1].command, "0RB") << "its row comes from the ordinary queue";
  TusinQueues.last_priority_id = 10000;
  EXPECT_EQ(TusinRequestPutHigh("0RC", 6, 1, 0, 0, True), 1000);
  TusinQueueInit();
  EXPECT_EQ(TusinQueues.last_priority_id, 1000) << "its counter is never reset";
}

TEST_F(ExchangeTest, APriorityRequestBelowAnEmptyRowStopsTheTimer) {
  TusinQueues.priority.rows[1].command = "0RA";
  TusinQueues.priority.last = 1;
  TusinQueues.priority.has_work = True;
  TusinRequestPut("0RP001", 68, 5000, 0, 0, True);
  pump.RunFor(1'000'000);
  EXPECT_EQ(port.sent, "");
  EXPECT_FALSE(frmMain.TimerTusin.Enabled);
}

}  // namespace
}  // namespace tr7
