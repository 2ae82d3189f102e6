#include "sim/pty.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/inotify.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace qvr7sim {

namespace {

void Shut(int* fd) {
  if (*fd >= 0) close(*fd);
  *fd = -1;
}

std::string Failed(const char* what) {
  return std::string("cannot ") + what + ": " + std::strerror(errno);
}

bool MakeRaw(int fd) {
  termios settings{};
  if (tcgetattr(fd, &settings) != 0) return false;
  cfmakeraw(&settings);
  return tcsetattr(fd, TCSANOW, &settings) == 0;
}

}  // namespace

Pty::~Pty() {
  Shut(&watch_);
  Shut(&slave_);
  Shut(&master_);
}

std::string Pty::Open() {
  master_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (master_ < 0) return Failed("open a pseudo-terminal");
  if (grantpt(master_) != 0 || unlockpt(master_) != 0) return Failed("unlock the pseudo-terminal");
  const char* name = ptsname(master_);
  if (name == nullptr) return Failed("name the pseudo-terminal");
  path_ = name;
  // Held open here too: with no one at the other end, polling would report a hang-up without pause.
  slave_ = open(path_.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (slave_ < 0) return Failed("open the pseudo-terminal's other end");
  if (!MakeRaw(slave_)) return Failed("set the pseudo-terminal raw");
  const int flags = fcntl(master_, F_GETFL);
  if (flags < 0 || fcntl(master_, F_SETFL, flags | O_NONBLOCK) != 0) {
    return Failed("set the pseudo-terminal non-blocking");
  }
  watch_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  if (watch_ >= 0 && inotify_add_watch(watch_, path_.c_str(), IN_CLOSE) < 0) Shut(&watch_);
  return "";
}

std::string Pty::Read() {
  std::array<char, 4096> buffer{};
  const ssize_t count = read(master_, buffer.data(), buffer.size());
  return count > 0 ? std::string(buffer.data(), static_cast<std::size_t>(count)) : std::string();
}

void Pty::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(master_, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

bool Pty::TakeClosed() {
  if (watch_ < 0) return false;
  alignas(inotify_event) std::array<char, 4096> buffer{};
  bool closed = false;
  while (read(watch_, buffer.data(), buffer.size()) > 0) closed = true;
  if (closed) tcflush(slave_, TCIFLUSH);
  return closed;
}

}  // namespace qvr7sim
