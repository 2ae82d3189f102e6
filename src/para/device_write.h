#pragma once

namespace tr7 {

/// `cmdPrmCtWrite` of `frmDevice3`: gives the controller the axes and the standard parameters of
/// the devices that the dialogue shows, and takes both into use here. What can be known to fail
/// ends it before anything is sent. Every failure is told, and what it may leave in the controller;
/// axes, devices and parameters of the PC stay as they were then. A write begun offline ends
/// offline: the mode of the two sides has not been compared.
void PrmCtWrite();

/// What of the dialogue rests while it writes, off and on.
void Device3CMDBTN_Muko();
void Device3CMDBTN_Yuko();

void InstallDeviceWrite();

}  // namespace tr7
