#include "ui/qt_serial_port.h"

#include <QFileInfo>
#include <QSerialPortInfo>
#include <QStringList>

namespace tr7 {
namespace {

constexpr const char* kSimDevice = "sim";

std::optional<QSerialPort::Parity> ParityOf(const QString& letter) {
  if (letter == "N") return QSerialPort::NoParity;
  if (letter == "E") return QSerialPort::EvenParity;
  if (letter == "O") return QSerialPort::OddParity;
  return std::nullopt;
}

/// "9600,N,8,1" on the open port.
bool Apply(QSerialPort& port, const std::string& settings) {
  const QStringList parts = QString::fromStdString(settings).split(',');
  if (parts.size() != 4) return false;
  const auto parity = ParityOf(parts[1]);
  const int bits = parts[2].toInt();
  const int stops = parts[3].toInt();
  if (!parity || bits < 5 || bits > 8 || stops < 1 || stops > 2) return false;
  return port.setBaudRate(parts[0].toInt()) && port.setParity(*parity) &&
         port.setDataBits(static_cast<QSerialPort::DataBits>(bits)) &&
         port.setStopBits(stops == 1 ? QSerialPort::OneStop : QSerialPort::TwoStop) &&
         port.setFlowControl(QSerialPort::NoFlowControl);
}

}  // namespace

QtSerialPort::QtSerialPort() {
  QObject::connect(&port_, &QSerialPort::errorOccurred, &port_,
                   [this](QSerialPort::SerialPortError error) {
                     if (error != QSerialPort::ResourceError) return;
                     dead_ = true;
                     fault_text_ = port_.errorString().toStdString();
                   });
}

PortFault QtSerialPort::FaultOfOpening(const QString& path) const {
  const QSerialPort::SerialPortError error = port_.error();
  if (error == QSerialPort::DeviceNotFoundError) return PortFault::NoSuchPort;
  if (error != QSerialPort::PermissionError) {
    return error == QSerialPort::OpenError ? PortFault::InUse : PortFault::DeviceError;
  }
  // The same error stands for a port that another program holds and for one that is not ours.
  const QFileInfo info(path);
  if (info.exists() && !(info.isReadable() && info.isWritable())) return PortFault::NotPermitted;
  return PortFault::InUse;
}

PortFault QtSerialPort::Open(const std::string& device) {
  Close();
  if (device == kSimDevice) return sim_.Open(device);
  port_.setPortName(QString::fromStdString(device));
  const QString path = QSerialPortInfo(port_).systemLocation().isEmpty()
                           ? port_.portName()
                           : QSerialPortInfo(port_).systemLocation();
#ifndef _WIN32
  // Ahead of the opening, whose lock file would hide the reason.
  const QString file = path.startsWith('/') ? path : "/dev/" + path;
  if (!QFileInfo::exists(file)) return PortFault::NoSuchPort;
#else
  const QString file = path;
#endif
  dead_ = false;
  if (port_.open(QIODevice::ReadWrite)) return PortFault::None;
  fault_text_ = port_.errorString().toStdString();
  return FaultOfOpening(file);
}

bool QtSerialPort::Configure(const std::string& settings, int carrier_detect_timeout_ms) {
  if (sim_.IsOpen()) return sim_.Configure(settings, carrier_detect_timeout_ms);
  if (!port_.isOpen() || !Apply(port_, settings)) {
    fault_text_ = port_.errorString().toStdString();
    return false;
  }
  // Controllers that take their line driver's power from these lines need them up; a
  // pseudo-terminal has none, which is no fault.
  port_.setDataTerminalReady(true);
  port_.setRequestToSend(true);
  port_.clearError();
  port_.clear();
  return true;
}

void QtSerialPort::Close() {
  sim_.Close();
  if (port_.isOpen()) port_.close();
  dead_ = false;
}

bool QtSerialPort::Write(std::string_view bytes) {
  if (sim_.IsOpen()) return sim_.Write(bytes);
  if (!port_.isOpen() || dead_) return false;
  const auto size = static_cast<qint64>(bytes.size());
  if (port_.write(bytes.data(), size) != size) return false;
  port_.flush();
  return !dead_;
}

std::size_t QtSerialPort::InBufferCount() {
  if (sim_.IsOpen()) return sim_.InBufferCount();
  return port_.isOpen() ? static_cast<std::size_t>(port_.bytesAvailable()) : 0;
}

std::string QtSerialPort::ReadAll() {
  if (sim_.IsOpen()) return sim_.ReadAll();
  return port_.isOpen() ? port_.readAll().toStdString() : std::string();
}

std::vector<std::string> QtSerialPort::PortNames() const {
  std::vector<std::string> names;
  for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
    names.push_back(info.portName().toStdString());
  }
  return names;
}

}  // namespace tr7
