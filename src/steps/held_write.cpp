#include "steps/held_write.h"

#include "link/status_commands.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "steps/held_axes.h"
#include "steps/write_taken.h"

namespace tr7 {
namespace {

constexpr int kMsgMoving = 424;
constexpr int kMsgLineFailed = 377;

/// Unlike elsewhere the exchange's own failure has a box of its own here.
bool StandStill() {
  const int rest = ReadAlarmFromCt();
  if (rest == 0) Tell(kMsgMoving);
  if (rest < 0) Tell(kMsgLineFailed);
  return rest == 1;
}

}  // namespace

Outcome WriteHeld(const std::function<Outcome()>& write) {
  const WaitCursorScope wait_cursor;
  if (!StandStill()) return Outcome::Failed;
  HeldAxes held;
  if (!held.Hold()) return Outcome::Failed;
  WriteTaken = {};
  const Outcome outcome = write();
  if (outcome != Outcome::Done) {
    MsgBox(WriteTakenText());
    return outcome;
  }
  return held.Release() ? Outcome::Done : Outcome::Failed;
}

}  // namespace tr7
