#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QSerialPort>
#include <QSocketNotifier>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/serial_port.h"
#include "platform/sim_port.h"

namespace tr7 {

/// The computer's serial ports, pseudo-terminals among them. The name "sim" leads to a simulated
/// controller inside the program.
class QtSerialPort : public SerialPort {
 public:
  QtSerialPort();

  PortFault Open(const std::string& device) override;
  bool Configure(const std::string& settings, int carrier_detect_timeout_ms) override;
  void Close() override;
  bool IsOpen() const override { return sim_.IsOpen() || (port_.isOpen() && !dead_); }
  bool Write(std::string_view bytes) override;
  void ExpectReply(std::size_t bytes) override;
  std::size_t InBufferCount() override;
  std::string ReadAll() override;
  std::string FaultText() const override { return fault_text_; }
  bool IsSimulated() const override { return sim_.IsOpen(); }
  std::optional<std::int64_t> NextEventUs() override;
  std::vector<std::string> PortNames() const override;

  /// The system's handle of the open port; -1: shut, or the simulated one.
  int Handle() const;

  /// The controller behind "sim".
  SimPort& Sim() { return sim_; }

 private:
  PortFault FaultOfOpening(const QString& path) const;
  void FindListener();
  void Gather(qint64 bytes_on_the_line);
  void Look();
  void OnBytes();
  qint64 NextLook() const;
  void LetAllIn();
  void Listen(bool on);
  void Vanish(const QString& why);
  qint64 Arrived() const { return static_cast<qint64>(in_.size()); }

  QSerialPort port_;
  std::string in_;                      ///< has come in, and nobody has read it
  QPointer<QSocketNotifier> listener_;  ///< what wakes the loop for bytes that have come in
  bool gathering_ =
      false;  ///< the expected reply is on its way, its first part shown to nobody yet
  std::optional<std::int64_t> look_us_;  ///< when its next part can be there; none: a byte wakes
  QElapsedTimer looked_;                 ///< since the last look whether the line has hung up
  qint64 expected_ = 0;                  ///< bytes of the reply; 0: nobody knows
  qint64 byte_us_ = 0;                   ///< time of a byte on the line
  SimPort sim_;
  bool dead_ = false;  ///< the device went away while open
  std::string fault_text_;
};

}  // namespace tr7
