#pragma once

#include <QTimer>

#include "platform/motion_guard.h"

namespace tr7 {

class QtSerialPort;

/// The guard as a process beside the tool, started with the first motion. It is lent the line while
/// an axis moves, and hears every 100 ms of a jog that the tool serves its events.
class GuardProcess : public MotionGuard {
 public:
  explicit GuardProcess(QtSerialPort& serial);
  ~GuardProcess() override;

  bool Watch(bool held) override;
  void Rest() override;
  bool IsThere() const override;

 private:
  bool Start();
  bool Say(char word, int line = -1);

  QtSerialPort& serial_;
  QTimer alive_;
  int socket_ = -1;  ///< to the guard; -1: it does not run
};

}  // namespace tr7
