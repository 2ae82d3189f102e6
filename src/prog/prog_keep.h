#pragma once

namespace tr7 {

/// Makes known how programs are kept, each view's listing as a program file.
void InstallProgKeep();

}  // namespace tr7
