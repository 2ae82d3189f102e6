// The serial door over real pseudo-terminals.

#include <fcntl.h>
#include <sys/stat.h>

#include <QSerialPort>
#include <cstdlib>

#include "link/port.h"
#include "tests/support/as_ordinary_user.h"
#include "tests/ui/ui_test.h"

namespace tr7 {
namespace {

/// Both ends of a pseudo-terminal: the tool opens `Path`, the test is the controller.
class Line {
 public:
  Line() : master_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
    EXPECT_EQ(grantpt(master_), 0);
    EXPECT_EQ(unlockpt(master_), 0);
    path_ = ptsname(master_);
  }
  ~Line() { HangUp(); }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  const std::string& Path() const { return path_; }
  void Send(const std::string& bytes) const {
    EXPECT_EQ(write(master_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  std::string Received() const {
    char buffer[256];
    const ssize_t count = read(master_, buffer, sizeof buffer);
    return count > 0 ? std::string(buffer, static_cast<std::size_t>(count)) : std::string();
  }
  void HangUp() {
    if (master_ >= 0) close(master_);
    master_ = -1;
  }

 private:
  int master_;
  std::string path_;
};

class SerialPortTest : public UiTest {
 protected:
  void Open() {
    ASSERT_EQ(port.Open(line.Path()), PortFault::None);
    ASSERT_TRUE(port.Configure("9600,N,8,1", 3000));
  }
  bool Arrives(std::size_t bytes, int ms = 1000) {
    return Until([this, bytes] { return port.InBufferCount() >= bytes; }, ms);
  }
  std::int64_t NowMs() const { return desktop.pump.NowUs() / 1000; }

  QtSerialPort& port = desktop.serial;
  Line line;
};

TEST_F(SerialPortTest, BytesPassUnchangedBothWays) {
  Open();
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  line.Send(all.substr(0, 128));
  line.Send(all.substr(128));
  ASSERT_TRUE(Arrives(all.size()));
  EXPECT_EQ(port.ReadAll(), all);
  ASSERT_TRUE(port.Write(all));
  std::string received;
  EXPECT_TRUE(Until([&] { return (received += line.Received()).size() >= all.size(); }));
  EXPECT_EQ(received, all);
}

TEST_F(SerialPortTest, AVanishedDeviceShutsThePortAndLetsTheToolSleep) {
  Open();
  AppState.OpenPortName = line.Path();
  line.HangUp();
  ASSERT_TRUE(Until([this] { return !user.boxes.empty(); }, 1000));
  EXPECT_FALSE(port.IsOpen() || port.Write("0CM0\r\n"));
  EXPECT_TRUE(user.boxes.back().starts_with(Text(5905, line.Path(), port.FaultText())));
  EXPECT_FALSE(port.FaultText().empty());
  const std::uint64_t sleeps = desktop.pump.sleeps;
  WaitMs(300);
  EXPECT_LE(desktop.pump.sleeps - sleeps, 10u);
}

// An expected reply gathers; whatever else comes is there at once.

TEST_F(SerialPortTest, AReplyOfAnotherLengthArrivesWholeAndAPartIsKept) {
  for (const std::string& reply : {std::string("\n"), std::string("0%%101\r\n"),
                                   std::string("0RP0010123456789\r\n"), std::string(200, '5')}) {
    Open();
    port.ExpectReply(68);
    line.Send(reply);
    std::string got;
    ASSERT_TRUE(Until([&] { return (got += port.ReadAll()).size() >= reply.size(); }, 2000));
    EXPECT_EQ(got, reply);
    port.Close();
  }
  Open();
  port.ExpectReply(68);
  line.Send("0RP0");
  WaitMs(100);
  port.ExpectReply(0);  // the exchange has given up and asks for something else
  ASSERT_TRUE(Arrives(4));
  EXPECT_EQ(port.ReadAll(), "0RP0");
}

TEST_F(SerialPortTest, APortThatCannotBeOpenedTellsWhy) {
  EXPECT_EQ(port.Open("/dev/tr7-none"), PortFault::NoSuchPort);
  EXPECT_EQ(port.Open("tr7-none"), PortFault::NoSuchPort);
  QSerialPort other;
  other.setPortName(QString::fromStdString(line.Path()));
  ASSERT_TRUE(other.open(QIODevice::ReadWrite));
  EXPECT_EQ(port.Open(line.Path()), PortFault::InUse);
  other.close();
  EXPECT_EQ(port.Open(line.Path()), PortFault::None);
  port.Close();
  ASSERT_EQ(chmod(line.Path().c_str(), 0600), 0);
  const AsOrdinaryUser ordinary;
  if (access(line.Path().c_str(), R_OK) == 0) GTEST_SKIP() << "the terminal is this user's own";
  EXPECT_EQ(port.Open(line.Path()), PortFault::NotPermitted);
}

}  // namespace
}  // namespace tr7
