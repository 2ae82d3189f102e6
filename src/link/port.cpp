#include "link/port.h"

#include <cstdlib>

#include "forms/frm_main.h"
#include "link/request_queue.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/settings.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kCarrierDetectTimeoutMs = 3000;

std::string FaultWords(PortFault fault, const std::string& device) {
  switch (fault) {
    case PortFault::None:
      return {};
    case PortFault::NoSuchPort:
      return Text(5900, device);
    case PortFault::InUse:
      return Text(5901, device);
    case PortFault::NotPermitted:
      return Text(5902, device);
    case PortFault::DeviceError:
      break;
  }
  return Text(5903, device, doors.serial->FaultText());
}

/// The device set for a port number, or empty.
std::string PortSetting(int port_no) {
  return GetSetting("PortDevice" + std::to_string(port_no), "");
}

int OpenShutPort() {
  const std::string device = PortDevice(AppState.PortNo);
  if (device.empty()) {
    AppState.PortFaultText = Text(5904, std::to_string(AppState.PortNo));
    return 1;
  }
  const PortFault fault = doors.serial->Open(device);
  if (fault != PortFault::None) {
    AppState.PortFaultText = FaultWords(fault, device);
    return 1;
  }
  // The port opens first and takes its settings while open.
  if (!doors.serial->Configure(LineSettings(), kCarrierDetectTimeoutMs)) {
    AppState.PortFaultText = FaultWords(PortFault::DeviceError, device);
    doors.serial->Close();
    return 1;
  }
  AppState.OpenPortName = device;
  return 0;
}

}  // namespace

const char* LineSettings() {
  switch (AppState.BaudIndex) {
    case 1:
      return "19200,N,8,1";
    case 2:
      return "38400,N,8,1";
    default:
      return "9600,N,8,1";
  }
}

std::string PortDevice(int port_no) {
  const std::string set = PortSetting(port_no);
  if (!set.empty()) return set;
  const auto names = doors.serial->PortNames();
  const auto index = static_cast<std::size_t>(port_no - 1);
  return index < names.size() ? names[index] : std::string();
}

int TusinPortOpen() {
  if (AppState.PortNo < 1 || AppState.PortNo > 9) LoadSettingPortNo();
  if (doors.serial->IsOpen()) return 0;
  AppState.TusinRxBuffer.clear();
  const int result = OpenShutPort();
  PortLampHyoji();
  return result;
}

void TusinPortClose() {
  const bool kept = AppState.PortOccupy || AppState.TeachingNow;
  if (!kept && TusinQueue.IsEmpty()) TusinPortCloseForce();
}

void TusinPortCloseForce() {
  doors.serial->Close();
  AppState.OpenPortName.clear();
  PortLampHyoji();
}

bool PortIsLost() { return !AppState.OpenPortName.empty() && !doors.serial->IsOpen(); }

std::string LostPortText() { return Text(5905, AppState.OpenPortName, doors.serial->FaultText()); }

bool LineIsInUse() { return FlowRuns() || !TusinQueue.IsEmpty() || TusinQueue.untold; }

bool PortLampLies() { return frmMain.imgComPort.Visible != doors.serial->IsOpen(); }

void PortLampHyoji() {
  frmMain.imgComPort.Visible = doors.serial->IsOpen();
  // The setting alone: the system lists no port of that name, and listing costs at every tick.
  frmMain.lblSimulated.Visible = PortSetting(AppState.PortNo) == "sim";
}

}  // namespace tr7
