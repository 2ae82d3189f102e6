#include "monitor/poll.h"

#include <algorithm>
#include <string>

#include "base/scope.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "link/port.h"
#include "link/request_queue.h"
#include "motion/motion_now.h"
#include "platform/doors.h"
#include "session/open_port.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {

PollLineRecord PollLine;

namespace {

constexpr int kUsPerMs = 1000;
constexpr int kNoAnswerYet = 7197, kLineBusy = 7327, kTrueAt = 7338;

std::int64_t Now() { return doors.pump->NowUs(); }

/// A good reply empties the status panel. A poll that nobody has asked for leaves what stands
/// there.
class PanelKept {
 public:
  PanelKept() : told_(AppState.AlarmOn ? std::string() : Panel()) {}
  ~PanelKept() {
    if (Panel().empty() && !AppState.AlarmOn) Panel() = told_;
  }
  PanelKept(const PanelKept&) = delete;
  PanelKept& operator=(const PanelKept&) = delete;

 private:
  static std::string& Panel() { return frmMain.sbStatusBar.Panels[kPanelError]; }
  std::string told_;
};

bool NextMayGo() { return !PollLine.waiting.empty() && !PollLine.on_line && !LineIsHeld(); }

TusinOutcome AskQuietly(const std::function<TusinOutcome()>& ask) {
  const PanelKept panel_kept;
  return ask();
}

}  // namespace

bool FlowHoldsLine() {
  const bool moves =
      MotionNow.Kind != Motion::None || MotionNow.Stopping || frmPosi.Teach.JogPending;
  return moves || frmPosi.Teach.TickWaits || FlowRuns();
}

bool LineIsHeld() {
  return FlowHoldsLine() || AppState.Offline || AppState.Closing || LineIsInUse();
}

void SettleLostSession() {
  if (!AppState.Offline || FlowRuns()) return;
  EndSession();
  if (AppState.CommandsOffDepth == 0) AllViewsCmdYuko();
}

bool Poll::IsOnLine() const { return PollLine.on_line == this; }

bool Poll::IsHeld() const {
  return LineIsHeld() || (AppState.TeachingNow && teaching_ == Teaching::Rests);
}

void Poll::LeaveLine() { std::erase(PollLine.waiting, this); }

void Poll::WaitInLine() {
  const auto& waiting = PollLine.waiting;
  if (std::find(waiting.begin(), waiting.end(), this) == waiting.end()) {
    PollLine.waiting.push_back(this);
  }
}

void Poll::Begin() {
  on_ = true;
  ++begun_;
  pace_ms_ = 0;
  started_us_ = 0;
  known_us_ = Now();
}

void Poll::End() {
  on_ = false;
  LeaveLine();
}

bool Poll::GoesOn() const { return on_ && !AppState.Offline && !AppState.Closing; }

void Poll::Soon() {
  if (on_) WaitInLine();
}

PollEnd Poll::Run(const std::function<TusinOutcome()>& ask) {
  if (!on_ || IsOnLine()) return PollEnd::Skipped;
  const bool another_first = !PollLine.waiting.empty() && PollLine.waiting.front() != this;
  if (PollLine.on_line || (another_first && !LineIsHeld())) {
    WaitInLine();
    return PollEnd::Skipped;
  }
  if (IsHeld()) {
    started_us_ = pace_ms_ = 0;  // what a flow takes says nothing of the pace
    return PollEnd::Skipped;
  }

  LeaveLine();
  PollLine.on_line = this;
  const ScopeExit left([] { PollLine.on_line = nullptr; });
  const std::int64_t start_us = Now();
  if (started_us_ != 0) pace_ms_ = static_cast<int>((start_us - started_us_) / kUsPerMs);
  started_us_ = start_us;
  const int begun = begun_;
  const TusinOutcome outcome = AskQuietly(ask);
  if (!on_ || begun != begun_) {
    if (outcome == TusinOutcome::Failed) SettleLostSession();
    return PollEnd::Over;
  }
  switch (outcome) {
    case TusinOutcome::Good:
      known_us_ = Now();
      return PollEnd::Done;
    case TusinOutcome::Failed:
      End();
      SettleLostSession();
      return PollEnd::Failed;
    default:
      return PollEnd::CutShort;
  }
}

void Poll::Come() {
  ticks_->Start();
  if (ticks_->Tick) ticks_->Tick();
  if (!IsOnLine()) LeaveLine();  // a tick that did not ask does not hold up the others
}

std::int64_t Poll::AgeMs() const { return (Now() - known_us_) / kUsPerMs; }

bool Poll::IsLate() const {
  const int limit = ticks_->Interval + ticks_->Interval / 4;
  return on_ && (pace_ms_ > limit || AgeMs() > limit);
}

std::string NotRenewedText(const std::string& true_at) {
  if (LineIsBarred()) return Text(kTrueAt, true_at);
  return Text(TusinQueue.IsUnanswered(Now()) ? MsgId(kNoAnswerYet) : MsgId(kLineBusy), true_at);
}

void InstallPolls() {
  frmMain.TimerPolls.HasWork = NextMayGo;
  frmMain.TimerPolls.Tick = [] { PollLine.waiting.front()->Come(); };
}

}  // namespace tr7
