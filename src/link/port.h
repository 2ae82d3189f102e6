#pragma once

#include <string>

namespace tr7 {

/// What the line runs at: "9600,N,8,1".
const char* LineSettings();

/// Opens the line when it is shut. 0 success; 1 failure, with the reason in
/// `AppState.PortFaultText`.
int TusinPortOpen();

/// Another program may hold the port for a moment: whoever needs it tries so often, and waits
/// between two tries.
inline constexpr int kPortOpenAttempts = 4;
inline constexpr int kPortOpenPauseMs = 100;

/// Closes the line unless something keeps it: `PortOccupy`, a teaching session, whose stop is not
/// to open it first, or a request that waits: a sequence inside another one's wait leaves the line
/// to the outer one.
void TusinPortClose();
/// Closes the line always.
void TusinPortCloseForce();

/// A flow that may open the line closes it at its end, on whichever way, unless `PortOccupy` keeps
/// it.
class PortClosedAfter {
 public:
  PortClosedAfter() = default;
  ~PortClosedAfter() { TusinPortClose(); }
  PortClosedAfter(const PortClosedAfter&) = delete;
  PortClosedAfter& operator=(const PortClosedAfter&) = delete;
};

/// The device behind a port number 1 to 9: the setting `PortDevice`n, else the n-th port that the
/// system lists; empty when there is none.
std::string PortDevice(int port_no);

/// True when the line that was opened is gone by itself, until it is closed or opened anew.
bool PortIsLost();
/// The user's words for that, with the device's name.
std::string LostPortText();
/// A long flow or a request has the line.
bool LineIsInUse();

/// Shows the port lamp and whether the controller is a simulated one.
void PortLampHyoji();
/// True when the port lamp does not show what the port is: a port may vanish by itself.
bool PortLampLies();

}  // namespace tr7
