#pragma once

namespace tr7 {

/// Opens the line for a command of the user's. False: it does not open, which the user has been
/// told with the reason, and the session has ended.
[[nodiscard]] bool OpenPortOrTell();

/// Ends the session whatever it was: the line shut, offline with lamp, tabs and menus.
void EndSession();

}  // namespace tr7
