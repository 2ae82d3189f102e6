#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

namespace qvr7sim {

/// The two wires between PC and controller. A byte takes 10 bits; all times in microseconds.
class Line {
 public:
  /// `baud` above 0; unpaced bytes arrive at once.
  Line(int baud, bool paced);

  /// The PC sends. Bytes beyond 64 KB that wait for the wire are lost.
  void FromPc(std::string_view bytes, std::int64_t now_us);
  /// When the next complete request line will have reached the controller.
  std::optional<std::int64_t> NextRequestUs() const;
  /// The request line, with its line end, that is complete by `until_us`. Longer than 2048
  /// characters: only the first 2048 and the line end are kept.
  std::optional<std::string> TakeRequest(std::int64_t until_us);

  /// The controller sends from `start_us` on, or when the wire is free.
  void ToPc(std::string_view bytes, std::int64_t start_us);
  std::optional<std::int64_t> NextByteUs() const;
  /// When the next line feed reaches the PC, or the last byte on the wire when there is none.
  std::optional<std::int64_t> NextLineUs() const;
  /// Bytes that have reached the PC by `now_us`.
  std::string Take(std::int64_t now_us);

  /// Loses everything on the way, a request begun included.
  void Drop();

  /// Time that `count` bytes take, rounded up.
  std::int64_t Span(std::size_t count) const;

 private:
  struct Burst {
    std::string bytes;
    std::int64_t start_us;
    std::size_t taken;
  };
  std::int64_t ArrivalUs(const Burst& burst, std::size_t index) const;
  std::size_t ArrivedBy(const Burst& burst, std::int64_t now_us) const;
  void Put(std::deque<Burst>* wire, std::int64_t* free_us, std::string_view bytes,
           std::int64_t start_us);

  std::int64_t baud_;
  bool paced_;
  std::deque<Burst> to_controller_;
  std::deque<Burst> to_pc_;
  std::int64_t to_controller_free_us_ = 0;
  std::int64_t to_pc_free_us_ = 0;
  std::string request_;
};

}  // namespace qvr7sim
