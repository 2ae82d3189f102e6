#include "ui/guard_process.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <cstring>

#include "ui/qt_serial_port.h"

namespace tr7 {
namespace {

constexpr int kAliveEveryMs = 100;
constexpr int kSocketOfGuard = 3;  // the number by which the guard knows it

/// Beside the tool where it is built, among the helpers of programs where it is installed.
QString GuardProgram() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString beside = folder + "/qv-tr7-guard";
  return QFileInfo::exists(beside) ? beside : folder + "/../libexec/qv-tr7/qv-tr7-guard";
}

/// In the new process: only what may be called between fork and exec.
[[noreturn]] void BecomeGuard(int socket, const char* program) {
  if (socket == kSocketOfGuard) {
    fcntl(socket, F_SETFD, 0);
  } else {
    dup2(socket, kSocketOfGuard);
  }
  execl(program, program, static_cast<char*>(nullptr));
  _exit(127);
}

}  // namespace

GuardProcess::GuardProcess(QtSerialPort& serial) : serial_(serial) {
  alive_.setInterval(kAliveEveryMs);
  QObject::connect(&alive_, &QTimer::timeout, &alive_, [this] { Say('A'); });
}

GuardProcess::~GuardProcess() {
  if (socket_ >= 0) close(socket_);
}

bool GuardProcess::IsThere() const { return QFileInfo(GuardProgram()).isExecutable(); }

bool GuardProcess::Start() {
  if (socket_ >= 0) return true;
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) return false;
  const QByteArray program = QFile::encodeName(GuardProgram());
  const pid_t child = fork();
  if (child == 0) BecomeGuard(ends[1], program.constData());
  close(ends[1]);
  if (child < 0) {
    close(ends[0]);
    return false;
  }
  socket_ = ends[0];
  return true;
}

/// One letter, and the line where it is lent. A guard that is gone is started anew with the next
/// motion.
bool GuardProcess::Say(char word, int line) {
  alignas(cmsghdr) char room[CMSG_SPACE(sizeof line)] = {};
  iovec text{&word, 1};
  msghdr message{};
  message.msg_iov = &text;
  message.msg_iovlen = 1;
  if (line >= 0) {
    message.msg_control = room;
    message.msg_controllen = sizeof room;
    cmsghdr* header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof line);
    std::memcpy(CMSG_DATA(header), &line, sizeof line);
  }
  if (sendmsg(socket_, &message, MSG_NOSIGNAL | MSG_DONTWAIT) == 1) return true;
  close(socket_);
  socket_ = -1;
  alive_.stop();
  return false;
}

bool GuardProcess::Watch(bool held) {
  const int line = serial_.Handle();
  if (line < 0) return false;
  const char word = held ? 'J' : 'M';
  // The second try is for a guard that has died since it was heard of last.
  for (int tries = 0; tries < 2; ++tries) {
    if (!Start()) return false;
    if (!Say(word, line)) continue;
    held ? alive_.start() : alive_.stop();
    return true;
  }
  return false;
}

void GuardProcess::Rest() {
  alive_.stop();
  if (socket_ >= 0) Say('R');
}

}  // namespace tr7
