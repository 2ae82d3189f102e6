#include "sim/line.h"

#include <algorithm>

namespace qvr7sim {

namespace {

constexpr std::size_t kLongestRequest = 2048;  // a program of 100 steps has 1905
constexpr std::size_t kMostWaiting = 65536;
constexpr std::int64_t kBitsTimesMicroseconds =
    10'000'000;  // 10 bits a byte, a million us a second

}  // namespace

Line::Line(int baud, bool paced) : baud_(baud), paced_(paced) {}

std::int64_t Line::Span(std::size_t count) const {
  if (!paced_) return 0;
  return (static_cast<std::int64_t>(count) * kBitsTimesMicroseconds + baud_ - 1) / baud_;
}

std::int64_t Line::ArrivalUs(const Burst& burst, std::size_t index) const {
  return burst.start_us + Span(index + 1);
}

std::size_t Line::ArrivedBy(const Burst& burst, std::int64_t now_us) const {
  if (now_us < burst.start_us) return 0;
  if (!paced_) return burst.bytes.size();
  const std::int64_t count = (now_us - burst.start_us) * baud_ / kBitsTimesMicroseconds;
  return std::min(burst.bytes.size(), static_cast<std::size_t>(count));
}

void Line::Put(std::deque<Burst>* wire, std::int64_t* free_us, std::string_view bytes,
               std::int64_t start_us) {
  if (bytes.empty()) return;
  const std::int64_t start = std::max(start_us, *free_us);
  wire->push_back({std::string(bytes), start, 0});
  *free_us = start + Span(bytes.size());
}

void Line::FromPc(std::string_view bytes, std::int64_t now_us) {
  std::size_t waiting = 0;
  for (const Burst& burst : to_controller_) waiting += burst.bytes.size() - burst.taken;
  bytes = bytes.substr(0, kMostWaiting - std::min(waiting, kMostWaiting));
  Put(&to_controller_, &to_controller_free_us_, bytes, now_us);
}

std::optional<std::int64_t> Line::NextRequestUs() const {
  for (const Burst& burst : to_controller_) {
    const std::size_t end = burst.bytes.find('\n', burst.taken);
    if (end != std::string::npos) return ArrivalUs(burst, end);
  }
  return std::nullopt;
}

std::optional<std::string> Line::TakeRequest(std::int64_t until_us) {
  while (!to_controller_.empty()) {
    Burst& burst = to_controller_.front();
    const std::size_t arrived = ArrivedBy(burst, until_us);
    while (burst.taken < arrived) {
      const char byte = burst.bytes[burst.taken++];
      if (request_.size() < kLongestRequest || byte == '\r' || byte == '\n') request_ += byte;
      if (byte != '\n') continue;
      if (burst.taken == burst.bytes.size()) to_controller_.pop_front();
      std::string line;
      line.swap(request_);
      return line;
    }
    if (burst.taken < burst.bytes.size()) break;
    to_controller_.pop_front();
  }
  return std::nullopt;
}

void Line::ToPc(std::string_view bytes, std::int64_t start_us) {
  Put(&to_pc_, &to_pc_free_us_, bytes, start_us);
}

std::optional<std::int64_t> Line::NextByteUs() const {
  if (to_pc_.empty()) return std::nullopt;
  return ArrivalUs(to_pc_.front(), to_pc_.front().taken);
}

std::optional<std::int64_t> Line::NextLineUs() const {
  for (const Burst& burst : to_pc_) {
    const std::size_t end = burst.bytes.find('\n', burst.taken);
    if (end != std::string::npos) return ArrivalUs(burst, end);
  }
  if (to_pc_.empty()) return std::nullopt;
  return ArrivalUs(to_pc_.back(), to_pc_.back().bytes.size() - 1);
}

std::string Line::Take(std::int64_t now_us) {
  std::string taken;
  while (!to_pc_.empty()) {
    Burst& burst = to_pc_.front();
    const std::size_t arrived = std::max(ArrivedBy(burst, now_us), burst.taken);
    taken.append(burst.bytes, burst.taken, arrived - burst.taken);
    burst.taken = arrived;
    if (burst.taken < burst.bytes.size()) break;
    to_pc_.pop_front();
  }
  return taken;
}

void Line::Drop() {
  to_controller_.clear();
  to_pc_.clear();
  request_.clear();
  to_controller_free_us_ = 0;
  to_pc_free_us_ = 0;
}

}  // namespace qvr7sim
