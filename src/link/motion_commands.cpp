#include "link/motion_commands.h"

#include "base/text_helpers.h"
#include "link/tusin_wait.h"
#include "state/axes_in_use.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

std::string last_move_direct_text;

/// Hexadecimal text without a fixed width; numbers are 16 bits wide, so -1 is "FFFF".
std::string Hex(int value) {
  auto rest = static_cast<std::uint16_t>(value);
  std::string text;
  do {
    text.insert(text.begin(), "0123456789ABCDEF"[rest % 16]);
    rest /= 16;
  } while (rest > 0);
  return text;
}

/// A position number in at least three digits.
std::string PositionField(int position_no) {
  const std::string text = Hex(position_no);
  return text.size() < 3 ? std::string(3 - text.size(), '0') + text : text;
}

std::string DirectMoveField(const DirectMoveAxis& axis) {
  if (!axis.moves) return "00101000000";
  return HexPad(axis.velocity, 3) + HexPad(axis.acceleration, 2) + "1" + HexPad(axis.position, 5);
}

constexpr int kBareReply = 5;  // the command's prefix and CR LF

int Send(const std::string& command, int timeout_ms, const TusinOptions& options) {
  std::string reply;
  const TusinOutcome outcome = TusinWait(command, kBareReply, timeout_ms, reply, options);
  return outcome == TusinOutcome::Good ? 0 : 1;
}

}  // namespace

std::string MoveAxesFrame(int position_no, int kind) {
  const std::string command = kind == 1 ? "0MS" : "0MP";
  return command + PositionField(position_no) + Hex(AxesInUseMask());
}

int MoveAxesToCt(int position_no, int kind, TusinFailure* failure) {
  return Send(MoveAxesFrame(position_no, kind), 1000, {TusinPriority::Start, true, failure});
}

int StartProgToCt(int program_no) {
  std::string number = Hex(program_no);
  if (number.size() == 1) number.insert(0, "0");
  std::string reply;
  return TusinCommand("0MG" + number, 7, 0, reply, TusinPriority::Start);
}

int StopToCt(int timeout_ms, TusinFailure& failure) {
  return Send("0SP", timeout_ms, {TusinPriority::Stop, false, &failure});
}

std::string JogStartFrame(int speed_percent, int direction_code) {
  const bool in_range = speed_percent >= 10 && speed_percent <= 90;
  std::string command = "0JR" + std::to_string(in_range ? speed_percent / 10 : 0);
  for (int axis = 0; axis < kAxes; ++axis) {
    command += axis == direction_code / 2 ? std::to_string(direction_code % 2 + 1) : "0";
  }
  return command;
}

int JogStartToCt(int speed_percent, int direction_code, TusinFailure& failure) {
  return Send(JogStartFrame(speed_percent, direction_code), 1000,
              {TusinPriority::Start, false, &failure});
}

std::string MoveDirectFrame(const AxisArray<DirectMoveAxis>& axes) {
  std::string command = "0MV";
  for (const DirectMoveAxis& axis : axes) command += DirectMoveField(axis);
  return command;
}

int MoveDirectToCt(const AxisArray<DirectMoveAxis>& axes, const std::string& tail) {
  return MoveDirectTextToCt(MoveDirectFrame(axes) + tail);
}

int MoveDirectTextToCt(const std::string& text, TusinFailure* failure) {
  last_move_direct_text = text;
  return Send(text, 1000, {TusinPriority::Start, true, failure});
}

const std::string& LastMoveDirectText() { return last_move_direct_text; }
void ResetMotionCommands() { last_move_direct_text.clear(); }

int ReadPresentPosFromCt(AxisArray<std::int32_t>& pulses, TusinFailure* failure) {
  constexpr std::int64_t kSmallNegative = 0xF0000;
  constexpr int kMsgBadReply = 104;
  const AxisList used = AxesInUse();
  const std::size_t length = 6 + 5 * used.size();
  std::string reply;
  const TusinOptions options{.failure = failure};
  if (TusinWait("0RC" + Hex(AxesInUseMask()), static_cast<int>(length), 1000, reply, options) !=
      TusinOutcome::Good) {
    return 1;
  }
  AxisArray<std::int32_t> read = pulses;
  std::size_t at = 4;
  for (const int axis : used) {
    const std::int64_t value = HexValue(std::string_view(reply).substr(at, 5));
    if (value < 0) {
      if (failure) failure->text = Text(kMsgBadReply);
      if (!failure) Tell(kMsgBadReply);
      return 1;
    }
    read[axis] = value > kSmallNegative ? 0 : static_cast<std::int32_t>(value);
    at += 5;
  }
  pulses = read;
  return 0;
}

}  // namespace tr7
