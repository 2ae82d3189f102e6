#pragma once

#include <coroutine>
#include <utility>

namespace tr7 {

struct TusinRequest;

/// How an exchange ended.
enum class TusinEnd {
  Good,              ///< a whole reply of the right prefix and length
  ErrorReply,        ///< the controller reported an error
  TimedOut,          ///< no reply to any send
  PortFailed,        ///< the port did not open; `PortFaultText` says why
  PortLost,          ///< the port has died; `PortFaultText` names it
  BadPrefix,         ///< a bad reply, and no sense in the answer to the re-synchronisation
  BadLength,         ///< the same after a reply of the wrong length
  BadTwice,          ///< a bad reply to the repeated message as well
  ErrorInResync,     ///< the re-synchronisation was answered with an error
  GroupMoveStopped,  ///< the group move's stop button ended the re-synchronisation
  Withdrawn,         ///< the user cancelled it, or a stop overtook this start of a movement
  GivenUp,           ///< another request failed, the line is offline or the tool closes
};

/// One exchange with the controller, as a sequence that stops where it has to wait: whoever keeps
/// it goes on with it once that for which it waits has happened. It never pumps.
class Exchange {
 public:
  using Condition = bool (*)(const TusinRequest& request);

  struct promise_type {
    Condition ready = nullptr;  ///< what the sequence waits for; null: it may go on
    TusinEnd end = TusinEnd::GivenUp;

    Exchange get_return_object() { return Exchange(Handle::from_promise(*this)); }
    std::suspend_always initial_suspend() noexcept { return {}; }
    std::suspend_always final_suspend() noexcept { return {}; }
    void return_value(TusinEnd how) { end = how; }
    void unhandled_exception() { throw; }
  };
  using Handle = std::coroutine_handle<promise_type>;

  /// `co_await Until{condition}` stops the sequence until the condition holds.
  struct Until {
    Condition ready;
    bool await_ready() const noexcept { return false; }
    void await_suspend(Handle handle) const noexcept { handle.promise().ready = ready; }
    void await_resume() const noexcept {}
  };

  Exchange() = default;
  Exchange(Exchange&& other) noexcept : handle_(std::exchange(other.handle_, {})) {}
  Exchange& operator=(Exchange&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~Exchange() {
    if (handle_) handle_.destroy();
  }

  explicit operator bool() const { return static_cast<bool>(handle_); }
  bool IsOver() const { return handle_.done(); }
  /// True when `Resume` would get on.
  bool IsReady(const TusinRequest& request) const {
    const Condition ready = handle_.promise().ready;
    return !ready || ready(request);
  }
  void Resume() { handle_.resume(); }
  /// Once it is over.
  TusinEnd End() const { return handle_.promise().end; }

 private:
  explicit Exchange(Handle handle) : handle_(handle) {}
  Handle handle_;
};

}  // namespace tr7
