#include "link/task_commands.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "base/text_helpers.h"
#include "link/port.h"
#include "link/reply_fields.h"
#include "link/status_commands.h"
#include "state/app_state.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

constexpr int kPollTimeoutMs = 2000, kCommandTimeoutMs = 5000;
constexpr int kCommandReply = 5;
constexpr std::size_t kDataAt = 4;  ///< from 1

TusinOutcome Command(const std::string& frame, TusinPriority priority) {
  std::string reply;
  return TusinWait(frame, kCommandReply, kCommandTimeoutMs, reply, {priority, true});
}

}  // namespace

int ReadTaskCountFromCt() {
  const PortClosedAfter port_closed;
  int count = -1;
  if (TusinPortOpen() != 0 || ReadTaskCount(count) != TusinOutcome::Good) return -1;
  if (count < 0) MsgBox(TwoLines(384, 385));
  return count;
}

TusinOutcome ReadTaskCount(int& count) {
  // Where it fails the line is offline; a stop that overtakes it leaves it online.
  if (CtComStart() != 0) return AppState.Offline ? TusinOutcome::Failed : TusinOutcome::Withdrawn;
  std::string reply;
  const TusinOutcome outcome = TusinWait("0TN", 6, kPollTimeoutMs, reply);
  if (outcome == TusinOutcome::Good) count = ReplyValue(reply, kDataAt, 1);
  return outcome;
}

TusinOutcome ReadTaskPrograms(std::array<int, kTaskSlots>& programs) {
  constexpr int kDigits = 2;
  std::string reply;
  const TusinOutcome outcome = TusinWait("0TS", 25, kPollTimeoutMs, reply);
  if (outcome != TusinOutcome::Good) return outcome;
  std::size_t at = kDataAt;
  for (int& program : programs) {
    program = ReplyValue(reply, at, kDigits);
    at += kDigits;
  }
  return outcome;
}

TusinOutcome ReadTaskStep(int program, TaskStep& step) {
  constexpr std::array<std::size_t, kTaskStepFields> kWidths{2, 6, 6, 3, 2};
  std::string reply;
  const TusinOutcome outcome = TusinWait("0PT" + HexPad(program, 2), 28, kPollTimeoutMs, reply);
  if (outcome != TusinOutcome::Good) return outcome;
  step.program = ReplyValue(reply, kDataAt, 2);
  step.step = ReplyValue(reply, kDataAt + 2, 2);
  std::size_t at = kDataAt + 4;
  for (std::size_t i = 0; i < kWidths.size(); ++i) {
    step.fields[i] = ReplyValue(reply, at, kWidths[i]);
    at += kWidths[i];
  }
  return outcome;
}

TusinOutcome TaskMonitorDataFromCt(int program) {
  return Command("0DM" + HexPad(program, 2), TusinPriority::Start);
}

TusinOutcome TaskProgramSelectToCt(int program, TusinPriority priority) {
  return Command("0PM" + HexPad(program, 2), priority);
}

TusinOutcome TaskMonitorStartToCt() { return Command("0PN", TusinPriority::Next); }

}  // namespace tr7
