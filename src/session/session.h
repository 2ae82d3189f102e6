#pragma once

#include "session/open_port.h"  // IWYU pragma: export

namespace tr7 {

/// The connect sequence with a dialogue for each difference between PC and controller. 0: online;
/// 1: offline with the line shut. It ends in one of the two, never between. The user can give up on
/// it by the cancel button, which the status bar then says.
int fChangeToOnline();

/// The same for a command that was started offline: menus and tabs follow. False when it failed.
[[nodiscard]] bool ChangeToOnlineFromCommand();

/// The line for a command of the user's: offline the connect sequence, online the port alone. What
/// failed has told the user.
[[nodiscard]] bool ConnectOrOpenPort();

/// `mnuSettingOnline` and `mnuSettingOffline`.
void ChangeToOnlineMenu();
void ChangeToOfflineMenu();

/// The first connection at the start: no dialogues, since the PC holds nothing yet. False when it
/// failed.
[[nodiscard]] bool FirstConnection();

/// Watches the port: the lamp tells the truth, and a port that is lost while nothing has the line
/// takes the session offline, with a box; a jog that is held then counts as let go. A flow whose
/// port is lost tells by itself.
void PortWatchTick();
bool PortWatchHasWork();

/// `mnuSettingCtMode`: asks for the mode and writes it to the controller.
void ChangeCtModeMenu();

}  // namespace tr7
