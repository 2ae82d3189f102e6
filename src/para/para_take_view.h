#pragma once

#include <string>

#include "base/msg_id.h"
#include "forms/control.h"

namespace tr7 {

/// The check that every field which counts holds something. Once the flow has ended and the
/// commands are on again, the focus goes to the one that does not: stands ahead of what the flow
/// takes.
class FilledCheck {
 public:
  FilledCheck() = default;
  ~FilledCheck();
  FilledCheck(const FilledCheck&) = delete;
  FilledCheck& operator=(const FilledCheck&) = delete;

  /// False after the user has been told which field is empty.
  [[nodiscard]] bool Holds();
  /// The same, told by these words.
  [[nodiscard]] bool Holds(const std::string& words);

 private:
  Control* missing_ = nullptr;
};

/// Takes the view into `ParamSet`, which keeps it. False after these words, or two messages: some
/// value is out of its range.
[[nodiscard]] bool TakeParaView(const std::string& words);
[[nodiscard]] bool TakeParaView(MsgId wrong_id, MsgId again_id);

}  // namespace tr7
