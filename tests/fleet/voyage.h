#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tests/fleet/random.h"
#include "tests/support/state_test.h"

namespace tr7 {

/// What one seeded run shares: its chances, its doors, what was done and what did not hold.
struct Voyage {
  explicit Voyage(std::uint64_t seed_of_run);

  /// Writes into the report of a failing run what was done.
  void Note(const std::string& what) { log += " " + what; }
  void Fail(const std::string& what);
  void Require(bool holds, const std::string& what) {
    if (!holds) Fail(what);
  }
  /// A flow begins: what is kept of a flow is forgotten.
  void BeginFlow(const std::string& name);
  /// True when a box with this message, up to what is filled in, came up since the flow began.
  bool WasTold(MsgId message_id) const;
  /// True when one of these commands went out since the flow began.
  bool HasSent(std::initializer_list<const char*> commands) const;
  /// The answer to the choice box with this prompt in this flow; nothing: none was given.
  std::optional<int> Chosen(MsgId prompt_id) const;

  std::uint64_t seed;
  Random random;
  VirtualDoors virt;
  std::string log;
  std::vector<std::string> failures;

  bool line_lies = false;              ///< a byte may be another one, and nothing on the line tells
  bool hasty = false;                  ///< the user presses while flows run: see hasty_hand
  int presses_open = 0;                ///< presses whose flows have not ended
  std::string last_path;               ///< that the user chose in a file dialogue for positions
  std::set<std::string> damaged;       ///< paths of files that this tool did not write so
  std::string flow;                    ///< the one that runs
  std::size_t sent_at_begin = 0;       ///< bytes sent before this flow
  std::size_t boxes_seen = 0;          ///< message boxes before this flow
  std::map<std::string, int> choices;  ///< of this flow: prompt of a choice box and the answer
  std::set<std::size_t> refused_at;  ///< bytes sent whenever the controller refused the last frame
  /// Bytes sent when the user, or the controller, refused something in this flow.
  std::optional<std::size_t> sent_at_refusal;
};

}  // namespace tr7
