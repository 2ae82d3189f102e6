#pragma once

#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/axes.h"
#include "platform/sim_port.h"

namespace tr7 {

/// Stands between the tool and the line and knows, from the hand and from what passes, what may
/// move and by when a stop must be on the line. It knows nothing of the tool's own flags.
class JogWatch : public SerialPort {
 public:
  explicit JogWatch(SimPort& port) : port_(port) {}

  // What the hand does.

  /// A button goes down. `step`: pulses of an inching step, 0: jog.
  void Pressed(int axis, int step);
  /// Nothing holds it any more, whether the tool has seen it or not.
  void HandGone();
  /// The user wants all at rest: no start may follow before the next press.
  void StopWanted();
  /// The tool has told that an axis may be moving still.
  void ToldMayMove();
  void Vanished();

  bool told() const { return told_; }
  /// A byte may be another one, and nothing tells: a step may go astray, or an axis seem to rest.
  bool line_lies = false;
  std::string runaway;  ///< the first one, in words; empty: none

  PortFault Open(const std::string& device) override;
  bool Configure(const std::string& settings, int ms) override {
    return port_.Configure(settings, ms);
  }
  void Close() override;
  bool IsOpen() const override { return port_.IsOpen(); }
  bool Write(std::string_view bytes) override;
  std::size_t InBufferCount() override { return port_.InBufferCount(); }
  std::string ReadAll() override;
  std::string FaultText() const override { return port_.FaultText(); }
  bool IsSimulated() const override { return port_.IsSimulated(); }
  /// Asked before the clock moves on: all that is due at this moment has been done.
  std::optional<std::int64_t> NextEventUs() override;
  std::vector<std::string> PortNames() const override { return port_.PortNames(); }

 private:
  static constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

  void Sent(const std::string& line, std::int64_t now);
  void SentStop(std::int64_t now);
  void Heard(const std::string& line, std::int64_t now);
  void HeardOfStop(const std::string& line, std::int64_t now);
  void Owe(std::int64_t now);
  void CheckAxes(std::int64_t now);
  bool RunsOn(std::int64_t now) const;
  void Fail(const std::string& what);

  SimPort& port_;
  std::string received_;
  bool hand_on_ = false, may_start_ = false, told_ = false;
  int axis_ = 0, step_ = 0;
  AxisArray<int> from_{};
  bool jog_out_ = false;       ///< a jog has been sent and no good answer to a stop has come since
  bool acknowledged_ = false;  ///< of the start, ahead of the release
  bool owed_ = false;          ///< a stop
  std::int64_t due_us_ = kNever;  ///< it is on the line by then
  std::string flight_;            ///< the line that is not answered yet
  std::int64_t flight_us_ = 0;
  std::map<std::string, int> late_;  ///< commands that were overtaken: their answers may come
  int opened_at_press_ = 0;
  int stops_ = 0;  ///< sent in a row, unanswered
};

}  // namespace tr7
