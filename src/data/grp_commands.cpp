#include "data/grp_commands.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "data/grp_table.h"
#include "link/port.h"
#include "link/reply_fields.h"
#include "link/transfer.h"
#include "state/app_state.h"
#include "state/progress.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kTimeoutMs = 5000;
constexpr int kReadReplyLength = 13;
constexpr int kWriteReplyLength = 7;
constexpr int kCommitReplyLength = 6;
constexpr std::size_t kEcho = 4;
constexpr int kReadBarMax = kGroups - 1;   // full with the last but one
constexpr int kWriteBarMax = kGroups + 1;  // the commit counts

bool ReadGroup(int number, GrpTableRecord& read) {
  std::string reply;
  if (!ReadNamed("0RG" + HexPad(number, 2), kReadReplyLength, kTimeoutMs, reply)) return false;
  const std::int32_t start = ReplyValue(reply, 6, 3);
  const std::int32_t end = ReplyValue(reply, 9, 3);
  if (start < 0 || end < 0) {
    TellBadData();
    return false;
  }
  const auto group = static_cast<std::size_t>(number);
  read.GrpStart[group] = static_cast<std::int16_t>(start);
  read.GrpEnd[group] = static_cast<std::int16_t>(end);
  return true;
}

int ReadGroups(GrpTableRecord& read) {
  ProgressScope progress(Text(368), kReadBarMax, true);
  for (int number = 1; number <= kGroups; ++number) {
    if (AppState.CancelRequested) return kTransferStopped;
    if (!ReadGroup(number, read)) return FailedOrStopped();
    progress.Advance();
  }
  return kTransferDone;
}

bool SendGroup(int number) {
  const auto group = static_cast<std::size_t>(number);
  const std::string frame = "0WG" + HexPad(number, 2) + HexPad(GrpTable.GrpStart[group], 3) +
                            HexPad(GrpTable.GrpEnd[group], 3);
  return SendEchoed(frame, kWriteReplyLength, kTimeoutMs, kEcho);
}

int SendGroups() {
  ProgressScope progress(Text(383), kWriteBarMax, false);
  for (int number = 1; number <= kGroups; ++number) {
    if (!SendGroup(number)) return 1;
    progress.Advance();
  }
  return SendEchoed("0WE3", kCommitReplyLength, kTimeoutMs, kEcho) ? 0 : 1;
}

}  // namespace

int ReadGrpFromCt() {
  GrpTableRecord read;
  AppState.CancelRequested = False;
  const int result = ReadGroups(read);
  TusinPortClose();
  if (result == kTransferDone) GrpStage = read;
  return result;
}

int WriteGrpToCt() {
  const int result = SendGroups();
  TusinPortClose();
  return result;
}

}  // namespace tr7
