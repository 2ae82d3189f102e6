#include "tests/fleet/jog_watch.h"

#include <algorithm>
#include <cstdlib>

#include "platform/doors.h"

namespace tr7 {
namespace {

constexpr std::int64_t kSlackUs = 1'000;
/// 50 ms; a way of half a pulse, rounded up to one, takes twice as long.
constexpr std::int64_t kRampUs = 100'000 + kSlackUs;
constexpr std::int64_t kStartTimeoutUs = 1'000'000;
constexpr std::int64_t kStopTimeoutUs = 1'000'000, kLongStopTimeoutUs = 5'000'000;
constexpr std::int64_t kStopAgainUs = 500'000;  // three times
constexpr int kStopSends = 4;
constexpr std::int64_t kLetInUs = 150'000;   // a reply that is under way ahead of the stop
constexpr std::int64_t kReopenUs = 600'000;  // four attempts at the port, and four more
constexpr std::int64_t kResyncUs = 100'000;  // the sign of sense after a bad reply to the stop

std::int64_t Now() { return doors.pump->NowUs(); }
bool Is(const std::string& line, const char* command) { return line.starts_with(command); }

}  // namespace

void JogWatch::Fail(const std::string& what) {
  if (runaway.empty() && !told_) runaway = what + " at " + std::to_string(Now());
}

void JogWatch::Pressed(int axis, int step) {
  hand_on_ = may_start_ = true;
  axis_ = axis;
  step_ = step;
  acknowledged_ = false;
  opened_at_press_ = port_.opened;
  for (int i = 0; i < kAxes; ++i) from_[i] = port_.Ct().Axis(i + 1, Now()).pulses;
}

/// An axis moves, and not on the ramp of a stop.
bool JogWatch::RunsOn(std::int64_t now) const {
  if (!port_.Ct().AnyMoving(now)) return false;
  const auto rest_us = port_.Ct().NextRestUs();
  return !rest_us || *rest_us > now + kRampUs;
}

/// A stop is owed from now on; what is in flight is let in first.
void JogWatch::Owe(std::int64_t now) {
  owed_ = true;
  due_us_ = now;
  if (!port_.IsOpen()) {
    due_us_ = now + kReopenUs;
  } else if (Is(flight_, "0JR")) {
    due_us_ = flight_us_ + kStartTimeoutUs;
  } else if (!flight_.empty()) {
    due_us_ = now + (Is(flight_, "0SP") ? kLongStopTimeoutUs : kLetInUs);
  }
}

void JogWatch::HandGone() {
  if (!hand_on_) return;
  hand_on_ = false;
  if (step_ == 0) may_start_ = false;
  if (jog_out_ && !owed_) Owe(Now());
}

void JogWatch::StopWanted() {
  may_start_ = false;
  if (!owed_ && (jog_out_ || port_.Ct().AnyMoving(Now()))) Owe(Now());
}

void JogWatch::ToldMayMove() {
  told_ = true;
  owed_ = false;
}

void JogWatch::Vanished() {
  flight_.clear();
  received_.clear();
  if (owed_) due_us_ = Now() + kReopenUs;
}

PortFault JogWatch::Open(const std::string& device) {
  stops_ = 0;
  return port_.Open(device);
}

void JogWatch::Close() {
  port_.Close();
  flight_.clear();
  received_.clear();
}

bool JogWatch::Write(std::string_view bytes) {
  Sent(std::string(bytes.substr(0, bytes.find('\r'))), Now());
  return port_.Write(bytes);
}

void JogWatch::SentStop(std::int64_t now) {
  if (owed_ && now > due_us_ + kSlackUs && RunsOn(now)) {
    Fail("a stop " + std::to_string(now - due_us_) + " us late");
  }
  const bool first_line = port_.opened == opened_at_press_;
  const bool last = ++stops_ % kStopSends == 0;
  due_us_ = now + (!last                         ? kStopAgainUs
                   : acknowledged_ && first_line ? kLongStopTimeoutUs
                                                 : kStopTimeoutUs);
  owed_ = owed_ || jog_out_;
}

void JogWatch::Sent(const std::string& line, std::int64_t now) {
  if (!flight_.empty()) ++late_[flight_.substr(0, 3)];
  if (Is(line, "0SP")) {
    SentStop(now);
  } else if (owed_ && !Is(flight_, "0SP") && !Is(line, "0CM0") && RunsOn(now)) {
    Fail("the stop stands behind " + line);
  }
  if (Is(line, "0JR") || Is(line, "0MV")) {
    if (!may_start_ || Is(line, "0MV") != (step_ > 0)) Fail("a start without a hand: " + line);
    // What an earlier press owed is paid where the axes stand, whatever became of its answer.
    if (!port_.Ct().AnyMoving(now)) owed_ = jog_out_ = false;
    jog_out_ = jog_out_ || Is(line, "0JR");
  }
  if (Is(line, "0MP") || Is(line, "0MS")) Fail("a motion nobody asked for: " + line);
  flight_ = line;
  flight_us_ = now;
}

std::string JogWatch::ReadAll() {
  const std::string bytes = port_.ReadAll();
  received_ += bytes;
  for (std::size_t end; (end = received_.find("\r\n")) != std::string::npos;) {
    Heard(received_.substr(0, end), Now());
    received_.erase(0, end + 2);
  }
  return bytes;
}

void JogWatch::Heard(const std::string& line, std::int64_t now) {
  stops_ = 0;
  const bool other = !flight_.empty() && line.substr(0, 3) != flight_.substr(0, 3);
  if (const auto late = late_.find(line.substr(0, 3));
      other && late != late_.end() && late->second > 0) {
    --late->second;
    return;
  }
  if (Is(flight_, "0JR") && Is(line, "0JR") && hand_on_) acknowledged_ = true;
  const bool of_stop = Is(flight_, "0SP");
  // Another's reply has stood in for its own, which is still to come.
  if (other && !of_stop) ++late_[flight_.substr(0, 3)];
  flight_.clear();
  if (of_stop) return HeardOfStop(line, now);
  if (owed_) due_us_ = std::min(due_us_, now);
}

void JogWatch::HeardOfStop(const std::string& line, std::int64_t now) {
  if (line == "0SP") {
    owed_ = jog_out_ = false;
    due_us_ = kNever;
  } else {
    due_us_ =
        now + (Is(line, "0%%") ? (port_.open_fault == PortFault::None ? 0 : kReopenUs) : kResyncUs);
  }
}

void JogWatch::CheckAxes(std::int64_t now) {
  for (int i = 0; i < kAxes; ++i) {
    const qvr7sim::AxisState axis = port_.Ct().Axis(i + 1, now);
    if (!axis.moving) continue;
    if (i != axis_ && !line_lies) Fail("another axis moves");
    if (step_ > 0 && !line_lies && std::abs(axis.pulses - from_[i]) > step_)
      Fail("more than a step");
  }
  if (owed_ ? now > due_us_ + kSlackUs && RunsOn(now) : !hand_on_ && step_ == 0 && RunsOn(now)) {
    Fail(owed_ ? "no stop for a moving axis" : "it moves on without a hand");
  }
}

std::optional<std::int64_t> JogWatch::NextEventUs() {
  CheckAxes(Now());
  return port_.NextEventUs();
}

}  // namespace tr7
