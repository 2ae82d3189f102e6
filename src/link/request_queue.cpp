#include "link/request_queue.h"

#include <utility>

namespace tr7 {

RequestQueues TusinQueues;

void RequestQueue::Shift() {
  for (std::size_t i = 0; i + 1 < rows.size(); ++i) rows[i] = std::move(rows[i + 1]);
  rows.back() = RequestRow{};
  if (last >= 0) --last;
  if (last == -1) has_work = False;
}

void RequestQueue::FoundEmpty() {
  last = -1;
  has_work = False;
}

namespace {

std::int16_t TakeOrdinaryId() {
  const std::int16_t id = TusinQueues.next_id;
  TusinQueues.next_id = id + 1 >= 2000 ? std::int16_t{1000} : static_cast<std::int16_t>(id + 1);
  return id;
}

std::int16_t TakePriorityId() {
  std::int16_t& last = TusinQueues.last_priority_id;
  last = last + 1 > 10000 ? std::int16_t{1000} : static_cast<std::int16_t>(last + 1);
  return last;
}

}  // namespace

std::int16_t TusinRequestPut(const std::string& command, int reply_length, int timeout_ms,
                             int value1, int value2, Bool16 show_message) {
  const std::int16_t id = TakeOrdinaryId();
  RequestQueue& queue = TusinQueues.ordinary;
  if (queue.last >= kQueueRows - 1) return -1;
  ++queue.last;
  queue.rows[static_cast<std::size_t>(queue.last)] = {command, reply_length, timeout_ms,  value1,
                                                      value2,  id,           show_message};
  queue.has_work = True;
  return id;
}

std::int16_t TusinRequestPutHigh(const std::string& command, int reply_length, int timeout_ms,
                                 int value1, int value2, Bool16 show_message) {
  const std::int16_t id = TakePriorityId();
  RequestQueue& queue = TusinQueues.priority;
  const int row = TusinQueues.ordinary.last + 1;
  if (row >= kQueueRows) return id;  // no row is left to put it in
  queue.rows[static_cast<std::size_t>(row)] = {command, reply_length, timeout_ms,  value1,
                                               value2,  id,           show_message};
  queue.last = row;
  queue.has_work = True;
  return id;
}

void TusinQueueClear() {
  for (RequestRow& row : TusinQueues.ordinary.rows) row = RequestRow{};
}

void TusinQueueInit() {
  TusinQueues.next_id = 1000;
  TusinQueues.ordinary.last = -1;
  TusinQueues.priority.last = -1;
}

}  // namespace tr7
