#pragma once

namespace tr7 {

/// Devices by choice or from a parameter file; they come into use at once. 0 done; 1 left or
/// failed: devices, axes and parameters are as before.
int Change_Device();

/// `cmdIniPrm`: devices are chosen and their standard parameters shown in the parameter view.
void IniPrm();

void InstallChangeDevice();

}  // namespace tr7
