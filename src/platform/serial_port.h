#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tr7 {

/// Why a port did not open, or why it died. `None` is success.
enum class PortFault {
  None,
  NoSuchPort,    ///< no device of that name
  InUse,         ///< held by another program
  NotPermitted,  ///< this user may not open it
  DeviceError,   ///< anything else; `SerialPort::FaultText` says what
};

/// The door to one RS-232C line. Not re-entrant; calls never block for longer than the operating
/// system takes to accept bytes. A port that vanishes while open shuts itself: as soon as the
/// system says so the pump is woken, `IsOpen` is false, `Write` fails, and `FaultText` tells until
/// the next `Open`.
class SerialPort {
 public:
  virtual ~SerialPort() = default;

  /// Opens the device: a path, a Windows port name, or "sim".
  virtual PortFault Open(const std::string& device) = 0;
  /// Applies "9600,N,8,1" style settings to the open port, no handshaking; false when refused.
  virtual bool Configure(const std::string& settings, int carrier_detect_timeout_ms) = 0;
  /// Closes the port; what was on the way is lost. Closing a shut port does nothing.
  virtual void Close() = 0;
  virtual bool IsOpen() const = 0;
  /// Hands over all bytes; false when the port is shut or has died.
  virtual bool Write(std::string_view bytes) = 0;
  /// A hint: what is written next is answered by a line of this many bytes, 0: nobody knows. A port
  /// may let a part of it gather before it wakes anyone; a shorter line arrives all the same.
  virtual void ExpectReply(std::size_t /*bytes*/) {}
  /// Number of received bytes that wait.
  virtual std::size_t InBufferCount() = 0;
  /// Takes all received bytes.
  virtual std::string ReadAll() = 0;
  /// The system's own words behind the last `DeviceError`.
  virtual std::string FaultText() const = 0;
  /// True while the open port leads to the simulated controller.
  virtual bool IsSimulated() const = 0;
  /// When bytes that are not there yet will be, for a port that knows (the simulated one).
  virtual std::optional<std::int64_t> NextEventUs() { return std::nullopt; }
  /// Names of the ports that exist, in the system's order.
  virtual std::vector<std::string> PortNames() const = 0;
};

}  // namespace tr7
