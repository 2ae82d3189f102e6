#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <sstream>
#include <string>

#include "sim/controller.h"

namespace qvr7sim {

/// A PC on virtual time: sends a request and waits for a line, at most a second.
class Exchange {
 public:
  explicit Exchange(const Setup& setup = Setup::Useful(), std::uint64_t seed = 1)
      : controller(setup, seed) {}

  /// All bytes up to the first line feed, or what came within `limit_us`.
  std::string Raw(const std::string& bytes, std::int64_t limit_us = 1'000'000) {
    controller.Receive(bytes, now_us);
    const std::int64_t end_us = now_us + limit_us;
    std::string got;
    while (got.find('\n') == std::string::npos) {
      const auto next = controller.NextEventUs();
      if (!next || *next > end_us) {
        now_us = end_us;
        return got + controller.Take(now_us);
      }
      now_us = std::max(now_us, *next);
      got += controller.Take(now_us);
    }
    return got;
  }
  /// Reply without its line end, or with whatever end it has when that is not CR LF.
  std::string Ask(const std::string& request) {
    std::string reply = Raw(request + "\r\n");
    if (reply.ends_with("\r\n")) reply.resize(reply.size() - 2);
    return reply;
  }
  void Wait(std::int64_t us) { now_us += us; }
  AxisState Axis(int axis) const { return controller.Axis(axis, now_us); }

  Controller controller;
  std::int64_t now_us = 0;
};

/// Words of a talk: "REQUEST>REPLY" asks and compares, "+500" waits 500 ms.
inline void Talk(Exchange& pc, const std::string& words) {
  std::istringstream stream(words);
  for (std::string word; stream >> word;) {
    if (word[0] == '+') {
      pc.Wait(std::stoll(word.substr(1)) * 1000);
      continue;
    }
    const std::size_t at = word.find('>');
    const std::string request = word.substr(0, at);
    EXPECT_EQ(pc.Ask(request), word.substr(at + 1)) << '"' << request << "\" in: " << words;
  }
}

}  // namespace qvr7sim
