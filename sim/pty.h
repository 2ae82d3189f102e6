#pragma once

#include <string>
#include <string_view>

namespace qvr7sim {

/// A pseudo-terminal in raw mode: this side is the controller's end of the line, the named path is
/// the PC's serial port. The PC may open and close it at will.
class Pty {
 public:
  Pty() = default;
  ~Pty();
  Pty(const Pty&) = delete;
  Pty& operator=(const Pty&) = delete;

  /// Empty when open, else what failed.
  std::string Open();
  const std::string& path() const { return path_; }
  /// To be polled for input; -1 while shut.
  int fd() const { return master_; }
  /// Becomes readable when the PC closes its port; -1 where the system cannot tell.
  int watch_fd() const { return watch_; }

  /// Bytes that the PC has sent; empty when there are none.
  std::string Read();
  /// What does not fit into the PC's buffer is lost, as on a line.
  void Write(std::string_view bytes);
  /// True when the PC closed its port since the last call. What it had not read is then gone.
  bool TakeClosed();

 private:
  int master_ = -1;
  int slave_ = -1;
  int watch_ = -1;
  std::string path_;
};

}  // namespace qvr7sim
