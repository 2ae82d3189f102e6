#pragma once

#include <concepts>
#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

namespace tr7 {

/// Counts what runs on behalf of a view, one within another. While nothing does, no view has code
/// on the stack.
class HandlerRuns {
 public:
  HandlerRuns() { ++running_; }
  ~HandlerRuns() { --running_; }
  HandlerRuns(const HandlerRuns&) = delete;
  HandlerRuns& operator=(const HandlerRuns&) = delete;
  static bool Any() { return running_ > 0; }

 private:
  inline static int running_ = 0;
};

/// What logic hangs on a control, a view or a timer: a function or nothing. A call counts as
/// running for as long as it lasts.
template <typename Signature>
class Handler;

template <typename Result, typename... Args>
class Handler<Result(Args...)> : public std::function<Result(Args...)> {
  using Base = std::function<Result(Args...)>;

 public:
  Handler() = default;
  template <typename Run>
  requires(!std::same_as<std::remove_cvref_t<Run>, Handler> && std::constructible_from<Base, Run>)
      Handler(Run&& run)
      : Base(std::forward<Run>(run)) {}  // NOLINT: a lambda becomes a handler

  Result operator()(Args... args) const {
    const HandlerRuns runs;
    return Base::operator()(std::forward<Args>(args)...);
  }
};

/// Handlers of one showing of a dialogue: they refer to what lives as long as that, and go with it.
class HandlersForOnce {
 public:
  HandlersForOnce() = default;
  ~HandlersForOnce() {
    for (const auto& take_away : take_away_) take_away();
  }
  HandlersForOnce(const HandlersForOnce&) = delete;
  HandlersForOnce& operator=(const HandlersForOnce&) = delete;

  template <typename Signature, typename Run>
  void Set(Handler<Signature>& place, Run run) {
    place = std::move(run);
    take_away_.push_back([&place] { place = nullptr; });
  }

 private:
  std::vector<std::function<void()>> take_away_;
};

}  // namespace tr7
