#pragma once

namespace tr7 {

/// Wires the editing of the position grid: rules, keys, lines, clipboard, the check command.
void InstallPosiEdit();

/// Checks the whole table and says that all is good when it is; else the first bad line is the
/// current one afterwards.
void cmdPosiCheck_Click();

}  // namespace tr7
