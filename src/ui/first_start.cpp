#include "ui/first_start.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <array>
#include <cstring>
#include <utility>

namespace tr7 {
namespace {

constexpr std::size_t kLongestPath = 4096;
constexpr int kClaimAgainMs = 3000;

/// One name for each settings file, short enough for a socket's address.
QByteArray AddressFor(const QString& settings_path) {
  const QByteArray path = QFileInfo(settings_path).absoluteFilePath().toUtf8();
  const QByteArray name = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex().left(16);
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  return (folder + "/qv-tr7-" + QString::fromLatin1(name)).toUtf8();
}

bool Fill(const QByteArray& address, sockaddr_un& to) {
  to = {};
  to.sun_family = AF_UNIX;
  if (address.size() >= static_cast<qsizetype>(sizeof to.sun_path)) return false;
  std::memcpy(to.sun_path, address.constData(), static_cast<std::size_t>(address.size()));
  return true;
}

/// While it lives, no other start of the tool looks at the address or changes it.
class AddressLock {
 public:
  explicit AddressLock(const QByteArray& address)
      : file_(open((address + ".lock").constData(), O_CREAT | O_RDWR | O_CLOEXEC, 0600)) {
    if (file_ >= 0) flock(file_, LOCK_EX);
  }
  ~AddressLock() {
    if (file_ >= 0) close(file_);
  }
  AddressLock(const AddressLock&) = delete;
  AddressLock& operator=(const AddressLock&) = delete;

 private:
  int file_;
};

template <typename Call>
bool AtAddress(const QByteArray& address, Call call) {
  sockaddr_un to;
  return Fill(address, to) && call(reinterpret_cast<const sockaddr*>(&to), sizeof to) == 0;
}

bool SomebodyListens(const QByteArray& address) {
  return AtAddress(address, [](const sockaddr* to, socklen_t size) {
    const int probe = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const int result = connect(probe, to, size);
    close(probe);
    return result;
  });
}

}  // namespace

FirstStart::FirstStart(const QString& settings_path)
    : address_(AddressFor(settings_path)),
      socket_(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
  claim_again_.setInterval(kClaimAgainMs);
  QObject::connect(&claim_again_, &QTimer::timeout, &claim_again_, [this] { ListenWhereFirst(); });
}

FirstStart::~FirstStart() {
  notifier_.reset();
  if (listens_) {
    const AddressLock lock(address_);
    QFile::remove(QString::fromUtf8(address_));  // while it is still this start's
  }
  if (socket_ >= 0) close(socket_);
}

bool FirstStart::HandOver(const QString& file) {
  const QByteArray path = QFileInfo(file).absoluteFilePath().toUtf8();
  // Not over its own socket: one that has been connected would hear from nobody else later.
  const auto send_there = [&path](const sockaddr* to, socklen_t size) {
    const int sender = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const ssize_t sent = sendto(sender, path.constData(), static_cast<std::size_t>(path.size()),
                                MSG_NOSIGNAL, to, size);
    close(sender);
    return sent == path.size() ? 0 : -1;
  };
  return AtAddress(address_, send_there);
}

bool FirstStart::Claim() {
  if (listens_) return true;
  if (SomebodyListens(address_)) return false;
  // Only one of several that start at once gets the address.
  const AddressLock lock(address_);
  if (SomebodyListens(address_)) return false;
  QFile::remove(QString::fromUtf8(address_));  // left by one that was killed, if at all
  listens_ = AtAddress(
      address_, [this](const sockaddr* at, socklen_t size) { return bind(socket_, at, size); });
  return listens_;
}

void FirstStart::Listen(std::function<void(const QString& file)> open) {
  open_ = std::move(open);
  ListenWhereFirst();
}

/// Who is not the first becomes it some time behind the end of the one that was.
void FirstStart::ListenWhereFirst() {
  if (!Claim()) return claim_again_.start();
  claim_again_.stop();
  notifier_ = std::make_unique<QSocketNotifier>(socket_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
    std::array<char, kLongestPath> path;
    const ssize_t size = recv(socket_, path.data(), path.size(), 0);
    if (size > 0) open_(QString::fromUtf8(path.data(), size));
  });
}

}  // namespace tr7
