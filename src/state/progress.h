#pragma once

#include <string>

namespace tr7 {

/// Shows the progress bar at 0; the cancel button beside it while `ProgressWriting` is True.
void Disp_ProgressBar();
/// Takes bar, status text and cancel button away.
void Hide_ProgressBar();

/// The bar for the length of a flow: status text, maximum, shown; taken away on every way out.
/// With `may_cancel` the cancel button stands beside it, not pressed yet; `CancelRequested` then
/// tells, afterwards too, whether it was.
class ProgressScope {
 public:
  ProgressScope(const std::string& status, int maximum, bool may_cancel);
  ~ProgressScope();
  ProgressScope(const ProgressScope&) = delete;
  ProgressScope& operator=(const ProgressScope&) = delete;
  void Set(int value);
  void Advance();
};

}  // namespace tr7
