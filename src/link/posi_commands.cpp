#include "link/posi_commands.h"

#include "base/text_helpers.h"

namespace tr7 {
namespace {

constexpr int kRecordTimeoutMs = 5000;
constexpr int kCommitTimeoutMs = 10000;  // the controller writes its flash memory
constexpr int kReadReplyLength = 68;
constexpr int kWriteReplyLength = 8;
constexpr int kCommitReplyLength = 11;

}  // namespace

TusinOutcome ReadPosiRecordFromCt(int number, std::string& reply) {
  return TusinWait("0RP" + HexPad(number, 3), kReadReplyLength, kRecordTimeoutMs, reply);
}

TusinOutcome WritePosiRecordToCt(const std::string& line, std::string& reply) {
  return TusinWait(line, kWriteReplyLength, kRecordTimeoutMs, reply);
}

int PosiWriteCommitToCt(int first, int last) {
  std::string reply;
  return TusinCommand("0WA" + HexPad(first, 3) + HexPad(last, 3), kCommitReplyLength,
                      kCommitTimeoutMs, reply);
}

}  // namespace tr7
