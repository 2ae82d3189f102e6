#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/serial_port.h"

namespace tr7 {

/// A line whose far end answers what the bytes say: each line sent gets the next piece of them, up
/// to a line feed; when none is left, silence. A piece that begins with "=" and a digit stands for
/// a reply of the right kind: so many of the characters sent, the rest of the piece, CR LF.
class BytesPort : public SerialPort {
 public:
  explicit BytesPort(std::string_view bytes) : rest_(bytes) {}

  PortFault Open(const std::string&) override {
    open_ = true;
    return PortFault::None;
  }
  bool Configure(const std::string&, int) override { return true; }
  void Close() override {
    open_ = false;
    received_.clear();
  }
  bool IsOpen() const override { return open_; }
  bool Write(std::string_view bytes) override {
    if (!open_) return false;
    received_ += Answer(bytes);
    return true;
  }
  std::size_t InBufferCount() override { return received_.size(); }
  std::string ReadAll() override { return std::exchange(received_, {}); }
  std::string FaultText() const override { return {}; }
  bool IsSimulated() const override { return false; }
  std::vector<std::string> PortNames() const override { return {"line"}; }

 private:
  std::string Answer(std::string_view sent) {
    const std::size_t end = rest_.find('\n');
    std::string_view piece = rest_.substr(0, end == std::string_view::npos ? end : end + 1);
    rest_.remove_prefix(piece.size());
    if (piece.size() < 2 || piece[0] != '=' || piece[1] < '0' || piece[1] > '9') {
      return std::string(piece);
    }
    if (piece.ends_with('\n')) piece.remove_suffix(1);
    const auto echoed = static_cast<std::size_t>(piece[1] - '0');
    return std::string(sent.substr(0, echoed)) + std::string(piece.substr(2)) + "\r\n";
  }

  std::string_view rest_;
  std::string received_;
  bool open_ = false;
};

}  // namespace tr7
