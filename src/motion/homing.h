#pragma once

namespace tr7 {

/// The button: homing by itself.
void cmdHome_Click();
/// The body of that flow.
void HomeRun();
/// Homing inside a move flow, or before teaching. 0 done, -1 a failure or a stop has ended it.
int GentenHukki();

}  // namespace tr7
