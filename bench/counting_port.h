#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/serial_port.h"

namespace tr7bench {

/// Another port seen through a counter of the bytes that pass.
class CountingPort : public tr7::SerialPort {
 public:
  explicit CountingPort(tr7::SerialPort& port) : port_(port) {}

  tr7::PortFault Open(const std::string& device) override { return port_.Open(device); }
  bool Configure(const std::string& settings, int timeout_ms) override {
    return port_.Configure(settings, timeout_ms);
  }
  void Close() override { port_.Close(); }
  bool IsOpen() const override { return port_.IsOpen(); }
  bool Write(std::string_view bytes) override {
    bytes_ += static_cast<std::int64_t>(bytes.size());
    if (on_write) on_write(bytes);
    return port_.Write(bytes);
  }
  void ExpectReply(std::size_t bytes) override { port_.ExpectReply(bytes); }
  std::size_t InBufferCount() override { return port_.InBufferCount(); }
  std::string ReadAll() override {
    std::string bytes = port_.ReadAll();
    if (on_read) on_read(bytes);
    bytes_ += static_cast<std::int64_t>(bytes.size());
    return bytes;
  }
  std::string FaultText() const override { return port_.FaultText(); }
  bool IsSimulated() const override { return port_.IsSimulated(); }
  std::optional<std::int64_t> NextEventUs() override { return port_.NextEventUs(); }
  std::vector<std::string> PortNames() const override { return port_.PortNames(); }

  // Sees what is about to be handed to the port, and what has been taken from it.
  std::function<void(std::string_view bytes)> on_write, on_read;

  /// What the bytes in both directions since the last call take at 9600 baud, 10 bits a byte, us.
  std::int64_t TakeLineUs() {
    constexpr std::int64_t kBitsAByte = 10, kBaud = 9600, kUsASecond = 1'000'000;
    const std::int64_t us = bytes_ * kBitsAByte * kUsASecond / kBaud;
    bytes_ = 0;
    return us;
  }

 private:
  tr7::SerialPort& port_;
  std::int64_t bytes_ = 0;
};

}  // namespace tr7bench
