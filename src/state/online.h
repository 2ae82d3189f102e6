#pragma once

namespace tr7 {

/// Offline on with the lamp off, and the reverse.
void SetOffline();
void SetOnline();

/// Lets the requests of a command out that was started offline and needs no connect sequence. The
/// first good reply makes the state online; without one `SettleOnlineState` takes it back.
void LiftOffline();

/// At the end of a command: online is only what a good reply has confirmed, as the lamp shows.
void SettleOnlineState();

}  // namespace tr7
