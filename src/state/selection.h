#pragma once

#include <string>
#include <vector>

#include "base/msg_id.h"

namespace tr7 {

/// What a choice box asks.
struct SelectionCall {
  std::string Title;
  MsgId What = {};  ///< named behind the title
  std::string Prompt;
  std::vector<std::string> Choices;  ///< two or three
  std::string Details = {};          ///< what the choice is about, one thing a line; may be empty
  int Preselected = 0;               ///< index of the choice that is marked at first
  bool MayCancel = true;             ///< false: no cancel button, and no other way to close
  bool MayGoBack = false;            ///< true: a back button
  bool OkIsNext = false;             ///< true: the OK button reads "Next"
};

/// How the user left it.
enum class Selection { Back = -2, Cancelled = -1, First = 0, Second = 1, Third = 2 };

/// The two-choice box.
[[nodiscard]] Selection SelectionDialog(const SelectionCall& call);
/// The box for two or three choices.
[[nodiscard]] Selection SelectionDialog2(const SelectionCall& call);

}  // namespace tr7
