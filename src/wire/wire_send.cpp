#include "wire/wire_send.h"

#include "link/tusin_wait.h"
#include "monitor/poll.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"
#include "steps/transfer_scope.h"
#include "wire/wire_bytes.h"
#include "wire/wire_table.h"
#include "wire/wire_words.h"

namespace tr7 {
namespace {

constexpr int kWarning = 7723, kMoves = 7724, kWrites = 7725, kNoCommand = 7726, kNotNow = 7727,
              kReply = 7728, kNoReply = 5412, kNotSent = 5413, kOnlineOnly = 5289;

/// The line takes a frame of the user's now; else it says why not.
bool LineTakesIt() {
  if (AppState.Offline) return Tell(kOnlineOnly), false;
  if (FlowHoldsLine() || AppState.TeachingNow) return Tell(kNotNow), false;
  return true;
}

std::string OutcomeWords(TusinOutcome outcome, const std::string& reply) {
  switch (outcome) {
    case TusinOutcome::Good:
      return Text(kReply, VisibleBytes(reply) + "  " + ReplyWords(reply));
    case TusinOutcome::Failed:
      return Text(kReply, Text(kNoReply));
    default:
      return Text(kReply, Text(kNotSent));
  }
}

}  // namespace

std::string RefusalOfFrame(const std::string& frame) {
  const WireCommand* command = CommandOfRequest(frame);
  const bool printable = VisibleBytes(frame) == frame;
  if (!command || !printable) return Text(kNoCommand, VisibleBytes(frame));
  if (command->hand == HandRule::Moves) return Text(kMoves, frame);
  if (command->hand == HandRule::Writes) return Text(kWrites, frame);
  return {};
}

std::string SendByHand(const std::string& frame, bool& warned) {
  if (const std::string refusal = RefusalOfFrame(frame); !refusal.empty()) {
    MsgBox(refusal);
    return {};
  }
  if (!LineTakesIt()) return {};
  if (!warned && !AskYesWarned(Text(kWarning))) return {};
  warned = true;
  if (!LineTakesIt()) return {};  // things may have changed behind the question
  std::string reply;
  TusinOutcome outcome = TusinOutcome::Failed;
  {
    const TransferScope transfer;
    const WireCommand& command = *CommandOfRequest(frame);
    outcome = TusinWait(frame, static_cast<int>(command.reply_length), command.timeout_ms, reply);
  }
  if (outcome == TusinOutcome::Failed) SettleLostSession();
  return OutcomeWords(outcome, reply);
}

}  // namespace tr7
