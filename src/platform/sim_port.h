#pragma once

#include "base/axes.h"
#include "platform/serial_port.h"
#include "platform/sim_axis.h"
#include "sim/controller.h"

namespace tr7 {

/// The port "sim": a simulated controller behind the serial door, on the pump's clock.
class SimPort : public SerialPort {
 public:
  explicit SimPort(const qvr7sim::Setup& setup = qvr7sim::Setup::Useful(), std::uint64_t seed = 1);

  PortFault Open(const std::string& device) override;
  bool Configure(const std::string& settings, int carrier_detect_timeout_ms) override;
  void Close() override;
  bool IsOpen() const override { return open_; }
  bool Write(std::string_view bytes) override;
  std::size_t InBufferCount() override;
  std::string ReadAll() override;
  std::string FaultText() const override { return fault_text_; }
  bool IsSimulated() const override { return open_; }
  std::optional<std::int64_t> NextEventUs() override;
  std::vector<std::string> PortNames() const override { return {}; }

  /// The line goes, as when an adapter is pulled.
  void Vanish();

  qvr7sim::Controller& Ct() { return controller_; }

  // The simulated machine, for who looks at it.

  /// Its axes now, also while the port is shut.
  AxisArray<SimAxis> Axes();
  /// A hand moves the slide of an axis (from 0), as far as it goes. Nothing where its servo is on.
  void Push(int axis, int pulses);
  /// Its inputs and outputs now, also while the port is shut.
  SimPoints Points();
  /// A hand switches an input, from 1.
  void SetInput(int number, bool on);
  /// Its controller goes off and on.
  void PowerCycle();
  /// When something changes in it by itself, the next time; nothing while it rests or waits.
  std::optional<std::int64_t> NextChangeUs() const { return controller_.NextInsideUs(); }

  // For tests: what the line does wrong, and what went over it.
  PortFault open_fault = PortFault::None;  ///< the next openings fail so
  int writes_until_dead = -1;              ///< the port dies at this write; -1: never
  int opened = 0;                          ///< successful openings so far
  std::string settings;                    ///< as last configured
  std::string sent;                        ///< every byte written

 private:
  void Collect();
  qvr7sim::Controller controller_;
  bool open_ = false;
  std::string in_buffer_;
  std::string fault_text_;
};

}  // namespace tr7
