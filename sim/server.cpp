#include "sim/server.h"

#include <poll.h>
#include <signal.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <optional>
#include <string>

#include "sim/commands.h"

namespace qvr7sim {

namespace {

constexpr std::size_t kLongestControlLine = 4096;
constexpr std::size_t kMostRequestsKept = 1000;

volatile sig_atomic_t g_end_asked = 0;

void AskEnd(int) { g_end_asked = 1; }

/// Lets SIGINT and SIGTERM in only while polling, so that none is missed between test and sleep.
class EndSignals {
 public:
  EndSignals() {
    g_end_asked = 0;
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGINT);
    sigaddset(&ends, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &ends, &before_);
    struct sigaction action {};
    action.sa_handler = AskEnd;
    sigaction(SIGINT, &action, &int_before_);
    sigaction(SIGTERM, &action, &term_before_);
  }
  ~EndSignals() {
    sigaction(SIGINT, &int_before_, nullptr);
    sigaction(SIGTERM, &term_before_, nullptr);
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

  const sigset_t* before() const { return &before_; }

 private:
  sigset_t before_{};
  struct sigaction int_before_ {};
  struct sigaction term_before_ {};
};

class Server {
 public:
  Server(Pty* pty, Controller* controller, int control_fd, int answer_fd, bool quit_on_eof,
         int motion_fd)
      : pty_(pty),
        controller_(controller),
        control_fd_(control_fd),
        answer_fd_(answer_fd),
        quit_on_eof_(quit_on_eof),
        motion_fd_(motion_fd),
        start_(std::chrono::steady_clock::now()) {}

  std::string Run();

 private:
  std::int64_t NowUs() const {
    return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() -
                                                                 start_)
        .count();
  }
  bool Sleep(const sigset_t* mask);
  void ServeLine();
  void ReadControl();
  void Answer(const std::string& line);
  std::optional<std::int64_t> NextUs() const;
  void TellMotion(bool always);

  Pty* pty_;
  Controller* controller_;
  int control_fd_;  // -1 once it has ended; poll leaves it out
  int answer_fd_;
  bool quit_on_eof_;
  int motion_fd_;
  bool told_moving_ = false;
  std::chrono::steady_clock::time_point start_;
  std::array<pollfd, 3> polled_{};
  std::string control_;
  bool quit_ = false;
};

/// Writes all of it, or what the other end takes.
void WriteAll(int fd, std::string_view left) {
  while (!left.empty()) {
    const ssize_t count = write(fd, left.data(), left.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return;
    left.remove_prefix(static_cast<std::size_t>(count));
  }
}

std::optional<std::int64_t> Server::NextUs() const {
  const auto event = controller_->NextEventUs();
  auto inside = controller_->NextInsideUs();
  // Nobody looks: programs go on all the same, many steps at once.
  constexpr std::int64_t kCatchUpUs = 100'000;
  if (inside && motion_fd_ < 0) inside = std::max(*inside, NowUs() + kCatchUpUs);
  if (!event || !inside) return event ? event : inside;
  return std::min(*event, *inside);
}

void Server::TellMotion(bool always) {
  if (motion_fd_ < 0) return;
  const std::int64_t now_us = NowUs();
  const bool moving = controller_->AnyMoving(now_us);
  if (moving == told_moving_ && !always) return;
  told_moving_ = moving;
  constexpr std::int64_t kUsPerMs = 1000, kMsPerSecond = 1000;
  const std::int64_t ms = now_us / kUsPerMs;
  const std::string fraction = std::to_string(kMsPerSecond + ms % kMsPerSecond).substr(1);
  std::string text = std::to_string(ms / kMsPerSecond) + "." + fraction;
  text += moving ? " moving" : " at rest";
  for (int axis = 1; axis <= kAxes; ++axis) {
    text += " axis" + std::to_string(axis) + "=" +
            std::to_string(controller_->Axis(axis, now_us).pulses);
  }
  WriteAll(motion_fd_, text + "\n");
}

/// Until input comes or the next byte is due. False when the system refuses.
bool Server::Sleep(const sigset_t* mask) {
  polled_ = {pollfd{pty_->fd(), POLLIN, 0}, pollfd{pty_->watch_fd(), POLLIN, 0},
             pollfd{control_fd_, POLLIN, 0}};
  timespec wait{};
  const auto next = NextUs();
  if (next) {
    const std::int64_t us = std::max<std::int64_t>(0, *next - NowUs());
    wait.tv_sec = us / 1'000'000;
    wait.tv_nsec = (us % 1'000'000) * 1000;
  }
  const int count = ppoll(polled_.data(), polled_.size(), next ? &wait : nullptr, mask);
  if (count >= 0) return true;
  polled_ = {};
  return errno == EINTR;
}

void Server::ServeLine() {
  if (pty_->TakeClosed()) controller_->DropLine();
  if (polled_[0].revents != 0) {
    const std::string bytes = pty_->Read();
    if (!bytes.empty()) controller_->Receive(bytes, NowUs());
  }
  pty_->Write(controller_->Take(NowUs()));
  if (controller_->Requests().size() > kMostRequestsKept) controller_->ClearRequests();
}

void Server::Answer(const std::string& line) {
  WriteAll(answer_fd_, RunCommand(line, controller_, NowUs(), &quit_) + "\n");
}

void Server::ReadControl() {
  if (polled_[2].revents == 0) return;
  std::array<char, 1024> buffer{};
  const ssize_t count = read(control_fd_, buffer.data(), buffer.size());
  if (count < 0 && errno == EINTR) return;
  if (count <= 0) {
    control_fd_ = -1;
    quit_ = quit_ || quit_on_eof_;
    return;
  }
  control_.append(buffer.data(), static_cast<std::size_t>(count));
  for (std::size_t end = control_.find('\n'); end != std::string::npos && !quit_;
       end = control_.find('\n')) {
    const std::string line = control_.substr(0, end);
    control_.erase(0, end + 1);
    Answer(line);
  }
  if (control_.size() > kLongestControlLine) control_.clear();
}

std::string Server::Run() {
  const EndSignals signals;
  while (!quit_ && g_end_asked == 0) {
    if (!Sleep(signals.before())) return std::string("cannot wait: ") + std::strerror(errno);
    ServeLine();
    ReadControl();
    TellMotion(false);
  }
  TellMotion(true);
  return "";
}

}  // namespace

std::string Serve(Pty* pty, Controller* controller, int control_fd, int answer_fd, bool quit_on_eof,
                  int motion_fd) {
  return Server(pty, controller, control_fd, answer_fd, quit_on_eof, motion_fd).Run();
}

}  // namespace qvr7sim
