#pragma once

#include <array>

#include "forms/control.h"

namespace tr7 {

/// The choice box: a prompt, up to three options, and the buttons that the caller wants. The same
/// layout serves as `frmSelection` (two choices) and `frmSelection2` (up to three, one
/// preselected).
struct SelectionView : View {
  explicit SelectionView(const char* name) : View(name) {
    Layout = "frmSelection";
    HelpPage = "messages";
    Width = 7200;
    Height = 3600;
    cmdOk.Default = true;
    cmdCancel.Cancel = true;
  }
  Label lblPrompt{*this, "lblPrompt"};
  Label lblDetails{*this, "lblDetails"};
  OptionButton optChoice1{*this, "optChoice1", 1};
  OptionButton optChoice2{*this, "optChoice2", 1};
  OptionButton optChoice3{*this, "optChoice3", 1};
  CommandButton cmdBack{*this, "cmdBack", 48};
  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdCancel{*this, "cmdCancel", 5153};
  std::array<OptionButton*, 3> options{&optChoice1, &optChoice2, &optChoice3};
};

inline Standing<SelectionView> frmSelection{"frmSelection"};
inline Standing<SelectionView> frmSelection2{"frmSelection2"};

}  // namespace tr7
