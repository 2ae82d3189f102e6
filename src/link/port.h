#pragma once

#include <string>

namespace tr7 {

/// Opens the line when it is shut. 0 success; 1 failure, with the reason in
/// `AppState.PortFaultText`.
int TusinPortOpen();

/// Closes the line unless `PortOccupy` keeps it.
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

/// Shows the port lamp and whether the controller is a simulated one.
void PortLampHyoji();
/// True when the port lamp does not show what the port is: a port may vanish by itself.
bool PortLampLies();

}  // namespace tr7
