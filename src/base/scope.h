#pragma once

#include <utility>

namespace tr7 {

/// Runs a piece of code when the scope is left, whichever way that happens.
template <typename F>
class ScopeExit {
 public:
  explicit ScopeExit(F run) : run_(std::move(run)) {}
  ~ScopeExit() { run_(); }
  ScopeExit(const ScopeExit&) = delete;
  ScopeExit& operator=(const ScopeExit&) = delete;

 private:
  F run_;
};

}  // namespace tr7
