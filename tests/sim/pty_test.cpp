#include "sim/pty.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <ctime>
#include <memory>
#include <thread>

#include "sim/server.h"

namespace qvr7sim {
namespace {

/// Reads until `end` is seen or two seconds have passed without a byte.
std::string ReadUntil(int fd, char end) {
  std::string got;
  while (got.empty() || got.back() != end) {
    pollfd polled{fd, POLLIN, 0};
    if (poll(&polled, 1, 2000) <= 0) break;
    char byte = 0;
    if (read(fd, &byte, 1) != 1) break;
    got += byte;
  }
  return got;
}

/// A controller served in a thread of its own, and its control lines.
class PtyTest : public testing::Test {
 protected:
  void Start(const qvr7sim::Setup& setup) {
    ASSERT_EQ(pty_.Open(), "");
    ASSERT_EQ(pipe(control_.data()), 0);
    ASSERT_EQ(pipe(answer_.data()), 0);
    ASSERT_EQ(pipe(motion_.data()), 0);
    controller_ = std::make_unique<Controller>(setup);
    ServeInThread();
  }
  void ServeInThread() {
    thread_ = std::thread([this] {
      failed_ = Serve(&pty_, controller_.get(), control_[0], answer_[1], true, motion_[1]);
    });
  }
  void TearDown() override {
    if (control_[1] >= 0) close(control_[1]);
    if (thread_.joinable()) thread_.join();
    for (int fd : {control_[0], answer_[0], answer_[1], motion_[0], motion_[1]}) {
      if (fd >= 0) close(fd);
    }
    EXPECT_EQ(failed_, "");
  }
  int OpenPort() const { return open(pty_.path().c_str(), O_RDWR | O_NOCTTY); }
  void Send(int fd, const std::string& bytes) const {
    ASSERT_EQ(write(fd, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  std::string Command(const std::string& line) {
    Send(control_[1], line + "\n");
    return ReadUntil(answer_[0], '\n');
  }

  Pty pty_;
  std::unique_ptr<Controller> controller_;
  std::array<int, 2> control_{-1, -1};
  std::array<int, 2> answer_{-1, -1};
  std::array<int, 2> motion_{-1, -1};
  std::thread thread_;
  std::string failed_;
};

TEST_F(PtyTest, AnswersAtTheLinesRateByteForByte) {
  Start(qvr7sim::Setup::Useful());
  const int port = OpenPort();
  ASSERT_GE(port, 0);
  const auto before = std::chrono::steady_clock::now();
  Send(port, "0RP001\r\n");
  EXPECT_EQ(ReadUntil(port, '\n').size(), 68u);
  const auto took = std::chrono::steady_clock::now() - before;
  EXPECT_GE(took, std::chrono::microseconds(8334 + 70834));
  EXPECT_LT(took, std::chrono::seconds(2));
  close(port);
}

TEST_F(PtyTest, ServesPortsOpenedAgainAndControlLines) {
  qvr7sim::Setup setup = qvr7sim::Setup::Useful();
  setup.paced = false;
  Start(setup);
  for (int i = 0; i < 3; ++i) {
    const int port = OpenPort();
    Send(port, "0RV\r\n");
    EXPECT_EQ(ReadUntil(port, '\n'), "0RV140R4M\r\n");
    close(port);
  }
  const int port = OpenPort();
  EXPECT_EQ(Command("alarm 1 4 line"), "ok alarm 1 4\n");
  EXPECT_EQ(ReadUntil(port, '\n'), "0%%104\r\n");
  Send(port, "0RA\r\n");
  EXPECT_EQ(ReadUntil(port, '\n'), "0%%104\r\n");
  EXPECT_EQ(Command("power-cycle\nstatus"), "ok power-cycle\n");
  EXPECT_TRUE(ReadUntil(answer_[0], '\n').starts_with("ok mode=pos"));
  close(port);
}

TEST_F(PtyTest, SleepsWhileNothingIsDueAndEndsOnQuitAndOnASignal) {
  Start(qvr7sim::Setup::Useful());
  close(OpenPort());
  const std::clock_t before = std::clock();  // of the processor
  std::this_thread::sleep_for(std::chrono::milliseconds(400));
  EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 10);
  EXPECT_EQ(Command("quit"), "ok quit\n");
  thread_.join();
  ServeInThread();
  EXPECT_TRUE(Command("silence off").starts_with("ok"));
  pthread_kill(thread_.native_handle(), SIGTERM);
  thread_.join();
}

}  // namespace
}  // namespace qvr7sim
