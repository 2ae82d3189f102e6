#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/bool16.h"

namespace tr7 {

inline constexpr int kQueueRows = 11;

/// One request as it waits for its turn.
struct RequestRow {
  std::string command;   ///< without CR LF; empty: no request
  int reply_length = 0;  ///< with CR LF
  int timeout_ms = 0;    ///< a copy for the record; the exchange reads `TusinTimeoutMs`
  int value1 = 0;        ///< the caller's own, carried along
  int value2 = 0;
  std::int16_t id = 0;
  Bool16 show_message;  ///< the exchange tells the user of a failure
};

/// Requests in order; row 0 is next.
struct RequestQueue {
  std::array<RequestRow, kQueueRows> rows;
  int last = -1;  ///< last row, -1 when empty
  Bool16 has_work;

  /// Takes row 0 out; the others move up.
  void Shift();
  /// Row 0 turned out to be empty: the queue holds no work.
  void FoundEmpty();
};

struct RequestQueues {
  RequestQueue ordinary;
  RequestQueue priority;
  std::int16_t next_id = 1000;        ///< of the ordinary queue: 1000 to 1999
  std::int16_t last_priority_id = 0;  ///< of the priority queue: 1 to 10000, then 1000 on
};

extern RequestQueues TusinQueues;

/// Adds a request and returns its id, or -1 when the queue is full (the id counter has moved on).
std::int16_t TusinRequestPut(const std::string& command, int reply_length, int timeout_ms,
                             int value1, int value2, Bool16 show_message);
/// The same for the priority queue, with no test for a full queue. Its row index is taken from the
/// ordinary queue: a priority request behind ordinary ones lands below an empty row 0, which stops
/// the request timer for good. That is how the controller's other tools behave, and it is kept.
std::int16_t TusinRequestPutHigh(const std::string& command, int reply_length, int timeout_ms,
                                 int value1, int value2, Bool16 show_message);

/// Empties the rows of the ordinary queue.
void TusinQueueClear();
/// Ordinary ids start at 1000 again; both queues count as empty. The has-work flags stay: an empty
/// row 0 clears them at the next tick.
void TusinQueueInit();

}  // namespace tr7
