#include "prog/prog_commands.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/text_helpers.h"
#include "link/port.h"
#include "link/tusin_wait.h"
#include "prog/prog_hint.h"
#include "prog/prog_store.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/progress.h"
#include "state/text.h"
#include "steps/bulk.h"
#include "steps/record_frames.h"
#include "steps/write_taken.h"

namespace tr7 {
namespace {

constexpr int kCountTimeoutMs = 3000, kTimeoutMs = 5000;
constexpr int kCountReplyLength = 9, kWriteReplyLength = 7;
constexpr int kStepDigits = 19;
constexpr std::size_t kDataAt = 5;
constexpr std::size_t kEcho = 5;
constexpr std::array<int, kProgFields> kWidths = {2, 6, 6, 3, 2};
constexpr int kMsgTooWide = 7055;

std::string FrameOf(const char* command, int program) { return command + HexPad(program, 2); }

/// The count is what stands in so many characters behind the number; the line's end is none of it.
Outcome ReadCount(int program, std::size_t characters, int& count) {
  std::string reply;
  const Outcome outcome =
      ReadNamed({FrameOf("0RR", program), kCountReplyLength, kCountTimeoutMs}, reply);
  if (outcome != Outcome::Done) return outcome;
  count = static_cast<int>(HexValue(Trim(std::string_view(reply).substr(kDataAt, characters))));
  return count < 0 ? TellBadData() : Outcome::Done;
}

/// None where a character is no digit.
std::optional<ProgStep> StepOf(std::string_view digits) {
  ProgStep step;
  std::size_t at = 0;
  for (std::size_t i = 0; i < kWidths.size(); ++i) {
    const auto width = static_cast<std::size_t>(kWidths[i]);
    const auto value = HexValue(digits.substr(at, width));
    if (value < 0) return std::nullopt;
    step.Fields[i] = static_cast<std::int32_t>(value);
    at += width;
  }
  return step;
}

Outcome StepsOf(std::string_view digits, std::size_t count, std::vector<ProgStep>& steps) {
  std::vector<ProgStep> incoming;
  for (std::size_t i = 0; i < count; ++i) {
    const auto step = StepOf(digits.substr(i * kStepDigits, kStepDigits));
    if (!step) return TellBadData();
    incoming.push_back(*step);
  }
  steps = std::move(incoming);
  return Outcome::Done;
}

std::string DigitsOf(const ProgStep& step) {
  std::string digits;
  for (std::size_t i = 0; i < kWidths.size(); ++i) digits += HexPad(step.Fields[i], kWidths[i]);
  return digits;
}

/// False, after telling the step, where a field has more digits than the line: what stands behind
/// it would shift into other fields.
bool FitTheLine(const std::vector<ProgStep>& steps) {
  for (std::size_t n = 0; n < steps.size(); ++n) {
    for (int column = kProgCommand; column <= kProgResult; ++column) {
      const std::int64_t end = std::int64_t{1}
                               << (4 * kWidths[static_cast<std::size_t>(column) - 1]);
      if (steps[n][column] >= 0 && steps[n][column] < end) continue;
      MsgBox(Text(kMsgTooWide, std::to_string(n + 1), ProgHeading(column)));
      return false;
    }
  }
  return true;
}

}  // namespace

int ReadProgStepCountFromCt(int program) {
  int count = -1;
  return ReadCount(program, 3, count) == Outcome::Done ? count : -1;
}

Outcome ReadAllProgStepCountFromCt() {
  ProgCtRecord incoming;
  Bulk bulk(368, kPrograms, Bulk::Cancel::Yes);
  const Outcome outcome = bulk.Each(1, kPrograms, [&](int program) {
    int count = 0;
    // Two characters here, three where one program is asked for.
    const Outcome one = ReadCount(program, 2, count);
    incoming.ProgStepCounts[program] = static_cast<std::int16_t>(count);
    return one;
  });
  if (outcome != Outcome::Done) return outcome;
  ProgCt = incoming;
  AppState.ProgStepsRead = True;
  return Outcome::Done;
}

Outcome ReadProgDataFromCt(int program, std::vector<ProgStep>& steps) {
  ProgressScope progress(Text(368), 2, true);
  int count = 0;
  if (const Outcome outcome = ReadCount(program, 3, count); outcome != Outcome::Done) {
    return outcome;
  }
  progress.Set(1);
  std::string reply;
  const RecordFrame frame{FrameOf("0RM", program), count * kStepDigits + 7, kTimeoutMs};
  if (const Outcome outcome = ReadNamed(frame, reply); outcome != Outcome::Done) return outcome;
  progress.Set(2);
  return StepsOf(std::string_view(reply).substr(kDataAt), static_cast<std::size_t>(count), steps);
}

ProgWrite WriteProgdataToCt(int program, const std::vector<ProgStep>& steps) {
  const auto most = static_cast<std::size_t>(GetProgStepMax(program));
  if (steps.size() > most || !FitTheLine(steps)) return ProgWrite::NotBegun;
  std::string digits;
  for (const ProgStep& step : steps) digits += DigitsOf(step);
  if (steps.size() < most) digits += DigitsOf(ProgStep());  // it ends the program

  ProgressScope progress(Text(383), 2, true);
  TusinSent steps_sent;
  const Outcome sent = SendEchoed(
      {FrameOf("0WM", program) + digits, kWriteReplyLength, kTimeoutMs, kEcho}, &steps_sent);
  if (sent != Outcome::Done) {
    return steps_sent.TookNothing() ? ProgWrite::NotBegun : ProgWrite::HalfWritten;
  }
  progress.Set(1);
  TusinSent end_sent;
  const Outcome ended =
      SendEchoed({FrameOf("0MW", program), kWriteReplyLength, kTimeoutMs, kEcho}, &end_sent);
  WriteTaken = {};
  WriteTaken.Repeated = end_sent.sends > 1;  // the steps that it was to store may be gone
  if (ended != Outcome::Done) return ProgWrite::HalfWritten;
  progress.Set(2);
  TusinPortClose();
  return ProgWrite::Done;
}

}  // namespace tr7
