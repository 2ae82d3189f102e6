// Watches over a motion in the tool's stead. The tool lends it the line while an axis moves; where
// the tool ends before it has said that all is at rest, or is not heard of for half a second during
// a jog, the axes are stopped here. It sleeps otherwise, and leaves with the tool.

#include <poll.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <string_view>

namespace {

constexpr int kTool = 3;  // the socket to the tool, by the number that it was started with
constexpr int kSilenceMs = 500;
constexpr int kSends = 3, kBetweenMs = 100, kWritableMs = 1000;

/// What the tool says, in one letter: 'J' a jog and 'M' a move begin, each with the line; 'A' it is
/// alive; 'R' all is at rest. False: the tool has ended.
bool Hear(char& word, int& line) {
  alignas(cmsghdr) char room[CMSG_SPACE(sizeof(int))] = {};
  iovec text{&word, 1};
  msghdr message{};
  message.msg_iov = &text;
  message.msg_iovlen = 1;
  message.msg_control = room;
  message.msg_controllen = sizeof room;
  if (recvmsg(kTool, &message, 0) <= 0) return false;
  const cmsghdr* header = CMSG_FIRSTHDR(&message);
  if (!header || header->cmsg_type != SCM_RIGHTS) return true;
  if (line >= 0) close(line);
  std::memcpy(&line, CMSG_DATA(header), sizeof line);
  return true;
}

/// A line end first: the tool may have died within a frame. More than once: a byte may be lost.
void StopAxes(int line) {
  for (int sends = 0; sends < kSends; ++sends) {
    std::string_view rest = "\r\n0SP\r\n";
    pollfd writable{line, POLLOUT, 0};
    while (!rest.empty() && poll(&writable, 1, kWritableMs) > 0) {
      const ssize_t written = write(line, rest.data(), rest.size());
      if (written <= 0) break;
      rest.remove_prefix(static_cast<std::size_t>(written));
    }
    tcdrain(line);
    poll(nullptr, 0, kBetweenMs);
  }
}

}  // namespace

int main() {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE}) std::signal(signal, SIG_IGN);
  setsid();
  int line = -1;
  bool held = false;
  while (true) {
    pollfd tool{kTool, POLLIN, 0};
    const int ready = poll(&tool, 1, line >= 0 && held ? kSilenceMs : -1);
    char word = 0;
    const bool silent = ready == 0;
    if (!silent && !Hear(word, line)) break;
    if (silent) StopAxes(line);
    if (silent) held = false;
    if (word == 'J' || word == 'M') held = word == 'J';
    if (word == 'R' && line >= 0) {
      close(line);
      line = -1;
    }
  }
  if (line >= 0) StopAxes(line);
  return 0;
}
