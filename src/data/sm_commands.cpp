#include "data/sm_commands.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/text_helpers.h"
#include "data/sm_table.h"
#include "link/port.h"
#include "link/reply_fields.h"
#include "link/transfer.h"
#include "state/progress.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kReadTimeoutMs = 1000;
constexpr int kWriteTimeoutMs = 5000;
constexpr int kReadReplyLength = 39;
constexpr int kWriteReplyLength = 7;
constexpr int kCommitReplyLength = 6;
constexpr std::size_t kEcho = 5;  // command and number
constexpr std::size_t kCommitEcho = 4;
constexpr std::size_t kStepsAt = 6;

using Macro = SmTableRecord::value_type;

/// False when a step is no number.
bool TakeMacro(const std::string& reply, Macro& macro) {
  for (std::size_t s = 0; s < macro.size(); ++s) {
    const std::int32_t command = ReplyValue(reply, kStepsAt + 2 * s, 1);
    const std::int32_t value = ReplyValue(reply, kStepsAt + 2 * s + 1, 1);
    if (command < 0 || value < 0) return false;
    macro[s].Command = static_cast<std::int16_t>(command);
    macro[s].Value = static_cast<std::int16_t>(command == 0 ? 0 : value);
  }
  return true;
}

int ReadMacros(SmTableRecord& read) {
  ProgressScope progress(Text(368), kMacros, false);
  for (int number = 1; number <= kMacros; ++number) {
    std::string reply;
    if (!ReadNamed("0RS" + HexPad(number, 2), kReadReplyLength, kReadTimeoutMs, reply)) return 1;
    if (!TakeMacro(reply, read[static_cast<std::size_t>(number - 1)])) return TellBadData();
    progress.Advance();
  }
  return 0;
}

bool SendMacro(int number) {
  std::string frame = "0WS" + HexPad(number, 2);
  for (const SmStep& step : SmTable[static_cast<std::size_t>(number - 1)]) {
    frame += HexPad(step.Command, 1) + HexPad(step.Value, 1);
  }
  return SendEchoed(frame, kWriteReplyLength, kWriteTimeoutMs, kEcho);
}

int SendMacros() {
  ProgressScope progress(Text(383), kMacros + 1, false);
  for (int number = 1; number <= kMacros; ++number) {
    if (!SendMacro(number)) return 1;
    progress.Advance();
  }
  return SendEchoed("0WE1", kCommitReplyLength, kWriteTimeoutMs, kCommitEcho) ? 0 : 1;
}

}  // namespace

int ReadSmFromCt() {
  SmTableRecord read{};
  const int result = ReadMacros(read);
  TusinPortClose();
  if (result == 0) SmStage = read;
  return result;
}

int WriteSmToCt() {
  const int result = SendMacros();
  TusinPortClose();
  return result;
}

}  // namespace tr7
