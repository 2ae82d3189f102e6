#pragma once

namespace tr7 {

/// The parameter view comes as a dialogue in a second, once the device dialogue that asks for it
/// has closed.
void OpenParaAfterDevice();

/// `frmMain.Timer2`.
void InstallParaAfterDevice();

}  // namespace tr7
