#pragma once

namespace tr7 {

/// The SP group of the parameter view: its switch, and row AXIS, whose list and number go together.
void InstallParaSp();

}  // namespace tr7
