#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "forms/timer.h"
#include "link/tusin_wait.h"

namespace tr7 {

/// What became of a monitor's tick.
enum class PollEnd {
  Skipped,   ///< it was not this poll's turn: nothing was sent
  Done,      ///< all was asked and answered
  CutShort,  ///< a stop or the cancel button has overtaken it: what came in holds, the next one
             ///< goes on
  Over,      ///< the monitor has ended, or has begun anew, while it waited: its view takes nothing
  Failed,    ///< the user has been told, and the poll has ended
};

/// A monitor's place on the line: what it asks the controller at every tick of its timer.
///
/// - One poll is on the line at a time, and none while something else has the line: a transfer, a
///   flow that holds the commands off, a motion, a hand on a jog button.
/// - In a teaching session the monitors that are made for it poll between two acts. The others,
///   whose frames take command or start programs, rest until its end.
/// - Who ticks while such a flow runs loses that tick, and goes on with its next one.
/// - Who ticks while another monitor's poll runs comes next, as soon as that is over; they go in
/// the
///   order in which they have asked. So monitors that are open at once share the line evenly.
/// - A tick inside of the poll's own wait is nothing.
/// - What stands in the status panel outlives a poll.
/// - A poll that fails has ended, and where the line is offline since then the session has.
///
/// The timer is the monitor's. Its tick calls `Run`, and is also called when the poll comes next;
/// its interval counts anew from then.
class Poll {
 public:
  enum class Teaching { Rests, GoesOn };
  explicit Poll(Timer& ticks, Teaching teaching = Teaching::Rests)
      : ticks_(&ticks), teaching_(teaching) {}

  /// The monitor begins; nothing is known of its pace.
  void Begin();
  /// The monitor ends, also while its poll waits for the line.
  void End();
  bool IsOn() const { return on_; }

  /// Sends one poll by `ask` where it is this one's turn. `ask` sends its requests one after the
  /// other; it stops where one does not end well, with that outcome, and as withdrawn where
  /// `GoesOn` says no between two of them.
  [[nodiscard]] PollEnd Run(const std::function<TusinOutcome()>& ask);
  /// Between two requests: false where the monitor has ended meanwhile or the line is offline.
  bool GoesOn() const;
  /// The next tick comes as soon as the line is free, in turn with the others.
  void Soon();
  /// It comes next: its timer ticks now.
  void Come();

  /// Milliseconds between the last two polls, from start to start; 0: there were no two yet, or a
  /// flow has come between them.
  int PaceMs() const { return pace_ms_; }
  /// Milliseconds since all was known last; since the monitor began where it was not yet.
  std::int64_t AgeMs() const;
  /// The view may say that the line is the limit: polls come later than the timer asks, by more
  /// than a quarter, or the last one is that old.
  bool IsLate() const;

 private:
  bool IsOnLine() const;
  bool IsHeld() const;
  void WaitInLine();
  void LeaveLine();

  Timer* ticks_;
  Teaching teaching_;
  bool on_ = false;
  int begun_ = 0;  ///< how often: tells a poll that waits that its monitor has begun anew
  std::int64_t started_us_ = 0, known_us_ = 0;
  int pace_ms_ = 0;
};

/// Who has the line, and who comes next.
struct PollLineRecord {
  const Poll* on_line = nullptr;
  std::vector<Poll*> waiting;
};
extern PollLineRecord PollLine;

/// After a failure outside of any flow: where the line is offline now, menus and tabs say so.
void SettleLostSession();

/// Something else than a poll has the line, or the line must not be used.
bool LineIsHeld();
/// A flow, a motion, a hand on a jog button or a slide that is pushed by hand has the line, whoever
/// polls beside it.
bool FlowHoldsLine();

/// When what is on show was true, and why it is not renewed just now.
std::string NotRenewedText(const std::string& true_at);

/// Wires the frame's timer that serves who comes next.
void InstallPolls();

}  // namespace tr7
