#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sim/faults.h"
#include "sim/random.h"

namespace qvr7sim {

/// A piece of a reply, and how long the line pauses before it.
struct Piece {
  std::string bytes;
  std::int64_t pause_us = 0;
};

/// Decides which faults strike which request, and bends the replies.
class FaultPlan {
 public:
  explicit FaultPlan(std::uint64_t seed) : random_(seed) {}

  void Add(const Fault& fault) { entries_.push_back({fault, 0, false}); }
  void Clear() { entries_.clear(); }

  /// Faults that strike this request, in the order they were added. Counts the request.
  std::vector<Fault> Strike(std::string_view request);
  /// The reply as it goes onto the line. `reply` has its line end; none left means silence.
  std::vector<Piece> Bend(std::string reply, const std::vector<Fault>& struck);

 private:
  struct Entry {
    Fault fault;
    int seen;
    bool done;
  };
  std::size_t Place(const Fault& fault, std::size_t size);
  void BendText(const Fault& fault, std::string* text);

  Random random_;
  std::vector<Entry> entries_;
};

}  // namespace qvr7sim
