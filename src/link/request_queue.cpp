#include "link/request_queue.h"

#include <algorithm>
#include <cstddef>

#include "forms/frm_main.h"
#include "state/app_state.h"

namespace tr7 {

RequestQueue TusinQueue;

namespace {

bool IsNoStop(const TusinRequest& request) { return !IsUrgent(request); }
bool IsStart(const TusinRequest& request) { return request.priority == TusinPriority::Start; }

}  // namespace

bool IsUrgent(const TusinRequest& request) { return request.priority >= TusinPriority::Next; }

bool RequestQueue::Put(TusinRequest& request) {
  if (IsUrgent(request)) {
    EndWaiting(TusinEnd::Withdrawn, IsStart);
    const auto behind = [&request](const TusinRequest* row) {
      return row->priority < request.priority;
    };
    waiting.insert(std::find_if(waiting.begin(), waiting.end(), behind), &request);
    return true;
  }
  const std::size_t rows = waiting.size() + (on_line ? 1 : 0);
  if (rows >= kQueueRows) return false;
  waiting.push_back(&request);
  return true;
}

void RequestQueue::TakeOut(const TusinRequest& request) {
  std::erase(waiting, &request);
  if (untold == &request) untold = nullptr;
  if (on_line != &request) return;
  on_line = nullptr;
  exchange = Exchange();
  frmMain.timerTimeout.Stop();
}

TusinRequest& RequestQueue::TakeNext() {
  on_line = waiting.front();
  waiting.erase(waiting.begin());
  return *on_line;
}

void RequestQueue::PutBack() {
  TusinRequest& request = *on_line;
  TakeOut(request);
  static_cast<void>(Put(request));  // a stop always has room
}

void RequestQueue::FinishOnLine(TusinEnd end) {
  TusinRequest& request = *on_line;
  TakeOut(request);
  request.end = end;
  request.done = true;
}

void RequestQueue::EndWaiting(TusinEnd end, bool (*picks)(const TusinRequest& request)) {
  std::erase_if(waiting, [&](TusinRequest* row) {
    if (!picks(*row)) return false;
    row->end = end;
    row->done = true;
    return true;
  });
}

bool RequestQueue::StopWaits() const { return !waiting.empty() && IsUrgent(*waiting.front()); }

void TusinQueueClear() { TusinQueue.EndWaiting(TusinEnd::GivenUp, IsNoStop); }

bool IsCancelled(const TusinRequest& request) {
  return request.may_cancel && AppState.CancelRequested && AppState.ProgressWriting &&
         frmMain.cmdComCancel.Visible;
}

bool RequestQueue::StopIsServed() const { return on_line && IsUrgent(*on_line); }

bool RequestQueue::IsUnanswered(std::int64_t now_us) const {
  constexpr std::int64_t kLongestWorkUs = 1'000'000;
  if (untold || AppState.Offline) return true;
  if (!on_line || !on_line->awaits_reply) return false;
  return on_line->sends > 1 || now_us - line_busy_us > kLongestWorkUs;
}

bool LineIsBarred() { return AppState.Offline || AppState.Closing || TusinQueue.untold != nullptr; }

}  // namespace tr7
