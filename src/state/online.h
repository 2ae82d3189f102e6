#pragma once

namespace tr7 {

/// Offline on with the lamp off, and the reverse.
void SetOffline();
void SetOnline();

/// At the end of a command: online is only what a good reply has confirmed, as the lamp shows.
void SettleOnlineState();

}  // namespace tr7
