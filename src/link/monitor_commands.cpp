#include "link/monitor_commands.h"

#include <string>
#include <string_view>

#include "base/text_helpers.h"
#include "link/port.h"
#include "link/reply_fields.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

constexpr int kIoTimeoutMs = 5000, kValueTimeoutMs = 2000;
constexpr std::size_t kDigitsAt = 4;  ///< from 1
constexpr int kMsgWriteFailed = 384, kMsgBadData = 385;

/// A digit that is none leaves its points off.
void TakeDigits(std::string_view reply, int digits, IoBits& bits) {
  for (int digit = 0; digit < digits; ++digit) {
    const int value = ReplyValue(reply, kDigitsAt + static_cast<std::size_t>(digit), 1);
    for (int bit = 0; bit < kIoDigitBits; ++bit) {
      bits[IoPoint(digit, bit)] = value > 0 && (value >> bit & 1) != 0;
    }
  }
}

std::string NumberFields(int program, int number) { return HexPad(program, 2) + HexPad(number, 2); }

/// The reply names the item that was asked for; one digit of the number may be all it has room for.
bool Names(std::string_view reply, std::size_t value_at, int program, int number) {
  const std::size_t width = value_at - kDigitsAt - 2;
  return ReplyValue(reply, kDigitsAt, 2) == program &&
         ReplyValue(reply, kDigitsAt + 2, width) == number;
}

/// `at`: where the eight digits of the value begin.
TusinOutcome ReadValue(const char* head, int reply_length, std::size_t at, int program, int number,
                       std::optional<std::int32_t>& value) {
  constexpr std::size_t kWidth = 8;
  value.reset();
  std::string reply;
  const TusinOutcome outcome =
      TusinWait(head + NumberFields(program, number), reply_length, kValueTimeoutMs, reply);
  if (outcome != TusinOutcome::Good || !Names(reply, at, program, number)) return outcome;
  const std::int64_t word = HexValue(ReplyField(reply, at, kWidth));
  if (word >= 0) value = static_cast<std::int32_t>(static_cast<std::uint32_t>(word));
  return outcome;
}

}  // namespace

TusinOutcome ReadIoFromCt(IoBits& inputs, IoBits& outputs) {
  inputs.fill(false);
  outputs.fill(false);
  std::string reply;
  TusinOutcome outcome = TusinWait("0RI", 12, kIoTimeoutMs, reply);
  if (outcome == TusinOutcome::Good) {
    TakeDigits(reply, kInputDigits, inputs);
    outcome = TusinWait("0RO", 10, kIoTimeoutMs, reply);
  }
  if (outcome == TusinOutcome::Good) {
    TakeDigits(reply, kOutputDigits, outputs);
  } else {
    TusinPortClose();
  }
  return outcome;
}

TusinOutcome WriteOutputToCt(const IoBits& outputs) {
  std::string command = "0WO";
  for (int digit = 0; digit < kOutputDigits; ++digit) {
    int value = 0;
    for (int bit = 0; bit < kIoDigitBits; ++bit) {
      value |= outputs[IoPoint(digit, bit)] ? 1 << bit : 0;
    }
    command += HexPad(value, 1);
  }
  std::string reply;
  const TusinOutcome outcome = TusinWait(command, 5, kIoTimeoutMs, reply);
  if (outcome != TusinOutcome::Good || reply.starts_with("0WO")) return outcome;
  TusinPortClose();
  MsgBox(TwoLines(kMsgWriteFailed, kMsgBadData));
  TusinAbort();
  return TusinOutcome::Failed;
}

TusinOutcome ReadFlagFromCt(int program, int number, std::optional<std::int32_t>& value) {
  value.reset();
  std::string reply;
  const TusinOutcome outcome =
      TusinWait("0FR" + NumberFields(program, number), 10, kValueTimeoutMs, reply);
  constexpr std::size_t kStateAt = 8;
  if (outcome != TusinOutcome::Good || !Names(reply, kStateAt, program, number)) return outcome;
  const std::string_view state = ReplyField(reply, kStateAt, 1);
  if (state != "X") value = state != "0";
  return outcome;
}

TusinOutcome ReadHensuFromCt(int program, int number, std::optional<std::int32_t>& value) {
  return ReadValue("0HR", 17, 8, program, number, value);
}

TusinOutcome ReadPosHensuFromCt(int program, int number, std::optional<std::int32_t>& value) {
  return ReadValue("0HP", 16, 7, program, number, value);
}

}  // namespace tr7
