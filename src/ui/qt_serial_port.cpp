#include "ui/qt_serial_port.h"

#include <QFileInfo>
#include <QSerialPortInfo>
#include <QStringList>
#include <QTimer>
#include <algorithm>
#include <cerrno>
#include <utility>
#ifndef _WIN32
#include <poll.h>
#include <unistd.h>

#include <array>
#endif

#include "platform/doors.h"

namespace tr7 {
namespace {

constexpr const char* kSimDevice = "sim";
/// Length of the shortest line that may come instead of the expected one: an error reply. It is
/// looked for on the way to one that is much longer.
constexpr qint64 kErrorReply = 8;

std::optional<QSerialPort::Parity> ParityOf(const QString& letter) {
  if (letter == "N") return QSerialPort::NoParity;
  if (letter == "E") return QSerialPort::EvenParity;
  if (letter == "O") return QSerialPort::OddParity;
  return std::nullopt;
}

/// The far end of the line, or the device itself, is gone.
bool HasHungUp([[maybe_unused]] const QSerialPort& port) {
#ifdef _WIN32
  return false;  // the port reports it as an error
#else
  pollfd state{port.handle(), 0, 0};
  return poll(&state, 1, 0) > 0;
#endif
}

// The port's own reading and writing switch its listening on and off for each frame, and every
// switch wakes the loop once more: three turns for a frame in place of one. So what can be read
// or written without a wait is, straight from and to the system.

/// Adds all that has come in.
void TakeIn(QSerialPort& port, std::string& bytes) {
#ifdef _WIN32
  static_cast<void>(port.waitForReadyRead(0));
  bytes += port.readAll().toStdString();
#else
  std::array<char, 4096> part;
  for (bool full = true; full;) {
    const ssize_t count = read(port.handle(), part.data(), part.size());
    if (count > 0) bytes.append(part.data(), static_cast<std::size_t>(count));
    full = count == static_cast<ssize_t>(part.size());
  }
#endif
}

/// True: the bytes are on their way, those that the system did not take at once by the port.
bool PutOut(QSerialPort& port, std::string_view bytes) {
  bool is_full = port.bytesToWrite() != 0;
#ifndef _WIN32
  const ssize_t count = is_full ? 0 : write(port.handle(), bytes.data(), bytes.size());
  is_full = is_full || count > 0 || (count < 0 && errno == EAGAIN);
  if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  if (bytes.empty()) return true;
#endif
  const auto size = static_cast<qint64>(bytes.size());
  if (port.write(bytes.data(), size) != size) return false;
  // Where the system takes no more just now, a try would count as a lost device: the port waits.
  if (!is_full) port.flush();
  return true;
}

/// 10 bits at the port's rate.
qint64 ByteUs(const QSerialPort& port) { return 10'000'000 / std::max(port.baudRate(), 1); }

/// Where the system has the port; not asked for by a look through all devices, which would cost
/// more than a poll of the monitors, and each of those opens the port.
QString FileOf(const std::string& device) {
  const QString name = QString::fromStdString(device);
#ifdef _WIN32
  return name;
#else
  return name.startsWith('/') ? name : "/dev/" + name;
#endif
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
                     if (error == QSerialPort::ResourceError) Vanish(qt_error_string(ENODEV));
                   });
  QObject::connect(&port_, &QSerialPort::readyRead, &port_, [this] {
    in_ += port_.readAll().toStdString();
    OnBytes();
  });
}

/// A device that is gone calls for a read as long as it stays open, so it is shut; not from within
/// its own call.
void QtSerialPort::Vanish(const QString& why) {
  if (dead_) return;
  dead_ = true;
  fault_text_ = why.toStdString();
  QTimer::singleShot(0, &port_, [this] {
    if (dead_) Close();
  });
}

/// A line that hangs up wakes the loop, yet nothing is said of it: it is looked at ahead of a
/// sleep, not more often than a user would notice. Nor is listening switched but here: each switch
/// wakes the loop once more, and of two frames in a row the one undoes the other's.
std::optional<std::int64_t> QtSerialPort::NextEventUs() {
  constexpr qint64 kLookEveryMs = 50;
  if (port_.isOpen() && (!looked_.isValid() || looked_.hasExpired(kLookEveryMs))) {
    looked_.start();
    if (HasHungUp(port_)) Vanish(qt_error_string(ENODEV));
  }
  if (look_us_ && doors.pump->NowUs() >= *look_us_) Look();  // offline nobody asks for it
  Listen(!look_us_);
  return look_us_ ? look_us_ : sim_.NextEventUs();
}

void QtSerialPort::ExpectReply(std::size_t bytes) {
  LetAllIn();
  if (port_.isOpen() && in_.empty()) expected_ = static_cast<qint64>(bytes);
}

/// Every byte on its own would wake the tool a thousand times a second, for a reply that can do
/// nothing before its end. So nobody listens while the line takes its time for what was sent and
/// for the answer; one that is late wakes by its first byte.
void QtSerialPort::Gather(qint64 bytes_on_the_line) {
  constexpr qint64 kLeastRestUs = 1000, kLongestRestUs = 250'000;  // a hang-up is heard as well
  constexpr qint64 kMarginUs = 500;  // a look just ahead of the last byte is one for nothing
  gathering_ = true;
  const qint64 rest_us =
      std::clamp(bytes_on_the_line * byte_us_ + kMarginUs, kLeastRestUs, kLongestRestUs);
  look_us_ = doors.pump->NowUs() + rest_us;
}

/// The port must not be woken for bytes that have been taken here: a read that finds none counts
/// with it as a lost device.
void QtSerialPort::Look() {
  look_us_.reset();
  Listen(false);
  const std::size_t before = in_.size();
  TakeIn(port_, in_);
  if (in_.size() != before) OnBytes();
}

void QtSerialPort::OnBytes() {
  if (!gathering_) return;
  if (Arrived() >= expected_ || in_.find('\n') != std::string::npos) return LetAllIn();
  Gather(NextLook() - Arrived());
}

/// How many bytes of the reply to let gather next.
qint64 QtSerialPort::NextLook() const {
  const bool may_be_error = Arrived() < kErrorReply && expected_ > 4 * kErrorReply;
  return may_be_error ? kErrorReply : expected_;
}

/// From now on every byte is there as soon as it has arrived.
void QtSerialPort::LetAllIn() {
  look_us_.reset();
  gathering_ = false;
  expected_ = 0;
}

/// Whether what comes in wakes the loop.
void QtSerialPort::Listen(bool on) {
  if (listener_ && listener_->isEnabled() != on) listener_->setEnabled(on);
}

/// The port's own, made anew at each opening; a system without one wakes as it likes.
void QtSerialPort::FindListener() {
  for (QSocketNotifier* each : port_.findChildren<QSocketNotifier*>()) {
    if (each->type() == QSocketNotifier::Read) listener_ = each;
  }
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
  const QString file = FileOf(device);
  port_.setPortName(file);
#ifndef _WIN32
  // Ahead of the opening, whose lock file would hide the reason.
  if (!QFileInfo::exists(file)) return PortFault::NoSuchPort;
#endif
  dead_ = false;
  if (port_.open(QIODevice::ReadWrite)) {
    FindListener();
    return PortFault::None;
  }
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
  in_.clear();
  byte_us_ = ByteUs(port_);
  return true;
}

void QtSerialPort::Close() {
  sim_.Close();
  LetAllIn();
  in_.clear();
  if (port_.isOpen()) port_.close();
  dead_ = false;
}

bool QtSerialPort::Write(std::string_view bytes) {
  if (sim_.IsOpen()) return sim_.Write(bytes);
  if (!port_.isOpen() || dead_) return false;
  if (!PutOut(port_, bytes)) return false;
  if (expected_ > 1 && !dead_) Gather(static_cast<qint64>(bytes.size()) + NextLook());
  return !dead_;
}

std::size_t QtSerialPort::InBufferCount() {
  if (sim_.IsOpen()) return sim_.InBufferCount();
  if (look_us_ && doors.pump->NowUs() >= *look_us_) Look();
  return gathering_ ? 0 : in_.size();
}

std::string QtSerialPort::ReadAll() {
  if (sim_.IsOpen()) return sim_.ReadAll();
  LetAllIn();
  return std::exchange(in_, {});
}

std::vector<std::string> QtSerialPort::PortNames() const {
  std::vector<std::string> names;
  for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
    names.push_back(info.portName().toStdString());
  }
  return names;
}

int QtSerialPort::Handle() const {
  return port_.isOpen() && !dead_ ? static_cast<int>(port_.handle()) : -1;
}

}  // namespace tr7
