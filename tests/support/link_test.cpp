#include "tests/support/link_test.h"

#include "link/error_list.h"
#include "link/tusin_wait.h"
#include "state/online.h"

namespace tr7 {

LinkTest::LinkTest() {
  ReadErrorList();
  SetOnline();
}

void LinkTest::Axes(bool a1, bool a2, bool a3, bool a4) {
  AppState.AxisMuko = {!a1, !a2, !a3, !a4};
}

std::vector<std::string> LinkTest::Sent() {
  const Texts lines = Lines();
  port.sent.clear();
  return lines;
}

std::string LinkTest::Commands(std::size_t characters) {
  std::string all = SentLines(characters);
  port.sent.clear();
  if (!all.empty()) all.pop_back();
  return all;
}

void LinkTest::Plant(const std::string& line) {
  std::string reply;
  const int length = line.starts_with("0WG") || line.starts_with("0WS") ? 7 : 6;
  ASSERT_EQ(TusinCommand(line, length, 5000, reply), 0);
}

void LinkTest::Spoil(qvr7sim::FaultKind kind, const std::string& prefix, int at_byte) {
  StateTest::Spoil(kind, prefix, 1, at_byte);
}

}  // namespace tr7
