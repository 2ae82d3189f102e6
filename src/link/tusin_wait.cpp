#include "link/tusin_wait.h"

#include "link/request_queue.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/wait.h"

namespace tr7 {
namespace {

constexpr std::int16_t kFirstId = 1000;

bool IsAnswered(std::int16_t id, TusinMatch match) {
  const std::int16_t done = AppState.TusinResult.id;
  if (match == TusinMatch::ThisId || id == kFirstId) return done == id;
  if (done > id) AppState.TusinFailed = True;
  return done >= id;
}

}  // namespace

TusinOutcome TusinWait(const std::string& command, int reply_length, int timeout_ms,
                       std::string& reply, TusinMatch match, bool show_message) {
  AppState.TusinFailed = False;
  AppState.TusinTimeoutMs = timeout_ms;
  // After an abort the ids start again, and the last result may still carry this one.
  AppState.TusinResult.id = 0;
  const std::int16_t id = TusinRequestPut(command, reply_length, timeout_ms, 0, 0, show_message);
  if (id == -1) return TusinOutcome::QueueFull;
  while (!IsAnswered(id, match) && !AppState.TusinFailed) Pump();
  if (AppState.TusinFailed) {
    TusinAbort();
    return TusinOutcome::Failed;
  }
  if (AppState.TusinResult.status != 0) return TusinOutcome::BadStatus;
  reply = AppState.TusinResult.reply;
  return TusinOutcome::Good;
}

int TusinCommand(const std::string& command, int reply_length, int timeout_ms, std::string& reply) {
  return TusinWait(command, reply_length, timeout_ms, reply) == TusinOutcome::Good ? 0 : 1;
}

void TusinAbort() {
  constexpr int kRounds = 11;
  constexpr int kRoundMs = 10;
  for (int i = 0; i < kRounds; ++i) TusinWaitMs(kRoundMs);
  TusinQueueClear();
  TusinQueueInit();
}

}  // namespace tr7
