#pragma once

#include <string>
#include <vector>

namespace tr7 {

inline constexpr int kSelectionCancelled = -1;
inline constexpr int kSelectionBack = -2;

/// The two-choice box. 0 first choice, 1 second, -1 cancelled, -2 back. `no_cancel` 1 hides the
/// cancel button and refuses to close by other means; `back` 1 offers the back button; `next` 1
/// names the OK button "Next".
int SelectionDialog(const std::string& title, const std::string& prompt, const std::string& choice1,
                    const std::string& choice2, int no_cancel, int back, int next);

/// The box with two or three choices, one preselected: index of the choice, or -1.
int SelectionDialog2(const std::string& title, const std::string& prompt,
                     const std::vector<std::string>& choices, int preselected);

}  // namespace tr7
