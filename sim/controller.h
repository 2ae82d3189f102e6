#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "sim/error_codes.h"
#include "sim/faults.h"
#include "sim/motion_start.h"
#include "sim/program_values.h"
#include "sim/setup.h"
#include "sim/tasks.h"

namespace qvr7sim {

/// One axis at one moment.
struct AxisState {
  bool in_use = false;
  bool moving = false;
  bool homed = false;
  int pulses = 0;  ///< Present position; negative left of home.
  int max_pulses = 0;
  bool servo_on = true;
  std::int64_t since_stop = 0;  ///< Pulses that it has moved since the last "0SP" arrived.
  double pulses_per_mm = 0.0;   ///< 0 when the axis's device block holds no scale.
};

/// A QV-R7 controller on a line. Time is the caller's, in microseconds, and never runs back.
///
/// A run is a function of setup, seed and calls. Bytes take 10 bits each at the line's rate: byte k
/// of a reply reaches the PC (k + 1) * 10 / baud seconds after the controller starts to send,
/// rounded up to a microsecond.
class Controller {
 public:
  /// `setup.Check()` must be empty. The seed drives the faults.
  explicit Controller(const Setup& setup, std::uint64_t seed = 1);
  ~Controller();
  Controller(Controller&&) noexcept;
  Controller& operator=(Controller&&) noexcept;

  /// Bytes the PC hands to its port at `now_us`; the line takes them one after the other.
  void Receive(std::string_view bytes, std::int64_t now_us);
  /// When the next reply byte reaches the PC, or something happens inside that may cause one.
  /// Nothing will happen by itself when there is no value.
  std::optional<std::int64_t> NextEventUs() const;
  /// As NextEventUs, but a reply counts when its last byte has arrived: for readers of whole lines.
  std::optional<std::int64_t> NextLineUs() const;
  /// Reply bytes that have reached the PC by `now_us` and were not taken before.
  std::string Take(std::int64_t now_us);
  /// The PC closed its port: bytes on the way are lost in both directions, a request whose last
  /// byte had not been seen by the last call with a time included.
  void DropLine();
  /// Off and on: what was not committed is lost, a pending mode and axis mask take effect, the
  /// alarm is cleared, axes stand and have lost their home position.
  void PowerCycle(std::int64_t now_us);

  void SetFaults(const Faults& faults);
  void AddFault(const Fault& fault);
  void AddAlarm(const TimedAlarm& alarm);
  void AddPush(const TimedPush& push);
  void ClearFaults();
  /// Silent: as a controller without power on the line, it neither hears nor answers.
  void SetSilent(bool silent);
  bool silent() const;

  /// Raises an alarm at once: axes stop, and every command but "0AR" answers with it.
  void RaiseAlarm(const Alarm& alarm, std::int64_t now_us, bool send_line = false);
  /// The next homing of this axis (1 to 4) ends in the home sensor alarm.
  void FailNextHoming(int axis);
  /// A hand moves the slide of an axis (1 to 4) by so many pulses; false where its servo holds it.
  bool PushAxis(int axis, int pulses, std::int64_t now_us);
  /// The servo of an axis (1 to 4) fails, until the alarm that says so is reset.
  void LoseServo(int axis, std::int64_t now_us);
  /// An axis (1 to 4) stands at a position in pulses, whatever it did.
  void PlaceAxis(int axis, int pulses, std::int64_t now_us);

  /// Every request line that reached the controller, without its line end, also while it is silent.
  const std::vector<std::string>& Requests() const;
  void ClearRequests();

  /// What set axes in motion since the start, in the order of time: the last 10,000.
  const std::deque<MotionStart>& MotionStarts() const;
  /// When an axis will come to rest by itself, the next one that does.
  std::optional<std::int64_t> NextRestUs() const;
  /// When an axis comes to rest, an input changes or a program does a step, the next of them.
  std::optional<std::int64_t> NextInsideUs() const;

  /// Switches input 1 to 21, as a person at the machine would.
  void SetInput(int number, bool on, std::int64_t now_us);
  /// The same for any signal or variable.
  void Set(const Signal& signal, std::int32_t value, std::int64_t now_us);
  /// The terminals: bit b of digit d of "0RI" and "0RO" is the bit 4 * d + b.
  unsigned Inputs(std::int64_t now_us) const;
  unsigned Outputs(std::int64_t now_us) const;
  /// Inputs, outputs, flags and variables at `now_us`.
  const ProgramValues& Values(std::int64_t now_us) const;
  /// Program and step (from 1) of each slot, 0 where none runs.
  std::array<std::pair<int, int>, kTasks> RunningSteps(std::int64_t now_us) const;
  /// Program steps carried out since the start.
  std::int64_t StepsDone() const;
  /// Program and step (from 1) that the last alarm came from, 0 where it was none.
  std::pair<int, int> FailedStep() const;

  /// Digits behind the number in "0RP" (60), for 1 to 999.
  const std::string& WrittenPosition(int number) const;
  const std::string& CommittedPosition(int number) const;
  /// Data of parameter block 0 to 13 (32 characters).
  const std::string& WrittenBlock(int block) const;
  const std::string& CommittedBlock(int block) const;
  /// Start and end of group 1 to 99.
  std::pair<int, int> WrittenGroup(int number) const;
  std::pair<int, int> CommittedGroup(int number) const;
  /// 16 pairs of command and value digit of macro 1 to 20 (32 characters).
  const std::string& WrittenMacro(int number) const;
  const std::string& CommittedMacro(int number) const;
  /// Data of system block 0 to 6 (32 characters).
  const std::string& WrittenSystemBlock(int block) const;
  const std::string& CommittedSystemBlock(int block) const;

  /// The steps' digits of program 1 to 100, without the empty step that ends it.
  const std::string& WrittenProgram(int number) const;
  const std::string& CommittedProgram(int number) const;

  /// All cells of the family that a frame writes ("0WP", "0WD", "0WG", "0WS", "0WK", "0WM"), in
  /// rising order and as they lie on the line. Empty for other frames.
  std::vector<std::string> Cells(std::string_view write_frame, bool committed) const;

  std::optional<Alarm> StandingAlarm() const;
  /// Axis 1 to 4 at `now_us`; requests that have reached the controller by then are carried out.
  AxisState Axis(int axis, std::int64_t now_us) const;
  bool AnyMoving(std::int64_t now_us) const;
  /// Mode and axis mask in force since power-on.
  Mode RunningMode() const;
  unsigned RunningMask() const;
  /// The PC has the command: the last short "0CM" was "0CM1".
  bool UnderPcCommand() const;
  /// The last four axis digits of "0CM", "0000" at power-on.
  const std::string& ControlDigits() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace qvr7sim
