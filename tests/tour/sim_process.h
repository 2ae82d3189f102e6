#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace tr7::tour {

/// A qv-r7-sim that runs beside the tool; it ends with this object, or with the tour.
class SimProcess {
 public:
  /// Starts the program and waits for the path of its pseudo-terminal. Throws a TourFailure.
  SimProcess(const std::string& program, const std::vector<std::string>& options);
  ~SimProcess();
  SimProcess(const SimProcess&) = delete;
  SimProcess& operator=(const SimProcess&) = delete;

  /// The device that the tool opens.
  const std::string& Port() const { return port_; }
  /// Gives a command on standard input and its answer. Throws a TourFailure unless it is an "ok".
  std::string Tell(const std::string& command);

 private:
  std::string ReadLine();

  pid_t process_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string unread_;
  std::string port_;
};

}  // namespace tr7::tour
