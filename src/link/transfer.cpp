#include "link/transfer.h"

#include "link/port.h"
#include "link/tusin_wait.h"
#include "state/app_state.h"
#include "state/message_box.h"

namespace tr7 {

int FailedOrStopped() { return AppState.CancelRequested ? kTransferStopped : kTransferFailed; }

bool ReadNamed(const std::string& frame, int reply_length, int timeout_ms, std::string& reply) {
  if (TusinCommand(frame, reply_length, timeout_ms, reply) != 0) return false;
  if (reply.starts_with(frame)) return true;
  TellBadData();
  return false;
}

bool SendEchoed(const std::string& frame, int reply_length, int timeout_ms, std::size_t echo) {
  std::string reply;
  if (TusinCommand(frame, reply_length, timeout_ms, reply) != 0) return false;
  if (reply.substr(0, echo) == frame.substr(0, echo)) return true;
  TusinPortClose();
  TellBadData();
  return false;
}

int TellBadData() {
  MsgBox(TwoLines(384, 385));
  return kTransferFailed;
}

}  // namespace tr7
